// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "FieldPage.h"

#include "Gestures.h"
#include "QLxColorField.h"
#include "QLxColorSlider.h"
#include "QLxColorSpaces.h"
#include "SignalLog.h"
#include "SignalText.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSlider>

#include <memory>

namespace {

using Field = QLxColorField;
using Slider = QLxColorSlider;

struct Channel
{
    const char *title;
    int decimals;
    int across; ///< The channel that the field shows from left to right when this one is constant.
    int up;     ///< And from bottom to top.
    float (Field::*read)() const;
    void (Field::*setFieldMode)(bool);
    void (Slider::*setSliderMode)(bool);
    const char *signalName;
    void (Field::*signal)(float);
};

/// In the order of the modes of the field, which are those of the slider.
constexpr Channel Channels[] = {
    {"Hue", 2, Field::SaturationMode, Field::ValueMode, &Field::getHue, &Field::setHueMode,
     &Slider::setHueMode, "hueChanged", &Field::hueChanged},
    {"Saturation", 4, Field::HueMode, Field::ValueMode, &Field::getSaturation, &Field::setSaturationMode,
     &Slider::setSaturationMode, "saturationChanged", &Field::saturationChanged},
    {"Value", 4, Field::HueMode, Field::SaturationMode, &Field::getValue, &Field::setValueMode,
     &Slider::setValueMode, "valueChanged", &Field::valueChanged},
    {"Red", 4, Field::GreenMode, Field::BlueMode, &Field::getRed, &Field::setRedMode, &Slider::setRedMode,
     "redChanged", &Field::redChanged},
    {"Green", 4, Field::RedMode, Field::BlueMode, &Field::getGreen, &Field::setGreenMode,
     &Slider::setGreenMode, "greenChanged", &Field::greenChanged},
    {"Blue", 4, Field::RedMode, Field::GreenMode, &Field::getBlue, &Field::setBlueMode, &Slider::setBlueMode,
     "blueChanged", &Field::blueChanged},
    {"L*", 2, Field::AstarMode, Field::BstarMode, &Field::getLstar, &Field::setLstarMode,
     &Slider::setLstarMode, "lstarChanged", &Field::lstarChanged},
    {"a*", 2, Field::BstarMode, Field::LstarMode, &Field::getAstar, &Field::setAstarMode,
     &Slider::setAstarMode, "astarChanged", &Field::astarChanged},
    {"b*", 2, Field::AstarMode, Field::LstarMode, &Field::getBstar, &Field::setBstarMode,
     &Slider::setBstarMode, "bstarChanged", &Field::bstarChanged},
};
constexpr int ChannelCount = 9;

/// The position at which the slider has that real value.
float sliderPosition(int channel, float real)
{
    switch (channel) {
    case Slider::Hue:
        return real / 359.99F;
    case Slider::Lstar:
        return real / 100.0F;
    case Slider::Astar:
    case Slider::Bstar:
        return real / QLx::labChromaRange + 0.5F;
    default:
        return real;
    }
}

/// The reference colours with which the ramp of the slider passes through the colour.
void fitRamp(Slider *slider, const QLxColor &c)
{
    const auto set = [slider](const QLxColor &min, const QLxColor &max) {
        slider->setMinColor(min);
        slider->setMaxColor(max);
    };
    switch (slider->getMode()) {
    case Slider::Saturation:
        set({c.hue, 0.0F, c.value}, {c.hue, 1.0F, c.value});
        break;
    case Slider::Value:
        set({c.hue, c.saturation, 0.0F}, {c.hue, c.saturation, 1.0F});
        break;
    case Slider::Lstar:
    case Slider::Astar:
    case Slider::Bstar:
        set(c, c);
        break;
    default: // hue has one ramp only; red, green and blue bring their own colours
        break;
    }
}

/// Right-aligned and as wide as the text, so that nothing moves while the numbers change.
QLabel *makeNumberLabel(const QString &widest)
{
    auto *const label = new QLabel;
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(widest));
    return label;
}

class FieldPage : public QWidget
{
public:
    FieldPage();

private:
    QGroupBox *makeFieldBox();
    QGroupBox *makeChannelBox();
    void addChannel(int channel, QGridLayout *grid);
    void chooseChannel(int channel);
    void refresh();

    Field *m_field;
    Slider *m_slider;
    QButtonGroup *m_modes;
    QLabel *m_channel = nullptr;
    QLabel *m_caption = nullptr;
    QLabel *m_values[ChannelCount] = {};
};

FieldPage::FieldPage()
    : m_field(new Field)
    , m_slider(new Slider)
    , m_modes(new QButtonGroup(this))
{
    m_field->setObjectName(QStringLiteral("Field"));
    m_field->setHSV(205.0F, 0.8F, 0.75F);

    auto *const log = new SignalLog;
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(14, 12, 14, 14);
    grid->setSpacing(14);
    grid->addWidget(makeFieldBox(), 0, 0);
    grid->addWidget(makeChannelBox(), 0, 1);
    grid->addWidget(log, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 5);
    grid->setRowStretch(1, 3);

    for (const Channel &channel : Channels)
        watch(m_field, channel.signal, channel.signalName, log);
    watch(m_field, &Field::colorChanged, "colorChanged", log);
    watch(m_field, &Field::constantChannelChanged, "constantChannelChanged", log);
    connect(m_field, &Field::colorChanged, this, &FieldPage::refresh);
    connect(m_slider, QOverload<float>::of(&Slider::valueChanged), this, [this] {
        m_field->setConstantChannel(m_slider->getRealValue());
        refresh();
    });
    m_modes->button(Field::HueMode)->setChecked(true);
}

