// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOMBOBOX_H
#define QLXCOMBOBOX_H

#include "QLxExport.h"

#include <QComboBox>

/// A combo box whose list is wide enough for its longest text, and which tells when the list opens and
/// closes.
///
/// Receivers that want to destroy the box use deleteLater().
class QLX_EXPORT QLxComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit QLxComboBox(QWidget *parent = nullptr);

    /// Opens the list, then emits popupShown(), also for an empty box, whose list stays closed. The list gets
    /// a minimum width for its longest text as of now, and for a scroll bar if it has one.
    void showPopup() override;
    /// Closes the list, then emits popupHidden().
    void hidePopup() override;

Q_SIGNALS:
    /// Comes once for every call of hidePopup().
    void popupHidden();
    /// The list was opened; index is the current one, or -1 for an empty box.
    void popupShown(int index);
};

#endif
