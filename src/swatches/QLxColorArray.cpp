// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorArray.h"

#include "QLxColorCell_p.h"
#include "QLxColorSpaces.h"

#include <QBoxLayout>
#include <QKeyEvent>

namespace {

const int cellCount = 11;

} // namespace

QList<QLxColorCellData *> QLxColorArray::s_cellData;

QLxColorArray::QLxColorArray(QWidget *parent)
    : QWidget(parent)
{
    setMinimumHeight(16);
    if (s_cellData.isEmpty()) {
        static QLxColorCellData records[cellCount];
        for (QLxColorCellData &record : records)
            s_cellData.append(&record);
    }
    auto *const layout = new QBoxLayout(QBoxLayout::LeftToRight);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < cellCount; ++i) {
        auto *const cell = new QLxColorCell(this);
        layout->addWidget(cell);
        m_cells.append(cell);
    }
    setLayout(layout);
}

QLxColorArray::~QLxColorArray()
{
    for (QLxColorCell *const cell : qAsConst(m_cells))
        if (cell)
            cell->forgetArray();
}

QLxColorCellData *QLxColorArray::cellData(int index)
{
    return s_cellData.value(index, nullptr);
}

void QLxColorArray::addColor(const QLxColor &color)
{
    int target = m_current;
    for (int i = 0; target < 0 && i < cellCount; ++i)
        if (isFreeCell(i))
            target = i;
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    QLx::hsvToRgb(color, red, green, blue);
    store(qMax(target, 0), QLx::rgbToHsv(red, green, blue));
}

void QLxColorArray::store(int index, const QLxColor &color)
{
    *cellData(index) = {color, false};
    if (QLxColorCell *const cell = m_cells.at(index))
        cell->update();
}

QLxColor QLxColorArray::getColor(int index) const
{
    const QLxColorCellData *const record = cellData(index);
    return record ? record->color : QLxColor();
}

bool QLxColorArray::isFreeCell(int index) const
{
    const QLxColorCellData *const record = cellData(index);
    return !record || record->isFree;
}

void QLxColorArray::setCurrent(int index)
{
    if (index < 0 || index >= cellCount)
        return;
    m_current = index;
    updateCells();
}

void QLxColorArray::setSelected(int index)
{
    setCurrent(index);
    if (!isFreeCell(index))
        Q_EMIT selected(index);
}

void QLxColorArray::updateCells()
{
    for (QLxColorCell *const cell : qAsConst(m_cells))
        if (cell)
            cell->update();
}

void QLxColorArray::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        setSelected(m_current);
        break;
    case Qt::Key_Right:
        setCurrent(m_current + 1);
        break;
    case Qt::Key_Left:
        setCurrent(m_current - 1);
        break;
    default:
        event->ignore();
    }
}
