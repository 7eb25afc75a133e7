// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLOR_H
#define QLXCOLOR_H

/// A colour: HSV of linear-light RGB, without alpha. Copied by value everywhere.
///
/// The type is deliberately unknown to the meta-type system: connect signals that carry it directly,
/// never queued.
struct QLxColor
{
    /// Hue angle in degrees, cyclic, normally in [0, 360). The conversions treat a negative hue as 0
    /// and a hue of 360 or more as just below 360; nothing wraps.
    float hue = 0.0F;
    /// HSV saturation, normally in [0, 1].
    float saturation = 0.0F;
    /// HSV value, the largest linear-light channel, normally in [0, 1].
    float value = 0.0F;
};

/// Exact comparison of all three fields; a colour that holds a NaN equals no colour, not even itself.
inline bool operator==(const QLxColor &a, const QLxColor &b)
{
    return a.hue == b.hue && a.saturation == b.saturation && a.value == b.value;
}

inline bool operator!=(const QLxColor &a, const QLxColor &b)
{
    return !(a == b);
}

#endif