QGroupBox *FieldPage::makeFieldBox()
{
    constexpr int defaultSize = 256;
    constexpr int margin = 4;
    auto *const canvas = new QScrollArea;
    canvas->setWidget(m_field);
    canvas->setAlignment(Qt::AlignCenter);
    canvas->setBackgroundRole(QPalette::Mid);
    // The canvas takes what the window gives, not what the field would like.
    canvas->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    const int least = defaultSize + 2 * (canvas->frameWidth() + margin);
    canvas->setMinimumSize(least, least);

    m_slider->setFixedHeight(24);
    m_channel = new QLabel;
    m_channel->setFixedWidth(m_channel->fontMetrics().horizontalAdvance(QStringLiteral("Saturation")));
    m_caption = new QLabel;
    m_caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // longer in some modes

    auto *const size = new QSlider(Qt::Horizontal);
    size->setRange(64, 1024);
    size->setPageStep(64);
    QLabel *const pixels = makeNumberLabel(QStringLiteral("1024 px"));
    connect(size, &QSlider::valueChanged, this, [this, pixels](int side) {
        m_field->setFixedSize(side, side);
        pixels->setText(QStringLiteral("%1 px").arg(side));
    });
    size->setValue(defaultSize);

    auto *const box = new QGroupBox(QStringLiteral("Field"));
    auto *const grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Size")), 0, 0);
    grid->addWidget(size, 0, 1);
    grid->addWidget(pixels, 0, 2);
    grid->addWidget(canvas, 1, 0, 1, 3);
    grid->addWidget(m_channel, 2, 0);
    grid->addWidget(m_slider, 2, 1, 1, 2);
    grid->addWidget(m_caption, 3, 0, 1, 3);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(12);
    return box;
}

QGroupBox *FieldPage::makeChannelBox()
{
    constexpr const char *spaces[] = {"HSV", "Linear RGB", "L*a*b*"};
    auto *const box = new QGroupBox(QStringLiteral("Constant channel"));
    auto *const grid = new QGridLayout(box);
    for (int i = 0; i < ChannelCount; ++i) {
        if (i % 3 == 0)
            grid->addWidget(new QLabel(QLatin1String(spaces[i / 3])), grid->rowCount(), 0, 1, 2);
        addChannel(i, grid);
        if (i % 3 == 2 && i + 1 < ChannelCount)
            grid->setRowMinimumHeight(grid->rowCount(), 12);
    }
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return box;
}

void FieldPage::addChannel(int channel, QGridLayout *grid)
{
    const Channel &c = Channels[channel];
    auto *const radio = new QRadioButton(QLatin1String(c.title));
    radio->setObjectName(QLatin1String(c.title));
    m_modes->addButton(radio, channel);
    connect(radio, &QRadioButton::toggled, m_field, c.setFieldMode);
    connect(radio, &QRadioButton::toggled, m_slider, c.setSliderMode);
    connect(radio, &QRadioButton::toggled, this, [this, channel](bool on) {
        if (on)
            chooseChannel(channel);
    });
    m_values[channel] = makeNumberLabel(QStringLiteral("-00000.00"));
    const int row = grid->rowCount();
    grid->addWidget(radio, row, 0);
    grid->addWidget(m_values[channel], row, 1);
}

/// The end of a change of mode, when the field and the slider have switched.
void FieldPage::chooseChannel(int channel)
{
    const Channel &c = Channels[channel];
    m_channel->setText(QLatin1String(c.title));
    QString caption = QStringLiteral("Across: %1, up: %2.")
                          .arg(QLatin1String(Channels[c.across].title), QLatin1String(Channels[c.up].title));
    if (channel == Field::AstarMode || channel == Field::BstarMode)
        caption += QStringLiteral(" In these two modes the channel slider sets L*.");
    m_caption->setText(caption);
    refresh();
}

void FieldPage::refresh()
{
    for (int i = 0; i < ChannelCount; ++i)
        m_values[i]->setText(number((m_field->*Channels[i].read)(), Channels[i].decimals));
    const QSignalBlocker blocker(m_slider);
    const int mode = m_slider->getMode();
    fitRamp(m_slider, m_field->getColor());
    m_slider->setValue(sliderPosition(mode, (m_field->*Channels[mode].read)()));
}

} // namespace

QWidget *createFieldPage()
{
    return std::make_unique<FieldPage>().release();
}

void demonstrateFieldPage(QWidget &page)
{
    auto &field = *page.findChild<Field *>();
    const auto choose = [&](const char *title) {
        page.findChild<QRadioButton *>(QLatin1String(title))->setChecked(true);
    };
    drag(field, {0.3, 0.6}, {0.8, 0.38}, 6);
    choose("L*");
    drag(field, {0.45, 0.6}, {0.65, 0.28}, 6);
    choose("Hue");
}
