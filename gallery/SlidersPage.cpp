// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SlidersPage.h"

#include "Gestures.h"
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <memory>

namespace {

constexpr int SliderHeight = 24;
/// The sliders start at the coordinates of this colour.
constexpr QLxColor Sample{24.0F, 0.62F, 0.72F};

QLxColorSlider *makeSlider(QLxColorSlider::Mode mode, float position)
{
    auto *const slider = new QLxColorSlider;
    slider->setMode(mode);
    slider->setFixedHeight(SliderHeight);
    slider->setValue(position);
    return slider;
}

void setColors(QLxColorSlider *slider, const QLxColor &min, const QLxColor &max)
{
    slider->setMinColor(min);
    slider->setMaxColor(max);
}

/// A label as wide as any value gets, so that no slider moves while the numbers change.
QLabel *makeValueLabel(const QLxColorSlider *slider)
{
    auto *const label = new QLabel(slider->getValueAsString());
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("-128.000")));
    QObject::connect(slider, QOverload<QString>::of(&QLxColorSlider::valueChanged), label, &QLabel::setText);
    return label;
}

QGroupBox *makeModes()
{
    struct Row
    {
        QString title;
        QLxColorSlider::Mode mode;
        QLxColor min;
        QLxColor max;
        float position;
    };
    const QLxColor &c = Sample;
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    QLx::hsvToRgb(c, red, green, blue);
    float lstar = 0.0F;
    float astar = 0.0F;
    float bstar = 0.0F;
    QLx::rgbToLab(red, green, blue, lstar, astar, bstar);
    const float span = QLx::labChromaRange;
    const QLxColor black;
    const Row rows[] = {
        {QStringLiteral("Hue"), QLxColorSlider::Hue, black, c, c.hue / 360.0F},
        {QStringLiteral("Saturation"),
         QLxColorSlider::Saturation,
         {c.hue, 0.0F, 0.9F},
         {c.hue, 1.0F, 0.9F},
         c.saturation},
        {QStringLiteral("Value"), QLxColorSlider::Value, black, {c.hue, 0.8F, 1.0F}, c.value},
        {QStringLiteral("Red"), QLxColorSlider::Red, black, {0.0F, 1.0F, 1.0F}, red},
        {QStringLiteral("Green"), QLxColorSlider::Green, black, {120.0F, 1.0F, 1.0F}, green},
        {QStringLiteral("Blue"), QLxColorSlider::Blue, black, {240.0F, 1.0F, 1.0F}, blue},
        {QStringLiteral("L*"), QLxColorSlider::Lstar, c, c, lstar / 100.0F},
        {QStringLiteral("a*"), QLxColorSlider::Astar, c, c, astar / span + 0.5F},
        {QStringLiteral("b*"), QLxColorSlider::Bstar, c, c, bstar / span + 0.5F},
    };

    auto *const box = new QGroupBox(QStringLiteral("Modes"));
    auto *const grid = new QGridLayout(box);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(10);
    int line = 0;
    for (const Row &row : rows) {
        if (row.mode == QLxColorSlider::Red || row.mode == QLxColorSlider::Lstar)
            grid->setRowMinimumHeight(line++, 4);
        QLxColorSlider *const slider = makeSlider(row.mode, row.position);
        setColors(slider, row.min, row.max);
        grid->addWidget(new QLabel(row.title), line, 0);
        grid->addWidget(slider, line, 1);
        grid->addWidget(makeValueLabel(slider), line, 2);
        ++line;
    }
    return box;
}

