// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORSPACES_H
#define QLXCOLORSPACES_H

#include "QLxColor.h"
#include "QLxExport.h"

#include <QColor>

/// Conversions between the colour spaces that the widgets show, and the process-wide colour settings.
///
/// All arithmetic is single precision in a fixed order, so results are the same bits on every compiler.
/// RGB is linear light with the sRGB primaries (IEC 61966-2-1) unless a name says otherwise; channels
/// are nominally in [0, 1] and are never clamped unless stated. Nothing reports errors: infinities and
/// NaN flow through, and the conversions to QColor show a colour that holds a NaN as opaque black.
///
/// GUI thread only: the settings are plain variables.
namespace QLx {

/// Whether toQColor encodes with the sRGB curve. The saturation slider follows a change at its next repaint,
/// a swatch when its colour is set; the other ramps and planes do not read it.
QLX_EXPORT extern bool colorUseGamma;
/// A display gamma kept for the user. No conversion reads it: the curves are sRGB's own.
QLX_EXPORT extern float colorGammaValue;
/// Reference white (Xn, Yn, Zn) of CIE L*a*b*: D65 from x = 0.3127, y = 0.3290, with Y = 1.
QLX_EXPORT extern const float whitePoint[3];
/// Span of the a* and b* axes: 256, from -128 to +128.
QLX_EXPORT extern const float labChromaRange;

/// HSV to linear RGB by sectors of 60 degrees. A hue below 0 or NaN counts as sector 0; 360 and above
/// is held just below 360 (nearly red) instead of wrapping to red.
QLX_EXPORT void hsvToRgb(const QLxColor &color, float &red, float &green, float &blue);
/// Linear RGB to HSV. Red wins every tie for the largest channel, then green. A grey has hue 0; black
/// has saturation 0 too. A negative hue gets 360 added once.
QLX_EXPORT QLxColor rgbToHsv(float red, float green, float blue);
/// Linear RGB to CIE 1976 L*a*b* (CIE 15) relative to whitePoint; L* is 100 for white.
QLX_EXPORT void rgbToLab(float red, float green, float blue, float &lstar, float &astar, float &bstar);
/// CIE 1976 L*a*b* to HSV of linear RGB. Colours outside the RGB gamut keep their negative channels and
/// channels above 1, so saturation and value may leave [0, 1].
QLX_EXPORT void labToHsv(float lstar, float astar, float bstar, float &hue, float &saturation, float &value);

/// sRGB encoding (IEC 61966-2-1) of one linear channel. A negative channel gives 0, above 1 goes on.
/// linearToSrgb(1) is 0.99999994 in single precision.
QLX_EXPORT float linearToSrgb(float linear);
/// sRGB decoding of one channel, not clamped. Negative channels follow the linear segment.
QLX_EXPORT float srgbToLinear(float encoded);
/// The colour with each RGB channel encoded by linearToSrgb, whatever colorUseGamma says.
QLX_EXPORT QLxColor toSrgbColor(const QLxColor &color);
/// The colour with each RGB channel decoded by srgbToLinear, whatever colorUseGamma says.
QLX_EXPORT QLxColor fromSrgbColor(const QLxColor &color);

/// The opaque 8-bit colour to paint with: encoded if colorUseGamma is set, clamped to [0, 1], times 255,
/// truncated. White is 254, 254, 254 when encoded.
QLX_EXPORT QColor toQColor(const QLxColor &color);
/// As toQColor, but never encoded.
QLX_EXPORT QColor toQColorRaw(const QLxColor &color);
/// The opaque floating-point QColor of the linear channels, each clamped to [0, 1], never encoded. Drags
/// carry it.
QLX_EXPORT QColor toQColorF(const QLxColor &color);

} // namespace QLx

#endif
