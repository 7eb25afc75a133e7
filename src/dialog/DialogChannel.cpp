// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "DialogChannel_p.h"

#include "ColorChannel_p.h"
#include "ColorMath_p.h"
#include "QLxColorSpaces.h"
#include "SrgbQuantizer_p.h"

namespace QLx {

namespace {

bool isEncoded(QLxColorSlider::Mode channel)
{
    switch (channel) {
    case QLxColorSlider::Red:
    case QLxColorSlider::Green:
    case QLxColorSlider::Blue:
        return true;
    case QLxColorSlider::Value:
        return colorUseGamma;
    default:
        return false;
    }
}

float limited(double number, float highest)
{
    if (!(number > 0.0))
        return 0.0F;
    return number < static_cast<double>(highest) ? static_cast<float>(number) : highest;
}

QLxColor fromLevels(int red, int green, int blue)
{
    return rgbToHsv(static_cast<float>(red) / 255.0F, static_cast<float>(green) / 255.0F,
                    static_cast<float>(blue) / 255.0F);
}

} // namespace

float sliderPosition(QLxColorSlider::Mode channel, const QLxColor &color)
{
    const ColorChannel &facts = *colorChannel(channel);
    const float number = facts.read(color);
    return (isEncoded(channel) ? linearToSrgb(number) : number) / facts.span + facts.origin;
}

QLxColor colorAtPosition(QLxColorSlider::Mode channel, const QLxColor &color, float position)
{
    const ColorChannel *const facts = colorChannel(channel);
    if (!facts)
        return color;
    const float number = facts->fromPosition(position);
    return facts->replaced(color, isEncoded(channel) ? srgbToLinear(number) : number);
}

QLxColor colorAtNumber(QLxColorSlider::Mode channel, const QLxColor &color, double number)
{
    switch (channel) {
    case QLxColorSlider::Hue:
        return {limited(number, 359.999F), color.saturation, color.value};
    case QLxColorSlider::Saturation:
    case QLxColorSlider::Value:
        return colorAtPosition(channel, color, limited(number, 1.0F));
    case QLxColorSlider::Red:
    case QLxColorSlider::Green:
    case QLxColorSlider::Blue:
        return colorAtPosition(channel, color, static_cast<float>(number));
    default:
        return colorChannel(channel)->replaced(color, static_cast<float>(number));
    }
}

std::optional<GradientEnds> gradientEnds(QLxColorSlider::Mode channel, const QLxColor &color)
{
    const auto between = [&](float minimum, float maximum) {
        const ColorChannel &facts = *colorChannel(channel);
        return GradientEnds{facts.replaced(color, minimum), facts.replaced(color, maximum)};
    };
    switch (channel) {
    case QLxColorSlider::Saturation:
        return between(0.0F, 1.0F);
    case QLxColorSlider::Value:
        return GradientEnds{{}, {color.hue, color.saturation, 1.0F}};
    case QLxColorSlider::Lstar:
        return between(0.0F, 100.0F);
    case QLxColorSlider::Astar:
    case QLxColorSlider::Bstar:
        return between(-LabChromaRange, LabChromaRange);
    default:
        return std::nullopt;
    }
}

QLxColor linearSwatch(const QLxColor &color)
{
    const QColor shown = toQColorRaw(color);
    return fromLevels(shown.red(), shown.green(), shown.blue());
}

QLxColor encodedSwatch(const QLxColor &color)
{
    const Rgb rgb = hsvToRgb(color);
    if (holdsNan(rgb))
        return {};
    const SrgbQuantizer &encode = SrgbQuantizer::instance();
    return fromLevels(encode(rgb.red), encode(rgb.green), encode(rgb.blue));
}

} // namespace QLx
