// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorField.h"

#include "ColorChannel_p.h"
#include "ColorMath_p.h"
#include "ColorPlane_p.h"
#include "WhileAlive_p.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <array>
#include <cmath>

/// What a setter announces: a channel by its number, the colour, or, in between, that the constant channel
/// follows.
enum QLxColorField::Notice : int {
    Hue,
    Saturation,
    Value,
    Red,
    Green,
    Blue,
    Lstar,
    Astar,
    Bstar,
    Color,
    Follow
};

QLxColorField::QLxColorField(QWidget *parent, const char *name)
    : QWidget(parent)
    , m_color{0.0F, 0.0F, 0.5F}
    , m_constantChannel(m_color.hue)
{
    if (name)
        setObjectName(QString::fromUtf8(name));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent); // the plane covers the widget: Qt need not erase it first
}

QLxColorField::QLxColorField(float red, float green, float blue, QWidget *parent, const char *name)
    : QLxColorField(parent, name)
{
    m_color = QLx::rgbToHsv({red, green, blue});
    m_constantChannel = m_color.hue;
}

QSize QLxColorField::sizeHint() const
{
    return {256, 256};
}

float QLxColorField::channelOf(Mode channel) const
{
    return QLx::colorChannel(channel)->read(m_color);
}

void QLxColorField::getHSV(float &h, float &s, float &v) const
{
    h = m_color.hue;
    s = m_color.saturation;
    v = m_color.value;
}

float QLxColorField::getRed() const
{
    return channelOf(RedMode);
}

float QLxColorField::getGreen() const
{
    return channelOf(GreenMode);
}

float QLxColorField::getBlue() const
{
    return channelOf(BlueMode);
}

void QLxColorField::getRGB(float &r, float &g, float &b) const
{
    const QLx::Rgb rgb = QLx::hsvToRgb(m_color);
    r = rgb.red;
    g = rgb.green;
    b = rgb.blue;
}

float QLxColorField::getLstar() const
{
    return channelOf(LstarMode);
}

float QLxColorField::getAstar() const
{
    return channelOf(AstarMode);
}

float QLxColorField::getBstar() const
{
    return channelOf(BstarMode);
}

void QLxColorField::getLab(float &l, float &a, float &b) const
{
    const QLx::Lab lab = QLx::rgbToLab(QLx::hsvToRgb(m_color));
    l = lab.lstar;
    a = lab.astar;
    b = lab.bstar;
}

/// The common end of all setters of colours.
void QLxColorField::change(const QLxColor &color, std::initializer_list<Notice> notices)
{
    using Signal = void (QLxColorField::*)(float);
    static constexpr Signal changed[] = {
        &QLxColorField::hueChanged,   &QLxColorField::saturationChanged, &QLxColorField::valueChanged,
        &QLxColorField::redChanged,   &QLxColorField::greenChanged,      &QLxColorField::blueChanged,
        &QLxColorField::lstarChanged, &QLxColorField::astarChanged,      &QLxColorField::bstarChanged,
    };
    m_color = color;
    const QPointer<QLxColorField> alive(this);
    for (const Notice notice : notices) {
        // A receiver may have changed the colour: each signal carries what is stored by then.
        if (notice == Follow) {
            updateConstantChannel(m_color);
        } else if (notice == Color) {
            Q_EMIT colorChanged(m_color);
        } else {
            const Signal signal = changed[notice];
            (this->*signal)(channelOf(static_cast<Mode>(notice)));
        }
        if (!alive)
            return;
    }
    repaint();
}

void QLxColorField::setChannel(Mode channel, float value)
{
    if (channelOf(channel) == value)
        return;
    // a* and b* are handed on to L*, deliberately.
    const Mode replaced = channel > LstarMode ? LstarMode : channel;
    const QLxColor color = QLx::colorChannel(replaced)->replaced(m_color, value);
    const auto own = static_cast<Notice>(channel);
    if (channel <= ValueMode)
        change(color, {Color, own, Red, Green, Blue, Lstar, Astar, Bstar, Follow});
    else if (channel <= BlueMode)
        change(color, {Color, own, Hue, Saturation, Value, Lstar, Astar, Bstar, Follow});
    else
        change(color, {Color, own, Hue, Saturation, Value, Red, Green, Blue, Follow});
}

void QLxColorField::setHSV(float h, float s, float v)
{
    if (m_color == QLxColor{h, s, v})
        return;
    change({h, s, v}, {Color, Hue, Saturation, Value, Red, Green, Blue, Lstar, Astar, Bstar, Follow});
}

void QLxColorField::setHue(float h)
{
    setChannel(HueMode, h);
}

void QLxColorField::setSaturation(float s)
{
    setChannel(SaturationMode, s);
}

void QLxColorField::setValue(float v)
{
    setChannel(ValueMode, v);
}

void QLxColorField::setRGB(float r, float g, float b)
{
    const QLx::Rgb rgb = QLx::hsvToRgb(m_color);
    if (rgb.red == r && rgb.green == g && rgb.blue == b)
        return;
    change(QLx::rgbToHsv({r, g, b}),
           {Color, Hue, Saturation, Value, Red, Green, Blue, Lstar, Astar, Bstar, Follow});
}

void QLxColorField::setRed(float r)
{
    setChannel(RedMode, r);
}

void QLxColorField::setGreen(float g)
{
    setChannel(GreenMode, g);
}

void QLxColorField::setBlue(float b)
{
    setChannel(BlueMode, b);
}

