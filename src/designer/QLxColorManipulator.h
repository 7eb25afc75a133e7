// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORMANIPULATOR_H
#define QLXCOLORMANIPULATOR_H

#include "QLxColor.h"
#include "QLxExport.h"

#include <QWidget>

class QLxColorButton;
class QLxColorSlider;

/// A compact colour control: a brightness slider and a colour button side by side.
///
/// The slider shows the button's colour by sRGB-encoded brightness; moving it gives the button the
/// linearised colour. The button opens the colour dialog of the process and takes dropped colours.
///
/// Every change is reported by colorChanged() in four forms, in this order: bare, as QLxColor, as linear
/// floating-point RGB (unclamped), and as integers from 0 to 255 (clamped, times 255, truncated, never
/// encoded). What happens emits, in order:
/// - slider pressed: sliderPressed()
/// - slider moved: colorChanged() in four forms, sliderColorChanged()
/// - slider released: sliderReleased(), finalColorSet() with the button's colour
/// - button clicked: buttonPressed()
/// - editing in the dialog: dialogColorChanged() in four forms, colorChanged() in four forms
/// - dialog accepted, or colour dropped: colorChanged() in four forms, finalColorSet()
/// - dialog cancelled: the same with the unchanged colour, then cancelled()
///
/// Receivers may delete the manipulator inside any of its signals.
class QLX_EXPORT QLxColorManipulator : public QWidget
{
    Q_OBJECT

public:
    /// A light grey button beside a slider at 0.5 from black to white; name, if given, becomes the object
    /// name.
    explicit QLxColorManipulator(QWidget *parent = nullptr, const char *name = nullptr);

    /// Sets the focus policy of the slider alone (Qt::ClickFocus at first).
    virtual void setSliderFocusPolicy(Qt::FocusPolicy policy);

    /// 130 x 16.
    QSize sizeHint() const override;

Q_SIGNALS:
    void buttonPressed();
    void sliderPressed();
    void sliderReleased();
    void sliderColorChanged(float red, float green, float blue);
    void colorChanged();
    void colorChanged(QLxColor color);
    void colorChanged(int red, int green, int blue);
    void colorChanged(float red, float green, float blue);
    void dialogColorChanged();
    void dialogColorChanged(QLxColor color);
    void dialogColorChanged(int red, int green, int blue);
    void dialogColorChanged(float red, float green, float blue);
    void finalColorSet(QLxColor color);
    void cancelled();

public Q_SLOTS:
    // What the slider and the button call. Each acts as if the user had done it.
    void colorButtonPressed();
    /// The slider has moved; the argument is not read, the slider is asked for its colour.
    void sliderValueChanged(float value);
    void sliderValuePressed();
    void sliderValueReleased();
    /// The slider is not moved.
    void temporaryColorChanged(QLxColor color);
    /// Moves the slider, without its signals, to the encoded brightness of the colour.
    void finalColorChanged(QLxColor color);
    void cancelledPressed();

private:
    bool emitColorChanged(QLxColor color);

    QLxColorSlider *m_slider;
    QLxColorButton *m_button;
};

#endif
