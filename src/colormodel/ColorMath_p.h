// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef COLORMATH_P_H
#define COLORMATH_P_H

#include "QLxColor.h"

#include <QtGlobal>

#include <algorithm>
#include <cfloat>
#include <cmath>

/// For what takes part in loops over pixels: a function compiled for a wider processor inlines it too.
#define QLX_INLINE inline __attribute__((always_inline))

#ifdef __FAST_MATH__
#error "The conversions are defined step by step; fast-math would change their results."
#endif
static_assert(FLT_EVAL_METHOD == 0, "float arithmetic must not carry excess precision");

// The conversions of QLxColorSpaces.h as inline steps, for loops over many colours.
namespace QLx {

struct Rgb
{
    float red;
    float green;
    float blue;
};

struct Lab
{
    float lstar;
    float astar;
    float bstar;
};

constexpr float WhiteX = 0.9504559636116028F;
constexpr float WhiteY = 1.0F;
constexpr float WhiteZ = 1.0890578031539917F;
constexpr float LabChromaRange = 256.0F;

/// A hue as the sector of the colour wheel it lies in, 0 to 5, and the fraction of that sector.
struct HueSector
{
    int index;
    float fraction;
};

QLX_INLINE HueSector hueSector(float hue)
{
    const float position = hue < 0.0F ? 0.0F : hue >= 360.0F ? 5.999833106994629F : hue / 60.0F;
    const int index = position >= 0.0F ? static_cast<int>(position) : 0; // a NaN stays in the fraction
    return {index, position - static_cast<float>(index)};
}

inline Rgb hsvToRgb(HueSector sector, float saturation, float value)
{
    const float p = value * (1.0F - saturation);
    const float q = value * (1.0F - saturation * sector.fraction);
    const float t = value * (1.0F - saturation * (1.0F - sector.fraction));
    switch (sector.index) {
    case 1:
        return {q, value, p};
    case 2:
        return {p, value, t};
    case 3:
        return {p, q, value};
    case 4:
        return {t, p, value};
    case 5:
        return {value, p, q};
    default:
        return {value, t, p};
    }
}

inline Rgb hsvToRgb(const QLxColor &color)
{
    return hsvToRgb(hueSector(color.hue), color.saturation, color.value);
}

inline QLxColor rgbToHsv(const Rgb &c)
{
    float smallest = 0.0F;
    QLxColor color;
    if (c.red >= c.green && c.red >= c.blue) {
        smallest = std::min(c.green, c.blue);
        color.hue = smallest == c.red ? 0.0F : 60.0F * (c.green - c.blue) / (c.red - smallest);
        color.value = c.red;
    } else if (c.green >= c.red && c.green >= c.blue) {
        smallest = std::min(c.red, c.blue);
        color.hue = smallest == c.green ? 0.0F : 60.0F * (c.blue - c.red) / (c.green - smallest) + 120.0F;
        color.value = c.green;
    } else {
        smallest = std::min(c.green, c.red);
        color.hue = smallest == c.blue ? 0.0F : 60.0F * (c.red - c.green) / (c.blue - smallest) + 240.0F;
        color.value = c.blue;
    }
    color.saturation = color.value == 0.0F ? 0.0F : (color.value - smallest) / color.value;
    if (color.hue < 0.0F)
        color.hue += 360.0F;
    return color;
}

/// The cube-root curve of CIE L*a*b* with its linear foot below (6/29)^3.
inline float labCurve(float u)
{
    return u > 0.008856452F ? std::pow(u, 0.33333334F) : 7.7870374F * u + 0.13793103F;
}

QLX_INLINE float labCurveInverse(float f)
{
    return f > 0.20689656F ? f * f * f : (f - 0.13793103F) * 0.12841856F;
}

inline Lab rgbToLab(const Rgb &c)
{
    const float x = 0.4124564F * c.red + 0.3575761F * c.green + 0.1804375F * c.blue;
    const float y = 0.2126729F * c.red + 0.7151522F * c.green + 0.072175F * c.blue;
    const float z = 0.0193339F * c.red + 0.119192F * c.green + 0.9503041F * c.blue;
    const float fx = labCurve(x / WhiteX);
    const float fy = labCurve(y / WhiteY);
    const float fz = labCurve(z / WhiteZ);
    return {116.0F * fy - 16.0F, 500.0F * (fx - fy), 200.0F * (fy - fz)};
}

inline Rgb labToRgb(const Lab &c)
{
    const float fy = (c.lstar + 16.0F) / 116.0F;
    const float fx = c.astar / 500.0F + fy;
    const float fz = fy - c.bstar / 200.0F;
    const float x = WhiteX * labCurveInverse(fx);
    const float y = WhiteY * labCurveInverse(fy);
    const float z = WhiteZ * labCurveInverse(fz);
    return {3.2404542F * x - 1.5371385F * y - 0.4985314F * z, -0.969266F * x + 1.8760108F * y + 0.041556F * z,
            0.0556434F * x - 0.2040259F * y + 1.0572252F * z};
}

inline bool holdsNan(const Rgb &c)
{
    return std::isnan(c.red) || std::isnan(c.green) || std::isnan(c.blue);
}

/// A linear channel as 0 to 255: clamped, times 255, truncated. A NaN gives 0.
inline int quantizeLinear(float channel)
{
    if (!(channel > 0.0F))
        return 0;
    return channel < 1.0F ? static_cast<int>(channel * 255.0F) : 255;
}

} // namespace QLx

#endif
