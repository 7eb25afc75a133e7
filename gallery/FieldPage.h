// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_FIELDPAGE_H
#define GALLERY_FIELDPAGE_H

class QWidget;

/// The colour field in every mode and size, with a slider for its constant channel.
QWidget *createFieldPage();
void demonstrateFieldPage(QWidget &page);

#endif
