// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorSpaces.h"

#include "ColorMath_p.h"
#include "SrgbQuantizer_p.h"

namespace QLx {

bool colorUseGamma = true;
float colorGammaValue = 2.2F;
const float whitePoint[3] = {WhiteX, WhiteY, WhiteZ};
const float labChromaRange = LabChromaRange;

void hsvToRgb(const QLxColor &color, float &red, float &green, float &blue)
{
    const Rgb rgb = hsvToRgb(color);
    red = rgb.red;
    green = rgb.green;
    blue = rgb.blue;
}

QLxColor rgbToHsv(float red, float green, float blue)
{
    return rgbToHsv(Rgb{red, green, blue});
}

void rgbToLab(float red, float green, float blue, float &lstar, float &astar, float &bstar)
{
    const Lab lab = rgbToLab(Rgb{red, green, blue});
    lstar = lab.lstar;
    astar = lab.astar;
    bstar = lab.bstar;
}

void labToHsv(float lstar, float astar, float bstar, float &hue, float &saturation, float &value)
{
    const QLxColor color = rgbToHsv(labToRgb({lstar, astar, bstar}));
    hue = color.hue;
    saturation = color.saturation;
    value = color.value;
}

float linearToSrgb(float linear)
{
    const float x = std::max(linear, 0.0F); // in this order a NaN passes through
    return x <= 0.0031308F ? 12.92F * x : 1.055F * std::pow(x, 0.41666666F) - 0.055F;
}

float srgbToLinear(float encoded)
{
    return encoded <= 0.04045F ? encoded / 12.92F : std::pow((encoded + 0.055F) / 1.055F, 2.4F);
}

QLxColor toSrgbColor(const QLxColor &color)
{
    const Rgb rgb = hsvToRgb(color);
    return rgbToHsv(linearToSrgb(rgb.red), linearToSrgb(rgb.green), linearToSrgb(rgb.blue));
}

QLxColor fromSrgbColor(const QLxColor &color)
{
    const Rgb rgb = hsvToRgb(color);
    return rgbToHsv(srgbToLinear(rgb.red), srgbToLinear(rgb.green), srgbToLinear(rgb.blue));
}

QColor toQColor(const QLxColor &color)
{
    if (!colorUseGamma)
        return toQColorRaw(color);
    const Rgb rgb = hsvToRgb(color);
    if (holdsNan(rgb))
        return {0, 0, 0};
    const SrgbQuantizer &encode = SrgbQuantizer::instance();
    return {encode(rgb.red), encode(rgb.green), encode(rgb.blue)};
}

QColor toQColorRaw(const QLxColor &color)
{
    const Rgb rgb = hsvToRgb(color);
    if (holdsNan(rgb))
        return {0, 0, 0};
    return {quantizeLinear(rgb.red), quantizeLinear(rgb.green), quantizeLinear(rgb.blue)};
}

QColor toQColorF(const QLxColor &color)
{
    const Rgb rgb = hsvToRgb(color);
    if (holdsNan(rgb))
        return {0, 0, 0};
    const auto channel = [](float c) { return static_cast<qreal>(std::clamp(c, 0.0F, 1.0F)); };
    return QColor::fromRgbF(channel(rgb.red), channel(rgb.green), channel(rgb.blue));
}

} // namespace QLx
