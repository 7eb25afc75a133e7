// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef PAINTCOUNTER_H
#define PAINTCOUNTER_H

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

/// Counts the paint events of a shown widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    /// Paints since the last look.
    int take() { return std::exchange(m_count, 0); }
    /// Paints that were only scheduled, and come now.
    int takeScheduled()
    {
        m_count = 0;
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return take();
    }

private:
    int m_count = 0;
};

#endif
