// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_PATCHESPAGE_H
#define GALLERY_PATCHESPAGE_H

class QWidget;

/// A chart of known colours for the dialog's pipette, and what it picked.
QWidget *createPatchesPage();
void demonstratePatchesPage(QWidget &page);

#endif
