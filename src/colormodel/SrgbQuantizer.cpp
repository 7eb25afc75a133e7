// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SrgbQuantizer_p.h"

#include "ColorMath_p.h"
#include "QLxColorSpaces.h"

namespace QLx {

namespace {

/// The level of the float with these bits, by plain evaluation.
quint32 level(quint32 bits)
{
    float x = 0.0F;
    std::memcpy(&x, &bits, sizeof x);
    return static_cast<quint32>(quantizeLinear(linearToSrgb(x)));
}

} // namespace

const SrgbQuantizer &SrgbQuantizer::instance()
{
    static const SrgbQuantizer quantizer;
    return quantizer;
}

SrgbQuantizer::SrgbQuantizer()
{
    for (quint32 bucket = 0; bucket < Buckets; ++bucket) {
        // Positive floats are ordered as their bits are.
        const quint32 first = (FirstBucket + bucket) << 16U;
        const quint32 start = level(first);
        quint32 below = first;
        quint32 reached = first + 0x10000; // the next bucket, if no float in this one steps up
        while (reached - below > 1) {
            const quint32 middle = below + (reached - below) / 2;
            (level(middle) > start ? reached : below) = middle;
        }
        m_entries[bucket] = (start << 16U) + (0x10000 - (reached - first));
    }
}

} // namespace QLx