void QLxColorField::setLab(float l, float a, float b)
{
    const QLx::Lab lab = QLx::rgbToLab(QLx::hsvToRgb(m_color));
    if (lab.lstar == l && lab.astar == a && lab.bstar == b)
        return;
    // The colour comes last here, after the constant channel has followed.
    change(QLx::rgbToHsv(QLx::labToRgb({l, a, b})),
           {Hue, Saturation, Value, Red, Green, Blue, Lstar, Astar, Bstar, Follow, Color});
}

void QLxColorField::setLstar(float l)
{
    setChannel(LstarMode, l);
}

void QLxColorField::setAstar(float a)
{
    setChannel(AstarMode, a);
}

void QLxColorField::setBstar(float b)
{
    setChannel(BstarMode, b);
}

void QLxColorField::setColor(QLxColor color)
{
    if (m_color == color)
        return;
    change(QLx::rgbToHsv(QLx::labToRgb(QLx::rgbToLab(QLx::hsvToRgb(color)))),
           {Hue, Saturation, Value, Color, Red, Green, Blue, Lstar, Astar, Bstar, Follow});
}

void QLxColorField::switchMode(Mode mode, bool on)
{
    if (!on || m_mode == mode)
        return;
    const float constant = channelOf(mode);
    m_constantChannel = constant;
    const bool early =
        mode == HueMode || mode == ValueMode; // in force before the signal, the others after it
    if (early)
        m_mode = mode;
    whileAlive(
        this, [&] { Q_EMIT constantChannelChanged(constant); },
        [&] {
            if (!early)
                m_mode = mode;
            update();
        });
}

void QLxColorField::setHueMode(bool on)
{
    switchMode(HueMode, on);
}

void QLxColorField::setSaturationMode(bool on)
{
    switchMode(SaturationMode, on);
}

void QLxColorField::setValueMode(bool on)
{
    switchMode(ValueMode, on);
}

void QLxColorField::setRedMode(bool on)
{
    switchMode(RedMode, on);
}

void QLxColorField::setGreenMode(bool on)
{
    switchMode(GreenMode, on);
}

void QLxColorField::setBlueMode(bool on)
{
    switchMode(BlueMode, on);
}

void QLxColorField::setLstarMode(bool on)
{
    switchMode(LstarMode, on);
}

void QLxColorField::setAstarMode(bool on)
{
    switchMode(AstarMode, on);
}

void QLxColorField::setBstarMode(bool on)
{
    switchMode(BstarMode, on);
}

void QLxColorField::setMode(Mode mode)
{
    if (mode < HueMode || mode > BstarMode)
        mode = HueMode;
    const float constant = channelOf(mode);
    m_constantChannel = constant;
    if (mode >= LstarMode) {
        const Mode actual = mode == AstarMode ? LstarMode : mode; // deliberate
        whileAlive(
            this, [&] { switchMode(actual, true); }, [this] { update(); });
        return;
    }
    if (m_mode == mode) {
        update();
        return;
    }
    whileAlive(
        this, [&] { Q_EMIT constantChannelChanged(constant); },
        [&] {
            m_mode = mode;
            update();
        });
}

void QLxColorField::setConstantChannel(float value)
{
    if (std::isnan(value))
        value = 0.0F;
    if (!(std::fabs(m_constantChannel - value) > 0.001F))
        return;
    m_constantChannel = value;
    whileAlive(
        this, [&] { setChannel(m_mode, value); }, [this] { repaint(); });
}

void QLxColorField::updateConstantChannel(const QLxColor &color)
{
    setConstantChannel(QLx::colorChannel(m_mode)->read(color));
}

void QLxColorField::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint at = event->pos();
    whileAlive(
        this, [&] { setColorFieldValues(at.x(), at.y()); }, [this] { repaint(); });
}

void QLxColorField::mouseReleaseEvent(QMouseEvent * /*event*/) {}

void QLxColorField::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() != Qt::LeftButton) // mouse tracking is on: moves come without a button too
        return;
    const QPoint at = event->pos();
    whileAlive(
        this, [&] { setColorFieldValues(at.x(), at.y()); }, [this] { repaint(); });
}

void QLxColorField::setColorFieldValues(const int &x, const int &y)
{
    // The RGB modes keep the colour's own channel, even where the constant differs from it.
    const float kept = m_mode >= RedMode && m_mode <= BlueMode ? channelOf(m_mode) : m_constantChannel;
    const auto [first, second, third] = QLx::pickFromPlane(m_mode, kept, {x, y}, size());
    if (m_mode <= ValueMode)
        setHSV(first, second, third);
    else if (m_mode <= BlueMode)
        setRGB(first, second, third);
    else
        setLab(first, second, third);
}

/// The colour under a position, for nobody yet.
void QLxColorField::emitMouseOverColor(const int &x, const int &y) const
{
    const auto [first, second, third] = QLx::pickFromPlane(m_mode, m_constantChannel, {x, y}, size());
    QLxColor color{first, second, third};
    if (m_mode >= LstarMode)
        color = QLx::rgbToHsv(QLx::labToRgb({first, second, third}));
    else if (m_mode >= RedMode)
        color = QLx::rgbToHsv({first, second, third});
    Q_UNUSED(color)
}

void QLxColorField::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    QImage image(width(), height(), QImage::Format_RGB32);
    repaintColorField(image);
    painter.drawImage(0, 0, image);

    const QPoint marker = QLx::markerOnPlane(m_mode, m_color, size());
    painter.setPen(QColor(255, 255, 255, 255));
    painter.drawEllipse(marker.x() - 3, marker.y() - 3, 6, 6);
    painter.setPen(QColor(0, 0, 0, 255));
    painter.drawEllipse(marker.x() - 2, marker.y() - 2, 4, 4);
    painter.drawPoint(marker);
}

void QLxColorField::repaintColorField(QImage &image)
{
    QLx::fillColorPlane(m_mode, m_constantChannel, image);
}
