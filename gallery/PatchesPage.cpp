// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "PatchesPage.h"

#include "Gestures.h"
#include "QLxColorButton.h"
#include "QLxColorSpaces.h"
#include "SwatchParts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>

namespace {

struct Named
{
    const char *name;
    QRgb color;
};

constexpr int Columns = 6;
constexpr Named Colors[] = {
    {"Brick", 0xffb5432e},   {"Coral", 0xffe9765b},  {"Apricot", 0xfff2a65a}, {"Amber", 0xffe8b931},
    {"Sand", 0xffdcc9a0},    {"Lemon", 0xfff5e663},  {"Olive", 0xff7a7f35},   {"Moss", 0xff55803b},
    {"Leaf", 0xff5fa854},    {"Mint", 0xff8fd3b0},   {"Teal", 0xff2f9c95},    {"Lagoon", 0xff1f6f78},
    {"Sky", 0xff8cc5ea},     {"Azure", 0xff3a8fd6},  {"Denim", 0xff3b5f94},   {"Navy", 0xff24305e},
    {"Lilac", 0xffb9a5dc},   {"Violet", 0xff7d5ba6}, {"Plum", 0xff6b2f5b},    {"Rose", 0xffc94f7c},
    {"Blossom", 0xfff0b3c4}, {"Cocoa", 0xff6f4a37},  {"Walnut", 0xffa0785a},  {"Slate", 0xff66727f},
};

/// A plain area: what is painted is what a pipette finds, pixel for pixel.
class Patch : public QWidget
{
public:
    Patch(const QBrush &fill, int height)
        : m_fill(fill)
    {
        setMinimumHeight(height);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override { QPainter(this).fillRect(rect(), m_fill); }

private:
    QBrush m_fill;
};

QLabel *makeCaption(const QString &text)
{
    auto *const caption = new QLabel(text);
    caption->setAlignment(Qt::AlignHCenter);
    return caption;
}

QString describe(const Named &color)
{
    return QLatin1String(color.name) + QLatin1Char(' ') + QColor(color.color).name();
}

QGridLayout *makePatches()
{
    auto *const grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(3);
    int i = 0;
    for (const Named &color : Colors) {
        const int line = 2 * (i / Columns);
        const int column = i++ % Columns;
        grid->addWidget(new Patch(QColor(color.color), 32), line, column);
        QLabel *const caption = makeCaption(describe(color));
        caption->setContentsMargins(0, 0, 0, 8); // closer to its own patch than to the next one
        grid->addWidget(caption, line + 1, column);
        grid->setRowStretch(line, 1);
        grid->setColumnStretch(column, 1);
    }
    return grid;
}

/// Greys in a frame, without which the lightest would vanish in the window.
QVBoxLayout *makeWedge()
{
    auto *const frame = new QFrame;
    frame->setFrameStyle(QFrame::StyledPanel);
    auto *const greys = new QHBoxLayout(frame);
    auto *const captions = new QHBoxLayout;
    for (QHBoxLayout *layout : {greys, captions}) {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }
    for (int step = 0; step < 16; ++step) {
        const int level = 17 * step;
        greys->addWidget(new Patch(QColor(level, level, level), 28), 1);
        captions->addWidget(makeCaption(QString::number(level)), 1);
    }
    auto *const wedge = new QVBoxLayout;
    wedge->setSpacing(3);
    wedge->addWidget(frame);
    wedge->addLayout(captions);
    return wedge;
}

Patch *makeGradient()
{
    QLinearGradient gradient(0.0, 0.0, 1.0, 0.0);
    gradient.setCoordinateMode(QGradient::ObjectMode);
    const QRgb stops[] = {0xff24305e, 0xff7d5ba6, 0xffc94f7c, 0xfff2a65a, 0xfff5e663};
    for (int i = 0; i < 5; ++i)
        gradient.setColorAt(i / 4.0, QColor(stops[i]));
    return new Patch(gradient, 28);
}

QGroupBox *makeChart()
{
    auto *const box = new QGroupBox(QStringLiteral("Patches"));
    auto *const layout = new QVBoxLayout(box);
    layout->setSpacing(6);
    layout->addLayout(makePatches(), 1);
    layout->addLayout(makeWedge());
    layout->addWidget(makeGradient());
    return box;
}

/// The sRGB-encoded channels of a colour that the dialog reports. They are rounded, where
/// QLx::toQColor() truncates: what came from the screen comes out again.
QRgb toEncoded(const QLxColor &color)
{
    const QLxColor encoded = QLx::colorUseGamma ? QLx::toSrgbColor(color) : color;
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    QLx::hsvToRgb(encoded, red, green, blue);
    const auto level = [](float c) {
        return c > 0.0F ? static_cast<int>(std::lround(qMin(c, 1.0F) * 255.0F)) : 0;
    };
    return qRgb(level(red), level(green), level(blue));
}

/// With the name of the patch that has the colour, if there is one.
QString describe(const QLxColor &color)
{
    const QRgb rgb = toEncoded(color);
    const auto *const patch =
        std::find_if(std::begin(Colors), std::end(Colors), [rgb](const Named &c) { return c.color == rgb; });
    return patch == std::end(Colors) ? QColor(rgb).name() : describe(*patch);
}

QGroupBox *makePicked()
{
    auto *const swatch = new QLxColorButton;
    swatch->setObjectName(QStringLiteral("Picked"));
    swatch->setFixedSize(62, 32);
    auto *const picked = new QLabel(describe(swatch->getColor()));
    auto *const tried = new QLabel;
    const auto show = [](QLabel *label, const QString &prefix) {
        return [=](const QLxColor &color) { label->setText(prefix + describe(color)); };
    };
    QObject::connect(swatch, &QLxColorButton::finalColorChosen, picked, show(picked, {}));
    QObject::connect(swatch, &QLxColorButton::temporaryColorChosen, tried,
                     show(tried, QStringLiteral("In the dialog: ")));
    QObject::connect(swatch, &QLxColorButton::finalColorChosen, tried, &QLabel::clear);

    auto *const box = new QGroupBox(QStringLiteral("Picked"));
    auto *const grid = new QGridLayout(box);
    grid->setHorizontalSpacing(14);
    grid->addWidget(new QLabel(QStringLiteral("Click the swatch, move the dialog aside, press Pipette in it "
                                              "and click a patch.")),
                    0, 0, 1, 3);
    grid->addWidget(swatch, 1, 0);
    grid->addWidget(picked, 1, 1);
    grid->addWidget(tried, 1, 2, Qt::AlignRight);
    grid->setColumnStretch(2, 1);
    return box;
}

} // namespace

QWidget *createPatchesPage()
{
    auto page = std::make_unique<QWidget>();
    auto *const layout = new QVBoxLayout(page.get());
    layout->setContentsMargins(14, 12, 14, 14);
    layout->setSpacing(14);
    layout->addWidget(makePicked());
    layout->addWidget(makeChart(), 1);
    return page.release();
}

void demonstratePatchesPage(QWidget &page)
{
    dropColor(*page.findChild<QLxColorButton *>(), QLx::toQColorF(fromEncoded(Colors[10].color)));
}
