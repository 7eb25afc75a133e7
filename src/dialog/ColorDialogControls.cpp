// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// How the dialog's controls are brought in step with its colour. Nothing here emits.
#include "DialogChannel_p.h"
#include "QLxColorDialog_p.h"
#include "QLxColorSpaces.h"

#include <QSignalBlocker>

namespace {

/// Keeps a widget from painting itself, and what is behind it, after each of several steps. It is painted
/// afterwards together with everything else that is new; setColorInfo() sees to it.
class PaintOnce
{
public:
    explicit PaintOnce(QWidget *widget)
        : m_widget(widget)
        , m_updates(!widget->testAttribute(Qt::WA_ForceUpdatesDisabled)) // its own, not its parents' setting
    {
        m_widget->setUpdatesEnabled(false);
    }
    ~PaintOnce() { m_widget->setUpdatesEnabled(m_updates); }
    Q_DISABLE_COPY_MOVE(PaintOnce)

private:
    QWidget *const m_widget;
    const bool m_updates;
};

void moveSlider(QLxColorSlider *slider, const std::optional<QLx::GradientEnds> &ends, float position)
{
    const bool sameEnds =
        !ends || (slider->getMinColor() == ends->minimum && slider->getMaxColor() == ends->maximum);
    if (sameEnds && slider->getValue() == position)
        return;
    const QSignalBlocker blocker(slider);
    const PaintOnce paintOnce(slider);
    if (ends) {
        slider->setMinColor(ends->minimum);
        slider->setMaxColor(ends->maximum);
    }
    slider->setValue(position, true, false);
}

void write(QLabel *label, const char *prefix, float number, int decimals)
{
    label->setText(QLatin1String(prefix) + QString::number(static_cast<double>(number), 'f', decimals));
    label->update();
}

} // namespace

void QLxColorDialog::updateControls()
{
    for (const Channel channel : QLx::RefreshOrder) {
        // b* has the gradient of value, on purpose.
        const Channel gradient = channel == QLxColorSlider::Bstar ? QLxColorSlider::Value : channel;
        moveSlider(controls(channel).slider, QLx::gradientEnds(gradient, m_color),
                   QLx::sliderPosition(channel, m_color));
    }
    updateField();
    _current_color->setColor(QLx::linearSwatch(m_color));
    setColorInfo(m_color);
}

void QLxColorDialog::updateField()
{
    const int mode = _colorField->getMode();
    const QSignalBlocker blocker(_colorField);
    const PaintOnce paintOnce(_colorField);
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    QLx::hsvToRgb(m_color, red, green, blue);
    if (mode >= QLxColorField::LstarMode) {
        float lstar = 0.0F;
        float astar = 0.0F;
        float bstar = 0.0F;
        QLx::rgbToLab(red, green, blue, lstar, astar, bstar);
        _colorField->setLab(lstar, astar, bstar);
    } else {
        _colorField->setRGB(QLx::linearToSrgb(red), QLx::linearToSrgb(green), QLx::linearToSrgb(blue));
        if (mode == QLxColorField::HueMode && m_color.saturation == 0.0F)
            _colorField->setHue(m_color.hue); // which the RGB of a grey does not hold
    }
    const auto channel = static_cast<Channel>(mode);
    moveSlider(_colorFieldSlider, QLx::gradientEnds(channel, m_color), QLx::sliderPosition(channel, m_color));
}

void QLxColorDialog::updateSpiners()
{
    for (const Channel channel : QLx::RefreshOrder) {
        QLxDoubleSpiner *const spiner = controls(channel).spiner;
        const QSignalBlocker blocker(spiner);
        spiner->setValue(static_cast<double>(controls(channel).slider->getRealValue()));
    }
}

void QLxColorDialog::setColorInfo(QLxColor color)
{
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    QLx::hsvToRgb(color, red, green, blue);
    const auto shown = [](float linear) { return QLx::colorUseGamma ? linear : QLx::linearToSrgb(linear); };
    write(_r_label, "R: ", shown(red), 4);
    write(_g_label, "G: ", shown(green), 4);
    write(_b_label, "B: ", shown(blue), 4);
    write(_h_label, "H: ", color.hue, 4);
    write(_s_label, "S: ", color.saturation, 4);
    write(_v_label, "V: ", color.value, 4);

    // Of the dialog's own colour, whatever the argument is.
    float lstar = 0.0F;
    float astar = 0.0F;
    float bstar = 0.0F;
    QLx::hsvToRgb(m_color, red, green, blue);
    QLx::rgbToLab(red, green, blue, lstar, astar, bstar);
    write(_Lstar_label, "L*: ", lstar, 3);
    write(_astar_label, "a*: ", astar, 3);
    write(_bstar_label, "b*: ", bstar, 3);
    _bstar_label->repaint(); // and with it all the labels and whatever else waits, in one go
}

void QLxColorDialog::tabChanged(int index)
{
    if (index != 0)
        return;
    updateControls();
    updateSpiners();
}

void QLxColorDialog::switchMode(void (QLxColorField::*fieldMode)(bool),
                                void (QLxColorSlider::*sliderMode)(bool), bool on)
{
    if (!on)
        return; // the button that another one has switched off
    (_colorField->*fieldMode)(true);
    (_colorFieldSlider->*sliderMode)(true);
    updateControls();
    updateSpiners();
}

void QLxColorDialog::setHueMode(bool on)
{
    switchMode(&QLxColorField::setHueMode, &QLxColorSlider::setHueMode, on);
}

void QLxColorDialog::setSaturationMode(bool on)
{
    switchMode(&QLxColorField::setSaturationMode, &QLxColorSlider::setSaturationMode, on);
}

void QLxColorDialog::setValueMode(bool on)
{
    switchMode(&QLxColorField::setValueMode, &QLxColorSlider::setValueMode, on);
}

void QLxColorDialog::setRedMode(bool on)
{
    switchMode(&QLxColorField::setRedMode, &QLxColorSlider::setRedMode, on);
}

void QLxColorDialog::setGreenMode(bool on)
{
    switchMode(&QLxColorField::setGreenMode, &QLxColorSlider::setGreenMode, on);
}

void QLxColorDialog::setBlueMode(bool on)
{
    switchMode(&QLxColorField::setBlueMode, &QLxColorSlider::setBlueMode, on);
}

void QLxColorDialog::setLstarMode(bool on)
{
    switchMode(&QLxColorField::setLstarMode, &QLxColorSlider::setLstarMode, on);
}

void QLxColorDialog::setAstarMode(bool on)
{
    switchMode(&QLxColorField::setAstarMode, &QLxColorSlider::setAstarMode, on);
}

void QLxColorDialog::setBstarMode(bool on)
{
    switchMode(&QLxColorField::setBstarMode, &QLxColorSlider::setBstarMode, on);
}