QGroupBox *makeVertical()
{
    auto *const box = new QGroupBox(QStringLiteral("Vertical"));
    auto *const grid = new QGridLayout(box);
    int column = 0;
    for (const auto mode : {QLxColorSlider::Hue, QLxColorSlider::Green, QLxColorSlider::Blue}) {
        auto *const slider = new QLxColorSlider(Qt::Vertical);
        slider->setMode(mode);
        slider->setFixedWidth(54);
        grid->addWidget(slider, 0, column++);
    }
    auto *const caption = new QLabel(QStringLiteral("Taller, but not turned: the horizontal pointer position "
                                                    "counts here too."));
    caption->setWordWrap(true);
    QSizePolicy policy = caption->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored); // the sliders set the width
    caption->setSizePolicy(policy);
    grid->addWidget(caption, 1, 0, 1, column);
    grid->setRowStretch(0, 1);
    return box;
}

/// A number that goes up by one with every signal.
template <typename Signal>
QLabel *makeCounter(const QLxColorSlider *slider, Signal signal)
{
    auto *const label = new QLabel(QStringLiteral("0"));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QObject::connect(slider, signal, label, [label] { label->setNum(label->text().toInt() + 1); });
    return label;
}

QGroupBox *makeTracking()
{
    auto *const box = new QGroupBox(QStringLiteral("Tracking, and the signals so far"));
    auto *const grid = new QGridLayout(box);
    int line = 2;
    for (const char *name : {"sliderPressed", "valueChanged", "sliderMoved", "sliderReleased"})
        grid->addWidget(new QLabel(QLatin1String(name)), line++, 0);
    int column = 1;
    for (const bool tracking : {true, false}) {
        QLxColorSlider *const slider = makeSlider(QLxColorSlider::Value, 0.5F);
        setColors(slider, {}, {200.0F, 0.8F, 1.0F});
        slider->setTracking(tracking);
        slider->setObjectName(tracking ? QStringLiteral("trackingOn") : QStringLiteral("trackingOff"));
        grid->addWidget(new QLabel(tracking ? QStringLiteral("Tracking on") : QStringLiteral("Tracking off")),
                        0, column);
        grid->addWidget(slider, 1, column);
        grid->addWidget(makeCounter(slider, &QLxColorSlider::sliderPressed), 2, column);
        grid->addWidget(makeCounter(slider, QOverload<float>::of(&QLxColorSlider::valueChanged)), 3, column);
        grid->addWidget(makeCounter(slider, &QLxColorSlider::sliderMoved), 4, column);
        grid->addWidget(makeCounter(slider, &QLxColorSlider::sliderReleased), 5, column);
        grid->setColumnStretch(column++, 1);
    }
    grid->setHorizontalSpacing(14);
    return box;
}

QGroupBox *makeDisabled()
{
    auto *const box = new QGroupBox(QStringLiteral("Disabled"));
    auto *const layout = new QVBoxLayout(box);
    const auto add = [layout](const QString &title) {
        QLxColorSlider *const slider = makeSlider(QLxColorSlider::Hue, 0.7F);
        layout->addWidget(new QLabel(title));
        layout->addWidget(slider);
        return slider;
    };
    add(QStringLiteral("setPhotometricParameters(true)"))->setPhotometricParameters(true);
    add(QStringLiteral("setUseSpectrum(true)"))->setUseSpectrum(true);
    add(QStringLiteral("setEnabled(false)"))->setEnabled(false);
    layout->addStretch();
    return box;
}

} // namespace

QWidget *createSlidersPage()
{
    auto page = std::make_unique<QWidget>();
    auto *const grid = new QGridLayout(page.get());
    grid->setContentsMargins(14, 12, 14, 14);
    grid->setSpacing(14);
    auto *const top = new QHBoxLayout;
    top->setSpacing(14);
    top->addWidget(makeModes(), 1);
    top->addWidget(makeVertical());
    grid->addLayout(top, 0, 0, 1, 2);
    grid->addWidget(makeTracking(), 1, 0);
    grid->addWidget(makeDisabled(), 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);
    return page.release();
}

void demonstrateSlidersPage(QWidget &page)
{
    for (const auto *name : {"trackingOn", "trackingOff"})
        dragAcross(*page.findChild<QLxColorSlider *>(QLatin1String(name)), 0.2, 0.7, 12);
}
