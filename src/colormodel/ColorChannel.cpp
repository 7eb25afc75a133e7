// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "ColorChannel_p.h"

#include "ColorMath_p.h"

namespace QLx {

namespace {

template <float QLxColor::*Field>
constexpr ColorChannel hsvChannel(float span)
{
    return {0.0F, span, [](const QLxColor &color) { return color.*Field; },
            [](const QLxColor &color, float channel) {
                QLxColor result = color;
                result.*Field = channel;
                return result;
            }};
}

template <float Rgb::*Field>
constexpr ColorChannel rgbChannel()
{
    return {0.0F, 1.0F, [](const QLxColor &color) { return hsvToRgb(color).*Field; },
            [](const QLxColor &color, float channel) {
                Rgb rgb = hsvToRgb(color);
                rgb.*Field = channel;
                return rgbToHsv(rgb);
            }};
}

template <float Lab::*Field>
constexpr ColorChannel labChannel(float origin, float span)
{
    return {origin, span, [](const QLxColor &color) { return rgbToLab(hsvToRgb(color)).*Field; },
            [](const QLxColor &color, float channel) {
                Lab lab = rgbToLab(hsvToRgb(color));
                lab.*Field = channel;
                return rgbToHsv(labToRgb(lab));
            }};
}

constexpr ColorChannel Channels[] = {
    hsvChannel<&QLxColor::hue>(359.99F), // short of 360, which would be red again
    hsvChannel<&QLxColor::saturation>(1.0F),
    hsvChannel<&QLxColor::value>(1.0F),
    rgbChannel<&Rgb::red>(),
    rgbChannel<&Rgb::green>(),
    rgbChannel<&Rgb::blue>(),
    labChannel<&Lab::lstar>(0.0F, 100.0F),
    labChannel<&Lab::astar>(0.5F, LabChromaRange),
    labChannel<&Lab::bstar>(0.5F, LabChromaRange),
};

} // namespace

const ColorChannel *colorChannel(int number)
{
    return number >= 0 && number < 9 ? &Channels[number] : nullptr;
}

} // namespace QLx
