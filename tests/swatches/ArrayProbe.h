// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef ARRAYPROBE_H
#define ARRAYPROBE_H

#include "ButtonProbe.h"
#include "PaintCounter.h"
#include "QLxColorArray.h"
#include "QLxColorCell_p.h"
#include "QLxColorSpaces.h"
#include "ReferenceColors.h"
#include "TestCase.h"

#include <QBoxLayout>
#include <QDrag>
#include <QPainter>

#include <functional>
#include <limits>

constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
constexpr int Count = 11;
using Numbers = QVector<float>;

// The colours last as long as the process; that each test can start without any, it frees them from behind.
QList<QLxColorCellData *> &processCells();
template <auto Cells>
struct Behind
{
    friend QList<QLxColorCellData *> &processCells() { return *Cells; }
};
template struct Behind<&QLxColorArray::s_cellData>;

inline void freeAllCells()
{
    for (QLxColorCellData *const cell : qAsConst(processCells()))
        *cell = QLxColorCellData();
}

inline QAbstractButton *cellOf(const QLxColorArray &array, int index)
{
    return static_cast<QAbstractButton *>(array.layout()->itemAt(index)->widget());
}

inline QImage picture(QWidget *cell)
{
    QImage image(cell->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    cell->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// The index of the cell with the red frame, -1 if there is none.
inline int currentOf(const QLxColorArray &array)
{
    int current = -1;
    for (int i = 0; i < Count; ++i)
        if (picture(cellOf(array, i)).pixelColor(0, 0) == Qt::red)
            current = current < 0 ? i : Count; // at most one
    return current;
}

/// Indices of the filled cells.
inline QString filled(const QLxColorArray &array = QLxColorArray())
{
    QStringList indices;
    for (int i = 0; i < Count; ++i)
        if (!array.isFreeCell(i))
            indices.append(QString::number(i));
    return indices.join(QLatin1Char(' '));
}

/// Logs the keys and the focus reasons of what it watches.
class EventLog : public QObject
{
public:
    explicit EventLog(SignalLog *log)
        : m_log(log)
    {
    }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            m_log->note(QStringLiteral("key %1").arg(static_cast<QKeyEvent *>(event)->key()));
        else if (event->type() == QEvent::FocusIn)
            m_log->note(QStringLiteral("focus %1").arg(static_cast<QFocusEvent *>(event)->reason()));
        return false;
    }

private:
    SignalLog *m_log;
};

/// A row for each look of a cell.
inline void cellColorRows()
{
    QTest::addColumn<Numbers>("hsv");
    QTest::newRow("free") << Numbers();
    QTest::newRow("white") << Numbers{0, 0, 1};
    QTest::newRow("mid grey") << Numbers{0, 0, 0.5F};
    QTest::newRow("green") << Numbers{120, 1, 0.5F};
    QTest::newRow("orange") << Numbers{30, 0.8F, 0.7F};
    QTest::newRow("black, which is not free") << Numbers{0, 0, 0};
    QTest::newRow("above white") << Numbers{0, 0, 5};
    QTest::newRow("channels below 0") << Numbers{30, 3, 1};
    QTest::newRow("NaN") << Numbers{0, 0, Nan};
}

/// An array without any colour, and the log of what it picks.
class ArrayTest : public TestCase
{
protected:
    void begin()
    {
        m_parent = new QWidget;
        m_array = new QLxColorArray(m_parent);
        freeAllCells();
        m_log.watch(m_array.data(), &QLxColorArray::selected, "selected");
    }
    void end()
    {
        delete m_parent;
        m_log.take();
        freeAllCells();
        QLx::colorUseGamma = true;
    }

    QAbstractButton *cell(int index) const { return cellOf(*m_array, index); }
    int current() const { return currentOf(*m_array); }
    QString stored(int index) const { return asText(m_array->getColor(index)); }
    void makeCurrent(int index) { click(*cell(index), Qt::RightButton); }
    void fill(int index, const QLxColor &color = {0, 1, 1})
    {
        makeCurrent(index);
        m_array->addColor(color);
    }

    QPointer<QWidget> m_parent;
    QPointer<QLxColorArray> m_array;
    SignalLog m_log;
};

#endif
