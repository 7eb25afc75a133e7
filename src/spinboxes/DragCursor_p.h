// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DRAGCURSOR_P_H
#define DRAGCURSOR_P_H

#include <QCursor>
#include <QGuiApplication>

namespace QLx {

/// The application-wide cursor that a drag shows. Knows how many of the override cursors are its own, so
/// that a drag that is interrupted, or whose widget is destroyed, leaves none behind.
class DragCursor
{
public:
    DragCursor() = default;
    ~DragCursor() { giveBack(); }
    Q_DISABLE_COPY_MOVE(DragCursor)

    void push(Qt::CursorShape shape)
    {
        giveBack(); // of a drag whose end was lost
        QGuiApplication::setOverrideCursor(shape);
        ++m_pushed;
    }
    /// Takes the topmost override cursor away, whoever pushed it.
    void pop()
    {
        QGuiApplication::restoreOverrideCursor();
        m_pushed = m_pushed > 0 ? m_pushed - 1 : 0;
    }
    void giveBack()
    {
        while (m_pushed > 0)
            pop();
    }

private:
    int m_pushed = 0;
};

} // namespace QLx

#endif
