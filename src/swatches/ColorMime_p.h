// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef COLORMIME_P_H
#define COLORMIME_P_H

#include "QLxColor.h"

class QMimeData;
class QPixmap;
class QWidget;

// Colours as drag-and-drop data: Qt's standard colour type, carrying linear floating-point RGB.
namespace QLx {

/// Whether there is a colour that can be read.
bool hasColor(const QMimeData *mime);
/// The dropped colour; no transfer curve is removed. Requires hasColor().
QLxColor colorFrom(const QMimeData *mime);

/// Runs a copy drag of the colour from source, with the swatch at the pointer, until it ends.
void dragColor(QWidget *source, const QLxColor &color, const QPixmap &swatch);

} // namespace QLx

#endif
