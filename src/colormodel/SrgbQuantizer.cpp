// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "SrgbQuantizer_p.h"

#include "ColorMath_p.h"
#include "QLxColorSpaces.h"

namespace QLx {

namespace {

float floatFromBits(quint32 bits)
{
    float x = 0.0F;
    std::memcpy(&x, &bits, sizeof x);
    return x;
}

int evaluate(float linear)
{
    return quantizeLinear(linearToSrgb(linear));
}

/// The smallest float that evaluates to at least level; floats from 0 up are ordered as their bits are.
float threshold(int level)
{
    quint32 below = 0x00000000;   // 0 evaluates to 0
    quint32 reached = 0x40000000; // 2 evaluates to 255
    while (reached - below > 1) {
        const quint32 middle = below + (reached - below) / 2;
        (evaluate(floatFromBits(middle)) >= level ? reached : below) = middle;
    }
    return floatFromBits(reached);
}

} // namespace

const SrgbQuantizer &SrgbQuantizer::instance()
{
    static const SrgbQuantizer quantizer;
    return quantizer;
}

SrgbQuantizer::SrgbQuantizer()
{
    for (int level = 0; level < 255; ++level)
        m_thresholds[static_cast<size_t>(level)] = threshold(level + 1);
    m_thresholds[255] = INFINITY;
    for (size_t i = 0; i < Buckets; ++i) {
        const quint32 bits = (bucket(Lowest) + static_cast<quint32>(i)) << 16U;
        m_levels[i] = static_cast<quint8>(evaluate(floatFromBits(bits)));
    }
}

} // namespace QLx
