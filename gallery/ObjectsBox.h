// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_OBJECTSBOX_H
#define GALLERY_OBJECTSBOX_H

#include "QLxRelativeOperator.h"

#include <QGroupBox>

class QLxDoubleSpiner;
class QTreeWidget;

/// Objects with a width each, and one spin box that edits the widths of all that are selected.
class ObjectsBox : public QGroupBox
{
    Q_OBJECT

public:
    /// Takes over the spin box.
    explicit ObjectsBox(QLxDoubleSpiner *width, QWidget *parent = nullptr);

    /// Writes all widths anew. Call it after the unit or the decimals have changed.
    void refresh();

private:
    void addObjects();
    void edit(RelativeOperator op, double operand);

    QLxDoubleSpiner *m_width;
    QTreeWidget *m_objects;
};

#endif
