// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorCell_p.h"

#include "ColorMime_p.h"
#include "QLxColorArray.h"
#include "QLxColorSpaces.h"
#include "WhileAlive_p.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

const QPoint notPressed(-1, -1);

} // namespace

QLxColorCell::QLxColorCell(QLxColorArray *array)
    : m_array(array)
{
    setAcceptDrops(true);
    setFixedSize(16, 16);
}

QLxColorCell::~QLxColorCell()
{
    const int place = index();
    if (place >= 0)
        m_array->m_cells.replace(place, nullptr); // the other cells keep theirs
}

int QLxColorCell::index() const
{
    return m_array ? m_array->m_cells.indexOf(const_cast<QLxColorCell *>(this)) : -1;
}

const QLxColorCellData *QLxColorCell::record() const
{
    return QLxColorArray::cellData(index());
}

void QLxColorCell::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressPos = event->pos();
}

void QLxColorCell::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressPos = notPressed;
    // The pixels just past the right and the bottom edge count too.
    if (!m_array || !QRect(0, 0, width() + 1, height() + 1).contains(event->pos()))
        return;
    if (event->button() == Qt::RightButton)
        m_array->setCurrent(index());
    else if (event->button() == Qt::LeftButton)
        m_array->setSelected(index());
}

void QLxColorCell::mouseMoveEvent(QMouseEvent *event)
{
    const QLxColorCellData *const cell = record();
    if (!cell || cell->isFree || m_pressPos.x() == notPressed.x() ||
        (m_pressPos - event->pos()).manhattanLength() <= QApplication::startDragDistance())
        return;
    m_array->setCurrent(index());
    QPixmap swatch(size());
    swatch.fill(QLx::toQColorF(cell->color));
    QPainter(&swatch).drawRect(0, 0, width(), height());
    whileAlive(
        this, [&] { QLx::dragColor(this, cell->color, swatch); }, [&] { m_pressPos = notPressed; });
}

void QLxColorCell::dragEnterEvent(QDragEnterEvent *event)
{
    setFocus(Qt::OtherFocusReason);
    event->setAccepted(QLx::hasColor(event->mimeData()));
}

void QLxColorCell::dragMoveEvent(QDragMoveEvent *event)
{
    event->setAccepted(QLx::hasColor(event->mimeData()));
    if (event->isAccepted() && m_array)
        m_array->setCurrent(index());
}

void QLxColorCell::dropEvent(QDropEvent *event)
{
    event->setAccepted(QLx::hasColor(event->mimeData()));
    if (!event->isAccepted())
        return;
    const int place = index();
    if (place >= 0) {
        m_array->store(place, QLx::colorFrom(event->mimeData()));
        m_array->setCurrent(place);
    }
    update();
}

void QLxColorCell::paintEvent(QPaintEvent * /*event*/)
{
    const QLxColorCellData *const cell = record();
    const bool current = m_array && index() == m_array->m_current;
    QPainter painter(this);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), cell && !cell->isFree
                                                        ? QBrush(QLx::toQColor(cell->color))
                                                        : QBrush(Qt::black, Qt::Dense4Pattern));
    painter.setPen(current ? Qt::red : Qt::black); // on top, where pixels are not whole
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
