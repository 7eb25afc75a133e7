// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorSlider.h"

#include "ColorChannel_p.h"
#include "ColorRamp_p.h"
#include "MultiselectMark_p.h"
#include "QLxColorSpaces.h"
#include "WhileAlive_p.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {

/// A rectangle outline from one corner pixel to another, both included, in a solid 1-pixel pen.
void drawFrame(QPainter &painter, const QRect &canvas, const QColor &color, int x, int y, int w, int h)
{
    if (w < 1 || h < 1 || !canvas.contains(QRect(x, y, w + 1, h + 1))) {
        painter.setPen(color);
        painter.drawRect(x, y, w, h);
        return;
    }
    // The same pixels (at a device pixel ratio of 1), several times as fast.
    painter.fillRect(x, y, w + 1, 1, color);
    painter.fillRect(x, y + h, w + 1, 1, color);
    painter.fillRect(x, y + 1, 1, h - 1, color);
    painter.fillRect(x + w, y + 1, 1, h - 1, color);
}

} // namespace

QLxColorSlider::QLxColorSlider(QWidget *parent, const char *name)
    : QLxColorSlider(Qt::Horizontal, parent, name)
{
}

QLxColorSlider::QLxColorSlider(Qt::Orientation orientation, QWidget *parent, const char * /*name*/)
    : QWidget(parent)
    , m_orientation(orientation)
{
    setObjectName(QStringLiteral("QLxColorSlider"));
    init();
}

void QLxColorSlider::init()
{
    m_mode = Hue;
    m_minColor = {0.0F, 0.0F, 0.0F};
    m_maxColor = {0.0F, 0.0F, 1.0F};
    m_value = 0.5F;
    m_tracking = true;
    m_photometric = false;
    m_useSpectrum = false;
}

void QLxColorSlider::setOrientation(Qt::Orientation orientation)
{
    m_orientation = orientation;
}

void QLxColorSlider::setTracking(bool tracking)
{
    m_tracking = tracking;
}

void QLxColorSlider::setMode(Mode mode)
{
    m_mode = mode;
}

void QLxColorSlider::setMinColor(QLxColor color)
{
    if (m_minColor == color)
        return;
    m_minColor = color;
    whileAlive(
        this, [&] { Q_EMIT minColorChanged(color); }, [this] { repaint(); });
}

void QLxColorSlider::setMaxColor(QLxColor color)
{
    if (m_maxColor == color)
        return;
    m_maxColor = color;
    whileAlive(
        this, [&] { Q_EMIT maxColorChanged(color); }, [this] { repaint(); });
}

void QLxColorSlider::setMinColor(float red, float green, float blue)
{
    m_minColor = QLx::rgbToHsv(red, green, blue);
}

void QLxColorSlider::setMaxColor(float red, float green, float blue)
{
    m_maxColor = QLx::rgbToHsv(red, green, blue);
}

void QLxColorSlider::setValue(float value, bool emitSignals, bool force)
{
    if (value == m_value && !force)
        return;
    m_value = value;
    if (emitSignals) {
        const bool alive = whileAlive(
            this, [&] { Q_EMIT valueChanged(value); }, [this] { Q_EMIT colorChanged(getColor()); },
            [this] { Q_EMIT valueChanged(getValueAsString()); });
        if (!alive)
            return;
    }
    repaint();
}

void QLxColorSlider::switchMode(Mode mode, bool on)
{
    if (!on || m_mode == mode)
        return;
    m_mode = mode;
    if (mode == Red || mode == Green || mode == Blue) {
        m_minColor = {0.0F, 0.0F, 0.0F};
        m_maxColor = {120.0F * static_cast<float>(mode - Red), 1.0F, 1.0F};
    }
    update();
}

void QLxColorSlider::setHueMode(bool on)
{
    switchMode(Hue, on);
}

void QLxColorSlider::setSaturationMode(bool on)
{
    switchMode(Saturation, on);
}

void QLxColorSlider::setValueMode(bool on)
{
    switchMode(Value, on);
}

void QLxColorSlider::setRedMode(bool on)
{
    switchMode(Red, on);
}

void QLxColorSlider::setGreenMode(bool on)
{
    switchMode(Green, on);
}

void QLxColorSlider::setBlueMode(bool on)
{
    switchMode(Blue, on);
}

void QLxColorSlider::setLstarMode(bool on)
{
    switchMode(Lstar, on);
}

void QLxColorSlider::setAstarMode(bool on)
{
    switchMode(Astar, on);
}

void QLxColorSlider::setBstarMode(bool on)
{
    switchMode(Bstar, on);
}

float QLxColorSlider::getRealValue() const
{
    const QLx::ColorChannel *channel = QLx::colorChannel(m_mode);
    return channel ? channel->fromPosition(m_value) : m_value;
}

QString QLxColorSlider::getValueAsString() const
{
    return QString().setNum(getRealValue(), 'f', 3);
}

