// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PALETTES_H
#define GALLERY_PALETTES_H

#include <QPalette>

/// The style's own colours, whatever the desktop prefers.
QPalette lightPalette();
/// Light text on dark grey, for every role and group.
QPalette darkPalette();

#endif
