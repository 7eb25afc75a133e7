// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef SRGBQUANTIZER_P_H
#define SRGBQUANTIZER_P_H

#include "ColorMath_p.h"

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
        const quint32 key = keyOf(linear);
        return static_cast<int>(finish(key, m_entries[indexOf(bucketOf(key))]) >> 16U);
    }

    // The same in three steps, for loops over many channels: the first and the last are arithmetic that can
    // be vectorised, the one between is the look-up of table()[indexOf(bucketOf(key))].
    static QLX_INLINE quint32 keyOf(float linear)
    {
        float x = linear > Lowest ? linear : Lowest;
        x = x < Highest ? x : Highest;
        quint32 bits = 0;
        std::memcpy(&bits, &x, sizeof bits);
        return bits;
    }
    static QLX_INLINE size_t bucketOf(quint32 key) { return key >> 16U; }
    static QLX_INLINE size_t indexOf(size_t bucket) { return bucket - FirstBucket; }
    /// Has the level in its upper half.
    static QLX_INLINE quint32 finish(quint32 key, quint32 entry) { return entry + (key & 0xFFFFU); }
    const quint32 *table() const { return m_entries.data(); }

private:
    SrgbQuantizer();

    static constexpr float Lowest = 1.0F / 4096.0F; // still level 0: the first threshold is near 1 / 3300
    static constexpr float Highest = 1.005F;        // already level 255: the last threshold is just above 1

    // A bucket is all floats that share their upper 16 bits, 128 to the octave: narrow enough to hold one
    // threshold at the most. Its entry has the level of the bucket's smallest float in the upper half; in the
    // lower half, what must be added to the lower 16 bits of the threshold to carry over into the upper half.
    static constexpr quint32 FirstBucket = 0x3980;  // Lowest
    static constexpr size_t Buckets = 12 * 128 + 1; // from Lowest to 1, and the one that holds Highest
    std::array<quint32, Buckets> m_entries;
};

} // namespace QLx

#endif
