// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef PIPETTEIMAGE_P_H
#define PIPETTEIMAGE_P_H

#include <QPixmap>

namespace QLx {

/// A pipette, 32 x 32 pixels in greys. Its tip is at (4, 27). Needs a QGuiApplication.
QPixmap pipettePixmap();

} // namespace QLx

#endif
