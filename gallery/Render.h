// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_RENDER_H
#define GALLERY_RENDER_H

#include <QString>

/// Pins what would make pictures differ between machines. Comes before the application object; without a
/// display, it also chooses a platform that needs none.
void prepareRendering();

/// Writes a picture of every page, and of the dialogs that it opens, in every palette to the directory, which
/// is made if needed, and prints the path of each. Returns what went wrong, or an empty string.
QString renderPages(const QString &directory);

#endif
