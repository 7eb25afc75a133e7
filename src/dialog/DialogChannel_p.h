// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DIALOGCHANNEL_P_H
#define DIALOGCHANNEL_P_H

#include "QLxColor.h"
#include "QLxColorSlider.h"

#include <optional>

// How the nine channels of a colour come and go between the dialog's colour, which is linear, and its
// controls. Channels are numbered as the slider's modes.
namespace QLx {

/// The channels in the order in which the dialog brings their controls in step.
constexpr QLxColorSlider::Mode RefreshOrder[] = {
    QLxColorSlider::Red,   QLxColorSlider::Green,      QLxColorSlider::Blue,
    QLxColorSlider::Hue,   QLxColorSlider::Saturation, QLxColorSlider::Value,
    QLxColorSlider::Lstar, QLxColorSlider::Astar,      QLxColorSlider::Bstar};

/// Where a slider of the channel stands for the colour. Red, green and blue are always encoded as sRGB,
/// value if colorUseGamma is set.
float sliderPosition(QLxColorSlider::Mode channel, const QLxColor &color);
/// The colour with the channel as a slider at this position says, the other channels of its colour space
/// kept. The inverse of sliderPosition(). For a number that is no channel, the colour itself.
QLxColor colorAtPosition(QLxColorSlider::Mode channel, const QLxColor &color, float position);
/// The colour with the channel as its spin box says. Hue is limited to 0 ... 359.999, a little more than
/// the slider's 359.99, saturation and value to 0 ... 1, the others not at all; NaN gives 0 where limited.
QLxColor colorAtNumber(QLxColorSlider::Mode channel, const QLxColor &color, double number);

struct GradientEnds
{
    QLxColor minimum;
    QLxColor maximum;
};
/// The colours at the two ends of the channel's slider; nothing for hue, red, green and blue, where they do
/// not depend on the colour.
std::optional<GradientEnds> gradientEnds(QLxColorSlider::Mode channel, const QLxColor &color);

/// What a swatch gets to show the colour with its linear channels as display levels: clamped, times 255,
/// truncated. A colour that holds a NaN is black.
QLxColor linearSwatch(const QLxColor &color);
/// The same with sRGB-encoded channels, whatever colorUseGamma says.
QLxColor encodedSwatch(const QLxColor &color);

} // namespace QLx

#endif
