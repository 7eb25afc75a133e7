// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_NUMBERSPAGE_H
#define GALLERY_NUMBERSPAGE_H

class QWidget;

/// Spin boxes, a combo box, the scene unit, and everything that they emit.
QWidget *createNumbersPage();
void demonstrateNumbersPage(QWidget &page);

#endif
