// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SWATCHESPAGE_H
#define GALLERY_SWATCHESPAGE_H

class QWidget;

/// Colour buttons, colour manipulators and everything that they emit.
QWidget *createSwatchesPage();
void demonstrateSwatchesPage(QWidget &page);

#endif
