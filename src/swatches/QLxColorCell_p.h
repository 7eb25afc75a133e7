// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXCOLORCELL_P_H
#define QLXCOLORCELL_P_H

#include "QLxColor.h"

#include <QAbstractButton>
#include <QPoint>
#include <QPointer>

class QLxColorArray;

/// One of the custom colours of the process.
struct QLxColorCellData
{
    QLxColor color;
    bool isFree = true;
};

/// A cell of a colour array: 16 x 16 pixels that show, pick, drag and take one custom colour. Keys are
/// handled as by any button, and otherwise go to the array.
class QLxColorCell : public QAbstractButton // clazy:exclude=missing-qobject-macro
{
public:
    explicit QLxColorCell(QLxColorArray *array);
    ~QLxColorCell() override;

    /// The array is being destroyed.
    void forgetArray() { m_array.clear(); }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    int index() const;
    const QLxColorCellData *record() const;

    QPointer<QLxColorArray> m_array; // the maker, not necessarily the parent
    QPoint m_pressPos = {-1, -1};    // (-1, -1) while no left press is pending
};

#endif