QLxColor QLxColorSlider::getColor() const
{
    const float t = m_value;
    switch (m_mode) {
    case Hue:
        return {t * 359.999F, 1.0F, 1.0F}; // deliberately not the 359.99 of getRealValue()
    case Lstar:
    case Astar:
    case Bstar:
        return QLx::colorChannel(m_mode)->replaced(m_minColor, getRealValue());
    default:
        break;
    }
    float low[3];
    float high[3];
    QLx::hsvToRgb(m_minColor, low[0], low[1], low[2]);
    QLx::hsvToRgb(m_maxColor, high[0], high[1], high[2]);
    const auto mix = [&](int i) { return low[i] * (1.0F - t) + high[i] * t; };
    return QLx::rgbToHsv(mix(0), mix(1), mix(2));
}

void QLxColorSlider::updateEnabled()
{
    const QSignalBlocker blocker(this);
    setDisabled(m_photometric || m_useSpectrum);
}

void QLxColorSlider::setPhotometricParameters(bool on)
{
    m_photometric = on;
    updateEnabled();
}

void QLxColorSlider::setUseSpectrum(bool on)
{
    m_useSpectrum = on;
    updateEnabled();
}

QSize QLxColorSlider::sizeHint() const
{
    return m_orientation == Qt::Horizontal ? QSize(62, 16) : QSize(16, 62);
}

float QLxColorSlider::mapToFloat(int x, int /*y*/) const
{
    const float t = static_cast<float>(x) / static_cast<float>(width());
    return t >= 0.0F ? std::min(t, 1.0F) : 0.0F;
}

void QLxColorSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint pos = event->pos();
    whileAlive(
        this, [this] { Q_EMIT sliderPressed(); },
        [&] { setValue(mapToFloat(pos.x(), pos.y()), m_tracking, false); });
}

void QLxColorSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() != Qt::LeftButton)
        return;
    const QPoint pos = event->pos();
    whileAlive(
        this, [&] { setValue(mapToFloat(pos.x(), pos.y()), m_tracking, false); },
        [this] { Q_EMIT sliderMoved(m_value); });
}

void QLxColorSlider::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    whileAlive(
        this,
        [this] {
            if (!m_tracking)
                setValue(m_value, true, true);
        },
        [this] { Q_EMIT sliderReleased(); });
}

void QLxColorSlider::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    repaintSlider(painter);
    paintHandle(painter);
    QLx::paintMultiselectMark(painter, *this);
}

void QLxColorSlider::repaintSlider(QPainter &painter)
{
    const int w = width();
    const int h = height();
    painter.fillRect(rect(), palette().color(QPalette::Button));

    // The ramp fills the columns from 1 to n - 1 and the rows between 2 and h - 2, whichever is above.
    const int n = w - 2;
    const QRect ramp(QPoint(1, std::min(2, h - 2)), QPoint(n - 1, std::max(2, h - 2)));
    QImage row(std::max(ramp.width(), 0), 1, QImage::Format_RGB32);
    if (!row.isNull()) {
        auto *const pixels = reinterpret_cast<QRgb *>(row.bits());
        bool painted = true;
        if (isEnabled())
            painted = QLx::fillColorRamp(m_mode, m_maxColor, n, pixels, row.width());
        else
            QLx::fillDisabledRamp(n, pixels, row.width());
        if (painted) {
            painter.setBrushOrigin(ramp.topLeft());
            painter.fillRect(ramp, QBrush(row));
            painter.setBrushOrigin(0, 0);
        }
    }

    drawFrame(painter, rect(), palette().color(QPalette::Light), 1, 1, w - 4, h - 4);
    drawFrame(painter, rect(), palette().color(QPalette::Midlight), 2, 2, w - 4, h - 4);
    drawFrame(painter, rect(), palette().color(QPalette::Shadow), 1, 1, w - 3, h - 3);

    if (isEnabled() || !(m_photometric || m_useSpectrum))
        return;
    painter.setPen(QColor(192, 192, 192));
    painter.drawText(5, h - 4,
                     m_photometric ? tr("Disabled, using photometric mode.")
                                   : tr("Disabled, using spectral data."));
}

void QLxColorSlider::paintHandle(QPainter &painter)
{
    const float position = static_cast<float>(width() - 5) * m_value + 2.0F;
    if (std::isnan(position))
        return;
    const int hx = static_cast<int>(std::clamp(position, -8.0F, static_cast<float>(width() + 8)));
    const int h = height() - 1;
    drawFrame(painter, rect(), palette().color(QPalette::Midlight), hx - 2, 0, 3, h - 1);
    drawFrame(painter, rect(), palette().color(QPalette::Highlight), hx - 1, 1, 3, h - 1);
    drawFrame(painter, rect(), palette().color(QPalette::Shadow), hx - 2, 0, 4, h);
}
