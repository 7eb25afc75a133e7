// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_MODULEPAGE_H
#define GALLERY_MODULEPAGE_H

class QWidget;

/// Three swatches that open the one colour dialog in turn, and everything that they emit.
QWidget *createModulePage();
/// Leaves the dialog open.
void demonstrateModulePage(QWidget &page);

#endif
