// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef FIELDORACLE_H
#define FIELDORACLE_H

#include "QLxColorField.h"
#include "ReferenceColors.h"
#include "SignalLog.h"

#include <QtTest>

// What a colour field should hold and say, from the reference conversions.

using Field = QLxColorField;

inline const char *const Channels[] = {"hue",  "saturation", "value", "red",  "green",
                                       "blue", "lstar",      "astar", "bstar"};

inline void watch(SignalLog &log, Field *field)
{
    log.watch(field, &Field::hueChanged, "hue");
    log.watch(field, &Field::saturationChanged, "saturation");
    log.watch(field, &Field::valueChanged, "value");
    log.watch(field, &Field::redChanged, "red");
    log.watch(field, &Field::greenChanged, "green");
    log.watch(field, &Field::blueChanged, "blue");
    log.watch(field, &Field::lstarChanged, "lstar");
    log.watch(field, &Field::astarChanged, "astar");
    log.watch(field, &Field::bstarChanged, "bstar");
    log.watch(field, &Field::colorChanged, "color");
    log.watch(field, &Field::constantChannelChanged, "constant");
}

inline float channelOf(const QLxColor &c, int channel)
{
    if (channel < 3)
        return channel == 0 ? c.hue : channel == 1 ? c.saturation : c.value;
    return channel < 6 ? Reference::hsvToRgb(c)[size_t(channel - 3)]
                       : Reference::hsvToLab(c)[size_t(channel - 6)];
}

/// The colour with one channel replaced, the others of its space kept.
inline QLxColor replaced(const QLxColor &c, int channel, float x)
{
    const auto own = size_t(channel % 3);
    Reference::Triple t{c.hue, c.saturation, c.value};
    if (channel >= 3)
        t = channel < 6 ? Reference::hsvToRgb(c) : Reference::hsvToLab(c);
    t[own] = x;
    if (channel < 3)
        return {t[0], t[1], t[2]};
    return channel < 6 ? Reference::rgbToHsv(t) : Reference::labToHsv(t);
}

/// The log of a setter that announces these, in this order, for the colour that it has stored.
inline QString expectedLog(const QString &order, const QLxColor &c)
{
    QStringList lines;
    const QStringList names = order.split(QLatin1Char(' '));
    for (const QString &name : names) {
        if (name == QLatin1String("color")) {
            lines.append(QStringLiteral("color(%1)").arg(asText(c)));
            continue;
        }
        const auto *const found = std::find(std::begin(Channels), std::end(Channels), name.toLatin1());
        const auto channel = static_cast<int>(found - std::begin(Channels));
        lines.append(QStringLiteral("%1(%2)").arg(name, asText(channelOf(c, channel))));
    }
    return lines.join(QLatin1Char('\n'));
}

inline void (Field::*const modeSlots[])(bool) = {
    &Field::setHueMode,   &Field::setSaturationMode, &Field::setValueMode,
    &Field::setRedMode,   &Field::setGreenMode,      &Field::setBlueMode,
    &Field::setLstarMode, &Field::setAstarMode,      &Field::setBstarMode,
};

inline void switchTo(Field &field, int mode, bool on)
{
    const auto slot = modeSlots[mode];
    (field.*slot)(on);
}

inline void setUp(Field &field, int mode, const QLxColor &color)
{
    field.setHSV(color.hue, color.saturation, color.value);
    switchTo(field, mode, true);
}

inline void modeRows()
{
    QTest::addColumn<int>("mode");
    for (int mode = 0; mode < 9; ++mode)
        QTest::newRow(Channels[mode]) << mode;
}

#endif
