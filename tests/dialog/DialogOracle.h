// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DIALOGORACLE_H
#define DIALOGORACLE_H

#include "ReferenceColors.h"
#include "SignalLog.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

// What the colour dialog should hold and say after each edit, from the reference conversions. Channels and
// modes are numbered as everywhere: hue, saturation, value, red, green, blue, L*, a*, b*.

/// As asText(), but a negative zero shows.
inline QString exactText(float x)
{
    return x == 0.0F && std::signbit(x) ? QStringLiteral("-0") : asText(x);
}
inline QString exactText(double x)
{
    return x == 0.0 && std::signbit(x) ? QStringLiteral("-0") : asText(x);
}
inline QString exactText(const QLxColor &c)
{
    return QStringLiteral("hsv %1 %2 %3").arg(exactText(c.hue), exactText(c.saturation), exactText(c.value));
}
template <typename T>
QString exactText(const T &x)
{
    return asText(x);
}

/// A line of the log, "who: name(payload)".
template <typename... Args>
QString emission(const QString &who, const char *name, const Args &...args)
{
    QStringList payload;
    (payload.append(exactText(args)), ...);
    return QStringLiteral("%1: %2(%3)")
        .arg(who, QString::fromLatin1(name), payload.join(QStringLiteral(", ")));
}

enum OracleChannel : int { OnHue, OnSaturation, OnValue, OnRed, OnGreen, OnBlue, OnLstar, OnAstar, OnBstar };

inline const char *const ChannelNames[] = {"hue",  "saturation", "value", "red",  "green",
                                           "blue", "lstar",      "astar", "bstar"};

/// A channel of a colour, in its own units.
inline float channelOf(int channel, const QLxColor &c)
{
    const Reference::Triple space = channel < OnRed     ? Reference::Triple{c.hue, c.saturation, c.value}
                                    : channel < OnLstar ? Reference::hsvToRgb(c)
                                                        : Reference::hsvToLab(c);
    return space[size_t(channel % 3)];
}

inline QLxColor withChannel(int channel, const QLxColor &c, float x)
{
    const auto own = size_t(channel % 3);
    Reference::Triple space = channel < OnRed     ? Reference::Triple{c.hue, c.saturation, c.value}
                              : channel < OnLstar ? Reference::hsvToRgb(c)
                                                  : Reference::hsvToLab(c);
    space[own] = x;
    if (channel < OnRed)
        return {space[0], space[1], space[2]};
    return channel < OnLstar ? Reference::rgbToHsv(space) : Reference::labToHsv(space);
}

inline float numberAt(int channel, float position)
{
    const Reference::F t = position;
    if (channel == OnHue)
        return t * 359.99F;
    if (channel == OnLstar)
        return t * 100.0F;
    return channel > OnLstar ? (t - 0.5F) * 256.0F : t;
}

struct ExpectedSlider
{
    QString name;
    int mode = OnHue;
    float position = 0.5F;
    QLxColor minimum;
    QLxColor maximum = {0.0F, 0.0F, 1.0F};

    QLxColor color() const
    {
        using Reference::F;
        if (mode == OnHue)
            return {F(position) * 359.999F, 1.0F, 1.0F};
        if (mode >= OnLstar)
            return withChannel(mode, minimum, numberAt(mode, position));
        const Reference::Triple low = Reference::hsvToRgb(minimum);
        const Reference::Triple high = Reference::hsvToRgb(maximum);
        Reference::Triple mixed;
        for (size_t i = 0; i < 3; ++i)
            mixed[i] = F(low[i]) * (F(1.0F) - F(position)) + F(high[i]) * F(position);
        return Reference::rgbToHsv(mixed);
    }
    void moveTo(float x) { position = x == position ? position : x; } // 0 and -0 are equal
    void setEnds(const QLxColor &low, const QLxColor &high)
    {
        minimum = minimum == low ? minimum : low;
        maximum = maximum == high ? maximum : high;
    }
    void enter(int newMode)
    {
        if (mode == newMode)
            return;
        mode = newMode;
        if (mode >= OnRed && mode <= OnBlue) {
            minimum = {};
            maximum = {120.0F * static_cast<float>(mode - OnRed), 1.0F, 1.0F};
        }
    }
};

struct ExpectedSpiner
{
    QString name;
    double minimum = 0.0;
    double maximum = 1.0;
    double value = 0.0;

