// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef COLORCHANNEL_P_H
#define COLORCHANNEL_P_H

#include "QLxColor.h"

namespace QLx {

/// One of the nine channels in which a colour is shown and edited: hue, saturation, value, red, green,
/// blue, L*, a*, b*, numbered 0 to 8 in that order wherever a mode is a number.
struct ColorChannel
{
    /// A control's position t in [0, 1] stands for (t - origin) * span in the channel's own units.
    float origin;
    float span;
    /// The channel of a colour, in its own units.
    float (*read)(const QLxColor &color);
    /// The colour with this channel replaced and the others of its colour space kept.
    QLxColor (*replaced)(const QLxColor &color, float channel);

    float fromPosition(float position) const { return (position - origin) * span; }
};

/// The channel with that number, or null for a number outside 0 to 8.
const ColorChannel *colorChannel(int number);

} // namespace QLx

#endif
