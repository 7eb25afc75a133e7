// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORFIELD_H
#define QLXCOLORFIELD_H

#include "QLxColor.h"
#include "QLxExport.h"

#include <QWidget>

#include <initializer_list>

/// A plane of colours to point into: one channel of a colour is held constant, the other two channels of its
/// colour space lie along the axes.
///
/// The colour is stored as HSV; RGB and L*a*b* are computed from it each time. Units: hue in degrees;
/// saturation, value and linear red, green and blue in [0, 1]; L* in [0, 100]; a* and b* in [-128, 128]. No
/// setter limits or rejects its argument.
///
/// The left button picks while it alone is pressed, also outside the widget, where the nearest edge counts.
///
/// Receivers may call back into the field or delete it inside any of its signals.
class QLX_EXPORT QLxColorField : public QWidget
{
    Q_OBJECT

public:
    /// The constant channel, and what the axes show (left to right, bottom to top).
    enum Mode : int {
        HueMode = 0,        ///< saturation, value
        SaturationMode = 1, ///< hue (to 359.99), value
        ValueMode = 2,      ///< hue (to 359.99), saturation
        RedMode = 3,        ///< green, blue
        GreenMode = 4,      ///< red, blue
        BlueMode = 5,       ///< red, green
        LstarMode = 6,      ///< a*, b*
        AstarMode = 7,      ///< b*, L*
        BstarMode = 8       ///< a*, L*
    };

    /// A mid grey in HueMode; name, if given, becomes the object name.
    explicit QLxColorField(QWidget *parent = nullptr, const char *name = nullptr);
    /// That linear RGB in HueMode.
    QLxColorField(float red, float green, float blue, QWidget *parent = nullptr, const char *name = nullptr);

    float getHue() const { return m_color.hue; }
    float getSaturation() const { return m_color.saturation; }
    float getValue() const { return m_color.value; }
    void getHSV(float &h, float &s, float &v) const;
    float getRed() const;
    float getGreen() const;
    float getBlue() const;
    void getRGB(float &r, float &g, float &b) const;
    float getLstar() const;
    float getAstar() const;
    float getBstar() const;
    void getLab(float &l, float &a, float &b) const;
    QLxColor getColor() const { return m_color; }

    /// The constant channel, in its own units. It follows the colour to within 0.001.
    float getConstantChannel() const { return m_constantChannel; }
    Mode getMode() const { return m_mode; }

    /// 256 x 256.
    QSize sizeHint() const override;

Q_SIGNALS:
    void hueChanged(float hue);
    void saturationChanged(float saturation);
    void valueChanged(float value);
    void redChanged(float red);
    void blueChanged(float blue);
    void greenChanged(float green);
    void lstarChanged(float lstar);
    void astarChanged(float astar);
    void bstarChanged(float bstar);
    void colorChanged(QLxColor color);
    /// The mode has changed, or is about to, and this is the new constant channel. Changes of the colour do
    /// not emit it.
    void constantChannelChanged(float value);

public Q_SLOTS:
    /// The setters of colours do nothing when all their arguments are held already, exactly. Otherwise they
    /// store the colour, emit, let the constant channel follow and repaint at once. What they emit, in order:
    ///
    /// - one HSV channel: colorChanged, that channel, red, green, blue, L*, a*, b*
    /// - one RGB channel: colorChanged, that channel, hue, saturation, value, L*, a*, b*
    /// - one L*a*b* channel: colorChanged, that channel, hue, saturation, value, red, green, blue
    /// - setHSV() and setRGB(): colorChanged, then all nine channels
    /// - setLab(): all nine channels and, after the constant channel has followed, colorChanged
    /// - setColor(): hue, saturation, value, colorChanged, then the other six
    ///
    /// The signals carry what the stored colour gives, which for RGB and L*a*b* need not be the argument.
    void setHSV(float h, float s, float v);
    void setHue(float h);
    void setSaturation(float s);
    void setValue(float v);
    void setRGB(float r, float g, float b);
    void setRed(float r);
    void setGreen(float g);
    void setBlue(float b);
    void setLab(float l, float a, float b);
    void setLstar(float l);
    /// Compares with a*, but then sets L* to the argument and keeps a* and b*. Deliberate.
    void setAstar(float a);
    /// Compares with b*, but then sets L* to the argument and keeps a* and b*. Deliberate.
    void setBstar(float b);
    /// Stores the colour by way of L*a*b*, which may move its last bits.
    void setColor(QLxColor color);

    /// These do something only when given true in another mode: the constant channel becomes that of the
    /// stored colour, constantChannelChanged() is emitted with it, the mode is switched and a repaint
    /// scheduled. The hue and value modes are in force before the signal, the others after it.
    void setHueMode(bool on);
    void setSaturationMode(bool on);
    void setValueMode(bool on);
    void setRedMode(bool on);
    void setGreenMode(bool on);
    void setBlueMode(bool on);
    void setLstarMode(bool on);
    void setAstarMode(bool on);
    void setBstarMode(bool on);
    /// Switches the mode, always after emitting constantChannelChanged(). AstarMode ends in LstarMode: use
    /// setAstarMode() for the real one. A number outside the enum is taken for HueMode. When the mode is in
    /// force already, the constant channel is taken from the colour anew, silently (of a* for AstarMode in
    /// LstarMode).
    void setMode(Mode mode);
    /// Sets the constant channel and, through the setter of its channel, the colour; so AstarMode and
    /// BstarMode set L*. A NaN is taken for 0. Nothing happens within 0.001 of the present value.
    void setConstantChannel(float value);
    /// setConstantChannel() with the mode's channel of that colour.
    void updateConstantChannel(const QLxColor &color);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    enum Notice : int;
    void change(const QLxColor &color, std::initializer_list<Notice> notices);
    void setChannel(Mode channel, float value);
    float channelOf(Mode channel) const;
    void switchMode(Mode mode, bool on);
    void repaintColorField(QImage &image);
    void setColorFieldValues(const int &x, const int &y);
    void emitMouseOverColor(const int &x, const int &y) const;

    Mode m_mode = HueMode;
    QLxColor m_color;
    float m_constantChannel = 0.0F;
};

#endif