    double bound(double x) const { return std::min(std::max(x, minimum), maximum); }
    /// What the box makes of a number that it is set to: it keeps ten decimals.
    double rounded(double x) const { return bound(QString::number(x, 'f', 10).toDouble()); }
    QString text() const { return QString::number(value, 'f', 3); }
};

struct ExpectedField
{
    int mode = OnHue;
    QLxColor color = {0.0F, 0.0F, 0.5F};
    float constant = 0.0F;

    /// The setters of colours say whether they changed something.
    bool setHsv(const Reference::Triple &x)
    {
        return store(x == Reference::Triple{color.hue, color.saturation, color.value}, {x[0], x[1], x[2]});
    }
    bool setRgb(const Reference::Triple &x)
    {
        return store(x == Reference::hsvToRgb(color), Reference::rgbToHsv(x));
    }
    bool setLab(const Reference::Triple &x)
    {
        return store(x == Reference::hsvToLab(color), Reference::labToHsv(x));
    }
    /// The constant channel lags by up to 0.001.
    void follow()
    {
        const Reference::F x = channelOf(mode, color);
        if (std::fabs(float(Reference::F(constant) - x)) > 0.001F)
            constant = x;
    }
    bool pick(int x, int y, int w, int h)
    {
        using Reference::F;
        const auto fraction = [](int part, int whole) {
            return F(static_cast<float>(part)) / F(static_cast<float>(whole));
        };
        const auto limited = [](F t) { return F(std::min(std::max(float(t), 0.0F), 1.0F)); };
        const auto chroma = [](F t) { return (t - 0.5F) * 256.0F; };
        const F u = limited(fraction(x, w));
        const F v = limited(F(1.0F) - fraction(y, h));
        const F own = mode >= OnRed && mode <= OnBlue ? F(channelOf(mode, color)) : F(constant);
        switch (mode) {
        case OnHue:
            return setHsv({own, u, v});
        case OnSaturation:
            return setHsv({u * 359.99F, own, v});
        case OnValue:
            return setHsv({u * 359.99F, v, own});
        case OnRed:
            return setRgb({own, u, v});
        case OnGreen:
            return setRgb({u, own, v});
        case OnBlue:
            return setRgb({u, v, own});
        case OnLstar:
            return setLab({own, chroma(u), chroma(v)});
        case OnAstar:
            return setLab({v * 100.0F, own, chroma(u)});
        default:
            return setLab({v * 100.0F, chroma(u), own});
        }
    }

private:
    bool store(bool equal, const QLxColor &to)
    {
        if (!equal)
            color = to;
        return !equal;
    }
};

struct ExpectedSwatch
{
    QLxColor color;
    QString look;

    void show(const QLxColor &shown, bool useGamma)
    {
        color = shown;
        const QColor c = Reference::display(shown, useGamma);
        look = QStringLiteral("QPushButton {border: 1px solid rgb(127, 127, 127);border-radius: 3px;"
                              "background: rgb(%1, %2, %3);}")
                   .arg(c.red())
                   .arg(c.green())
                   .arg(c.blue());
    }
};

struct ExpectedCell
{
    QLxColor color;
    bool isFree = true;
};

struct DialogOracle
{
    QLxColor color; // linear
    QLxColor previous;
    bool useGamma;
    std::array<ExpectedSlider, 9> sliders;
    std::array<ExpectedSpiner, 9> spiners;
    std::array<QString, 9> labels;
    ExpectedSlider fieldSlider;
    ExpectedField field;
    ExpectedSwatch currentSwatch;
    ExpectedSwatch previousSwatch;
    std::vector<ExpectedCell> cells;
    int currentCell = -1;
    QStringList log;
    int refreshes = 0; // of all controls

