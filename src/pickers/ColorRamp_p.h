// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef COLORRAMP_P_H
#define COLORRAMP_P_H

#include "QLxColor.h"

#include <QColor>

namespace QLx {

/// The colours of a channel's bar, as opaque 8-bit pixels: column i of count shows the channel at
/// t = i / divisions. Divisions must be positive.
///
/// Hue is shown at full saturation and value, red, green and blue alone on black; the other channels
/// take the rest of the colour from reference. Only the saturation bar honours colorUseGamma, the
/// others show linear light. A colour that holds a NaN is black.
///
/// Returns false, with the pixels untouched, for a channel outside 0 to 8.
bool fillColorRamp(int channel, const QLxColor &reference, int divisions, QRgb *pixels, int count);

/// The bar of a disabled control: greys of value 0.1 + 0.4 t.
void fillDisabledRamp(int divisions, QRgb *pixels, int count);

} // namespace QLx

#endif
