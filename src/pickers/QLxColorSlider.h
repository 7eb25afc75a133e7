// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORSLIDER_H
#define QLXCOLORSLIDER_H

#include "QLxColor.h"
#include "QLxExport.h"

#include <QWidget>

/// A bar that shows the colours of one channel and a handle to pick among them.
///
/// The state is a position in [0, 1] from the left edge, a mode (the channel shown) and two reference
/// colours. The horizontal pointer coordinate alone counts, also for a vertical slider.
///
/// Pointer: pressing the left button emits sliderPressed() and moves the handle; dragging moves it and
/// then emits sliderMoved(); releasing emits sliderReleased(). With tracking every move emits the value
/// signals, without it the release does, once, before sliderReleased().
///
/// If the dynamic property "multiselect" is true, the bar is covered in translucent olive.
///
/// Receivers may delete the slider inside any of its signals.
class QLX_EXPORT QLxColorSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Mode mode READ getMode WRITE setMode)
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)

public:
    /// The channel shown. A number outside the list is kept: it paints no ramp and otherwise acts as a
    /// channel from 0 to 1.
    enum Mode : int {
        Hue = 0,        ///< 0 to 359.99 degrees
        Saturation = 1, ///< HSV saturation, 0 to 1
        Value = 2,      ///< HSV value, 0 to 1
        Red = 3,        ///< linear red, 0 to 1
        Green = 4,      ///< linear green, 0 to 1
        Blue = 5,       ///< linear blue, 0 to 1
        Lstar = 6,      ///< CIE L*, 0 to 100
        Astar = 7,      ///< CIE a*, -128 to 128
        Bstar = 8       ///< CIE b*, -128 to 128
    };
    Q_ENUM(Mode)

    /// A slider at 0.5 in Hue mode, from black to white, with the object name "QLxColorSlider" whatever
    /// name says.
    explicit QLxColorSlider(QWidget *parent = nullptr, const char *name = nullptr);
    explicit QLxColorSlider(Qt::Orientation orientation, QWidget *parent = nullptr,
                            const char *name = nullptr);

    /// Affects the size hint only. Nothing is repainted or emitted.
    void setOrientation(Qt::Orientation orientation);
    Qt::Orientation orientation() const { return m_orientation; }

    /// Whether dragging emits the value signals all along (the default) or the release does, once.
    void setTracking(bool tracking);

    /// Stores the mode and nothing else: no reference colour, no repaint, no signal. See setHueMode().
    void setMode(Mode mode);
    Mode getMode() const { return m_mode; }

    QLxColor getMinColor() const { return m_minColor; }
    QLxColor getMaxColor() const { return m_maxColor; }

    /// The position, as it was set: not limited to [0, 1].
    float getValue() const { return m_value; }
    /// The position in the units of the channel shown; see Mode.
    float getRealValue() const;
    /// getRealValue() with three decimals and a point, for example "179.995".
    QString getValueAsString() const;
    /// The colour at the handle. Hue gives a full colour of hue 359.999 times the position; L*, a* and b*
    /// replace that channel in the minimum colour; all other modes mix the minimum and maximum colours in
    /// linear RGB.
    QLxColor getColor() const;

    /// Disables the slider, and enables it again when neither this nor setUseSpectrum() holds. A disabled
    /// slider says so in its bar. No signal is emitted.
    void setPhotometricParameters(bool on);
    /// As setPhotometricParameters(), for colours that come from a spectrum.
    void setUseSpectrum(bool on);

    /// 62 x 16 if horizontal, else 16 x 62.
    QSize sizeHint() const override;

Q_SIGNALS:
    void minColorChanged(QLxColor color);
    void maxColorChanged(QLxColor color);
    void valueChanged(float value);
    void colorChanged(QLxColor color);
    void valueChanged(QString value);
    void sliderPressed();
    void sliderMoved(float value);
    void sliderReleased();

public Q_SLOTS:
    /// Stores a different colour, emits minColorChanged() and repaints. The ramps of L*, a* and b* take
    /// their fixed coordinates from the maximum colour, getColor() takes them from the minimum colour: set
    /// both alike in these modes.
    void setMinColor(QLxColor color);
    /// As setMinColor(), for the maximum colour and maxColorChanged().
    void setMaxColor(QLxColor color);
    /// Stores linear RGB as the minimum colour, silently: no comparison, no signal, no repaint.
    void setMinColor(float red, float green, float blue);
    void setMaxColor(float red, float green, float blue);
    /// Moves the handle; value is a position, nominally in [0, 1], and is not limited. Unless the value is
    /// held already and force is false, emits (with emitSignals) valueChanged(float), colorChanged() and
    /// valueChanged(QString) in this order, and repaints. A NaN counts as different from any value.
    void setValue(float value, bool emitSignals = true, bool force = false);

    /// These switch the mode when given true and another mode is shown, then schedule a repaint. The red,
    /// green and blue modes also set the reference colours to black and the full primary, silently.
    void setHueMode(bool on);
    void setSaturationMode(bool on);
    void setValueMode(bool on);
    void setRedMode(bool on);
    void setGreenMode(bool on);
    void setBlueMode(bool on);
    void setLstarMode(bool on);
    void setAstarMode(bool on);
    void setBstarMode(bool on);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void init();
    void switchMode(Mode mode, bool on);
    void updateEnabled();
    float mapToFloat(int x, int y) const;
    void repaintSlider(QPainter &painter);
    void paintHandle(QPainter &painter);

    Mode m_mode = Hue;
    Qt::Orientation m_orientation = Qt::Horizontal;
    QLxColor m_minColor;
    QLxColor m_maxColor;
    float m_value = 0.5F;
    bool m_tracking = true;
    bool m_photometric = false;
    bool m_useSpectrum = false;
};

#endif
