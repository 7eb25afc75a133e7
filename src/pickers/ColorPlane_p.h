// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef COLORPLANE_P_H
#define COLORPLANE_P_H

#include "QLxColor.h"

#include <QColor>
#include <QPoint>
#include <QSize>

#include <array>

class QImage;

// The plane of colours that the colour field shows: one channel held constant, the other two channels of its
// colour space along the axes. Planes are numbered 0 to 8 by their constant channel, as in ColorChannel_p.h.
namespace QLx {

/// Fills an image of Format_RGB32 with the plane at that value of its constant channel. HSV and RGB planes
/// show linear light; L*a*b* planes are always sRGB-encoded. Each component is clamped, times 255, truncated;
/// a NaN gives 0. An image without pixels, or a plane outside 0 to 8, is left alone.
void fillColorPlane(int plane, float constant, QImage &image);

// Drawing, picking and marking map pixels differently on purpose: drawing ends its hue axis at 360 and its
// rows 1/H short of the top, picking ends hue at 359.99 and reaches both ends; and on planes 3, 7 and 8
// drawing divides columns by the height and rows by the width.

/// The three channels of the plane's colour space under a position, which may lie outside the plane. A plane
/// without width or height gives the ends of its axes.
std::array<float, 3> pickFromPlane(int plane, float constant, const QPoint &at, const QSize &size);

/// The pixel that marks a colour, within the plane.
QPoint markerOnPlane(int plane, const QLxColor &color, const QSize &size);

/// The ways in which fillColorPlane() can run on this processor, from plainest to widest. All give the same
/// pixels; the widest is used unless a test or a benchmark chooses another.
int planeKernelCount();
const char *planeKernelName(int kernel);
void usePlaneKernel(int kernel);

} // namespace QLx

#endif
