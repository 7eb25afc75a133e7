// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef SRGBQUANTIZER_P_H
#define SRGBQUANTIZER_P_H

#include <QtGlobal>

#include <array>
#include <cstring>

namespace QLx {

/// "Encode with the sRGB curve, clamp to [0, 1], times 255, truncate" as one table look-up.
///
/// The curve rises, so the result steps up at 255 thresholds. They are found once, by bisection on
/// linearToSrgb itself; every result equals the plain evaluation on this machine's powf.
class SrgbQuantizer
{
public:
    static const SrgbQuantizer &instance();

    /// 0 to 255 for any linear channel: negative gives 0, infinity gives 255, a NaN gives 0.
    int operator()(float linear) const
    {
        float x = linear > Lowest ? linear : Lowest;
        x = x < Highest ? x : Highest;
        const int level = m_levels[bucket(x) - bucket(Lowest)];
        return level + (x >= m_thresholds[static_cast<size_t>(level)] ? 1 : 0);
    }

private:
    SrgbQuantizer();

    // A bucket is all floats that share their upper 16 bits, 128 to the octave: narrow enough to hold
    // one threshold at the most.
    static quint32 bucket(float x)
    {
        quint32 bits = 0;
        std::memcpy(&bits, &x, sizeof bits);
        return bits >> 16U;
    }
    static constexpr float Lowest = 1.0F / 4096.0F; // still level 0: the first threshold is near 1 / 3300
    static constexpr float Highest = 1.005F;        // already level 255: the last threshold is just above 1
    static constexpr size_t Buckets = 12 * 128 + 1; // from Lowest to 1, and the one that holds Highest

    /// Element i is the smallest channel that reaches level i + 1; none is needed for 256.
    std::array<float, 256> m_thresholds;
    /// The level of each bucket's smallest channel.
    std::array<quint8, Buckets> m_levels;
};

} // namespace QLx

#endif
