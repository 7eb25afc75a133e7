// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// Every way in which the dialog's colour changes.
#include "DialogChannel_p.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"
#include "WhileAlive_p.h"

#include <QSignalBlocker>

#include <cstdio>

void QLxColorDialog::takeColor(const QLxColor &color)
{
    m_color = color;
    updateControls();
    updateSpiners();
    Q_EMIT colorChanged(getColor());
}

QLxColor QLxColorDialog::getColor() const
{
    return QLx::colorUseGamma ? m_color : QLx::toSrgbColor(m_color);
}

QLxColor QLxColorDialog::fromBoundary(const QLxColor &color)
{
    return QLx::colorUseGamma ? color : QLx::fromSrgbColor(color);
}

void QLxColorDialog::setColor(QLxColor color)
{
    const QLxColor linear = fromBoundary(color);
    if (linear != m_color)
        takeColor(linear);
}

void QLxColorDialog::colorFieldChanged(QLxColor color)
{
    // In the other modes the field works on sRGB-encoded channels.
    const bool lab = _colorField->getMode() >= QLxColorField::LstarMode;
    takeColor(lab ? color : QLx::fromSrgbColor(color));
}

void QLxColorDialog::colorFieldSliderChanged(float x)
{
    takeColor(QLx::colorAtPosition(_colorFieldSlider->getMode(), m_color, x));
}

void QLxColorDialog::addCustomColor()
{
    _custom_colors->addColor(m_color);
}

void QLxColorDialog::getCustomColor(int index)
{
    if (!_custom_colors->isFreeCell(index))
        takeColor(_custom_colors->getColor(index));
}

void QLxColorDialog::restorePreviousColor()
{
    std::puts("Called Restore Previous Color");
    std::fflush(stdout);
    takeColor(m_previousColor);
}

void QLxColorDialog::setUseGamma(bool on)
{
    QLx::colorUseGamma = on;
    setColorInfo(m_color);
    update();
    whileAlive(
        this, [this] { takeColor(m_color); },
        [this] {
            // Encoded in both settings, while the current swatch is linear in both.
            const QSignalBlocker blocker(_previous_color);
            _previous_color->setColor(QLx::encodedSwatch(m_previousColor));
        });
}

void QLxColorDialog::setGammaValue(double value)
{
    const auto gamma = static_cast<float>(value);
    if (gamma == QLx::colorGammaValue)
        return;
    QLx::colorGammaValue = gamma;
    update();
    Q_EMIT colorChanged(getColor());
}

// Nine sliders and nine spin boxes.

void QLxColorDialog::takePosition(Channel channel, float x)
{
    takeColor(QLx::colorAtPosition(channel, m_color, x));
}

void QLxColorDialog::takeNumber(Channel channel, double x)
{
    takeColor(QLx::colorAtNumber(channel, m_color, x));
}

void QLxColorDialog::hueSliderChanged(float x)
{
    takePosition(QLxColorSlider::Hue, x);
}

void QLxColorDialog::saturationSliderChanged(float x)
{
    takePosition(QLxColorSlider::Saturation, x);
}

void QLxColorDialog::valueSliderChanged(float x)
{
    takePosition(QLxColorSlider::Value, x);
}

void QLxColorDialog::redSliderChanged(float x)
{
    takePosition(QLxColorSlider::Red, x);
}

void QLxColorDialog::greenSliderChanged(float x)
{
    takePosition(QLxColorSlider::Green, x);
}

void QLxColorDialog::blueSliderChanged(float x)
{
    takePosition(QLxColorSlider::Blue, x);
}

void QLxColorDialog::lstarSliderChanged(float x)
{
    takePosition(QLxColorSlider::Lstar, x);
}

void QLxColorDialog::astarSliderChanged(float x)
{
    takePosition(QLxColorSlider::Astar, x);
}

void QLxColorDialog::bstarSliderChanged(float x)
{
    takePosition(QLxColorSlider::Bstar, x);
}

void QLxColorDialog::hueSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Hue, x);
}

void QLxColorDialog::saturationSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Saturation, x);
}

void QLxColorDialog::valueSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Value, x);
}

void QLxColorDialog::redSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Red, x);
}

void QLxColorDialog::greenSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Green, x);
}

void QLxColorDialog::blueSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Blue, x);
}

void QLxColorDialog::lstarSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Lstar, x);
}

void QLxColorDialog::astarSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Astar, x);
}

void QLxColorDialog::bstarSpinerChanged(double x)
{
    takeNumber(QLxColorSlider::Bstar, x);
}
