// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORARRAY_H
#define QLXCOLORARRAY_H

#include "QLxColor.h"
#include "QLxExport.h"

#include <QList>
#include <QWidget>

class QLxColorCell;
struct QLxColorCellData;

/// A row of eleven small cells for custom colours. The colours belong to the process: every array shows and
/// edits the same eleven, and they stay until it ends.
///
/// At most one cell is current; it has a red frame, and addColor() fills it. A left click makes a cell
/// current and picks its colour, a right click only makes it current. Of the keys that reach the array (a
/// focused cell is a button and keeps the arrows and Space), Right and Left move on from the current cell,
/// Return, Enter and Space pick it, and the others go to the parent. A filled cell can be dragged as a
/// colour, and a colour can be dropped on any cell, which emits nothing.
///
/// Receivers may delete the array inside selected().
class QLX_EXPORT QLxColorArray : public QWidget
{
    Q_OBJECT

public:
    explicit QLxColorArray(QWidget *parent = nullptr);
    ~QLxColorArray() override;

    /// Stores the colour in the current cell, full or not; without one in the first free cell, or in cell 0
    /// if none is free. It is brought to what RGB holds of it: a grey loses its hue. Emits nothing.
    void addColor(const QLxColor &color);
    /// The colour of cell 0 to 10, as it was stored; black for a free cell and for any other index.
    QLxColor getColor(int index) const;
    /// Whether the cell holds no colour; true for an index outside 0 to 10.
    bool isFreeCell(int index) const;

Q_SIGNALS:
    /// The user picked the colour of a filled cell.
    void selected(int index);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    friend class QLxColorCell;

    static QLxColorCellData *cellData(int index);
    void store(int index, const QLxColor &color);
    void setCurrent(int index);
    void setSelected(int index);
    void updateCells();

    static QList<QLxColorCellData *> s_cellData;

    int m_current = -1;
    QList<QLxColorCell *> m_cells;
};

#endif