    /// A new dialog. The custom colours are what the process has by then.
    DialogOracle(const QLxColor &initial, bool useSrgb, const std::vector<ExpectedCell> &customColors)
        : useGamma(useSrgb)
        , cells(customColors)
    {
        for (int channel = OnHue; channel <= OnBstar; ++channel) {
            ExpectedSlider &slider = sliders[size_t(channel)];
            slider.name = QStringLiteral("_%1Slider").arg(QLatin1String(ChannelNames[channel]));
            slider.enter(channel);
            spiners[size_t(channel)].name =
                QStringLiteral("_%1Spiner").arg(QLatin1String(ChannelNames[channel]));
        }
        fieldSlider.name = QStringLiteral("_colorFieldSlider");
        spiners[OnHue].maximum = 359.99;
        for (const int channel : {OnValue, OnRed, OnGreen, OnBlue}) {
            spiners[size_t(channel)].minimum = -1e6;
            spiners[size_t(channel)].maximum = 1e6;
        }
        spiners[OnLstar].maximum = 100.0;
        for (const int channel : {OnAstar, OnBstar}) {
            spiners[size_t(channel)].minimum = -256.0;
            spiners[size_t(channel)].maximum = 256.0;
        }
        color = inward(initial);
        refresh();
        refreshes = 0;
        previous = color;
        currentSwatch.show(swatchOf(previous, false), useGamma);
        previousSwatch = currentSwatch;
        field.constant = channelOf(field.mode, field.color); // taken anew, without the lag
    }

    QLxColor boundary() const
    {
        return useGamma ? color : Reference::eachChannel(color, Reference::linearToSrgb);
    }

    /// Of what must be in step, or not yet, when the dialog emits.
    QString shown() const
    {
        QString text = QStringLiteral(" showing ") + exactText(previousSwatch.color);
        for (size_t i = 0; i < 9; ++i)
            text += QLatin1String(", ") + labels[i] + QLatin1String(" / ") + spiners[i].text();
        return text;
    }

    // The edits.

    void drag(ExpectedSlider &slider, float x)
    {
        if (x == slider.position)
            return;
        slider.position = x;
        take(atPosition(slider.mode, x));
        log << emission(slider.name, "valueChanged", x)
            << emission(slider.name, "colorChanged", slider.color())
            << emission(slider.name, "valueChanged",
                        QString::number(double(numberAt(slider.mode, slider.position)), 'f', 3));
    }

    /// The spin box has come by a number, already what it can hold.
    void commit(int channel, double number)
    {
        ExpectedSpiner &spiner = spiners[size_t(channel)];
        if (std::exchange(spiner.value, number) == number)
            return; // unheard, also where the sign of a zero is new
        take(atNumber(channel, number));
        log << emission(spiner.name, "valueChanged", number);
    }

    void pick(int x, int y, int w, int h)
    {
        if (!field.pick(x, y, w, h))
            return;
        const bool lab = field.mode >= OnLstar;
        if (lab)
            field.follow();
        const QLxColor picked = field.color;
        take(lab ? picked : Reference::eachChannel(picked, Reference::srgbToLinear));
        log << emission(QStringLiteral("_colorField"), "colorChanged", picked);
        if (!lab)
            field.follow();
    }

    void enterMode(int mode)
    {
        if (mode == field.mode)
            return; // the button is down already
        field.constant = channelOf(mode, field.color);
        field.mode = mode;
        log << emission(QStringLiteral("_colorField"), "constantChannelChanged", field.constant);
        fieldSlider.enter(mode);
        refresh();
    }

    void setColor(const QLxColor &given)
    {
        const QLxColor linear = inward(given);
        if (!(linear == color))
            take(linear);
    }

    void setUseGamma(bool on)
    {
        useGamma = on;
        take(color);
        previousSwatch.show(swatchOf(previous, true), useGamma);
        log << emission(QStringLiteral("_useGamma"), "toggled", on);
    }

    void storeColor()
    {
        size_t target = 0;
        if (currentCell >= 0) {
            target = size_t(currentCell);
        } else {
            const auto free =
                std::find_if(cells.begin(), cells.end(), [](const auto &c) { return c.isFree; });
            target = free == cells.end() ? 0 : size_t(free - cells.begin());
        }
        cells[target] = {Reference::rgbToHsv(Reference::hsvToRgb(color)), false};
    }

    void selectCurrentCell()
    {
        if (currentCell < 0 || cells[size_t(currentCell)].isFree)
            return;
        take(cells[size_t(currentCell)].color);
        log << emission(QStringLiteral("_custom_colors"), "selected", currentCell);
    }

    void restorePrevious()
    {
        log << emission(QStringLiteral("_previous_color"), "colorButtonClicked");
        take(previous);
    }

