// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SLIDERSPAGE_H
#define GALLERY_SLIDERSPAGE_H

class QWidget;

/// Every mode and every look of the colour slider.
QWidget *createSlidersPage();
void demonstrateSlidersPage(QWidget &page);

#endif