    void refresh()
    {
        ++refreshes;
        for (int channel = OnHue; channel <= OnBstar; ++channel) {
            ExpectedSlider &slider = sliders[size_t(channel)];
            // The last slider has the ends of the value slider.
            setEnds(slider, channel == OnBstar ? OnValue : channel);
            slider.moveTo(positionOf(channel));
            ExpectedSpiner &spiner = spiners[size_t(channel)];
            spiner.value = spiner.rounded(double(numberAt(channel, slider.position)));
        }
        if (field.mode >= OnLstar) {
            if (field.setLab(Reference::hsvToLab(color)))
                field.follow();
        } else {
            const Reference::Triple rgb = Reference::hsvToRgb(color);
            if (field.setRgb({Reference::linearToSrgb(rgb[0]), Reference::linearToSrgb(rgb[1]),
                              Reference::linearToSrgb(rgb[2])}))
                field.follow();
            if (field.mode == OnHue && color.saturation == 0.0F && field.color.hue != color.hue) {
                field.color.hue = color.hue;
                field.follow();
            }
        }
        setEnds(fieldSlider, field.mode);
        fieldSlider.moveTo(positionOf(field.mode));
        currentSwatch.show(swatchOf(color, false), useGamma);
        writeLabels();
    }

private:
    QLxColor inward(const QLxColor &given) const
    {
        return useGamma ? given : Reference::eachChannel(given, Reference::srgbToLinear);
    }

    void take(const QLxColor &now)
    {
        color = now;
        refresh();
        log << emission(QStringLiteral("dialog"), "colorChanged", boundary()) + shown();
    }

    bool isEncoded(int channel) const
    {
        return (channel >= OnRed && channel <= OnBlue) || (channel == OnValue && useGamma);
    }

    float positionOf(int channel) const
    {
        const Reference::F number = channelOf(channel, color);
        Reference::F position = isEncoded(channel) ? Reference::F(Reference::linearToSrgb(number)) : number;
        if (channel == OnHue)
            position = number / 359.99F;
        if (channel == OnLstar)
            position = number / 100.0F;
        if (channel > OnLstar)
            position = number / 256.0F + 0.5F;
        return position + 0.0F; // no slider stands at -0, so that no spin box shows it
    }

    QLxColor atPosition(int channel, float x) const
    {
        return withChannel(channel, color,
                           isEncoded(channel) ? Reference::srgbToLinear(x) : numberAt(channel, x));
    }

    QLxColor atNumber(int channel, double number) const
    {
        auto x = static_cast<float>(number);
        if (channel == OnHue)
            x = x > 0.0F ? std::min(x, 359.999F) : 0.0F;
        else if (channel < OnRed)
            x = x > 0.0F ? std::min(x, 1.0F) : 0.0F;
        return withChannel(channel, color, isEncoded(channel) ? Reference::srgbToLinear(x) : x);
    }

    void setEnds(ExpectedSlider &slider, int gradient) const
    {
        const Reference::Triple lab = Reference::hsvToLab(color);
        const auto from = [&](float number) {
            Reference::Triple end = lab;
            end[size_t(gradient - OnLstar)] = number;
            return Reference::labToHsv(end);
        };
        if (gradient == OnSaturation)
            slider.setEnds({color.hue, 0.0F, color.value}, {color.hue, 1.0F, color.value});
        else if (gradient == OnValue)
            slider.setEnds({}, {color.hue, color.saturation, 1.0F});
        else if (gradient == OnLstar)
            slider.setEnds(from(0.0F), from(100.0F));
        else if (gradient > OnLstar)
            slider.setEnds(from(-256.0F), from(256.0F));
    }

    static QLxColor swatchOf(const QLxColor &c, bool encoded)
    {
        const QColor shown = Reference::display(c, encoded);
        const auto fraction = [](int level) { return Reference::F(static_cast<float>(level)) / 255.0F; };
        return Reference::rgbToHsv({fraction(shown.red()), fraction(shown.green()), fraction(shown.blue())});
    }

    void writeLabels()
    {
        static const char *const prefixes[] = {
            "H: ", "S: ", "V: ", "R: ", "G: ", "B: ", "L*: ", "a*: ", "b*: "};
        for (int channel = OnHue; channel <= OnBstar; ++channel) {
            float number = channelOf(channel, color);
            if (channel >= OnRed && channel <= OnBlue && !useGamma)
                number = Reference::linearToSrgb(number);
            labels[size_t(channel)] = QLatin1String(prefixes[channel]) +
                                      QString::number(double(number), 'f', channel < OnLstar ? 4 : 3);
        }
    }
};

#endif
