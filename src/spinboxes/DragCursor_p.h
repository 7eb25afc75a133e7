// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DRAGCURSOR_P_H
#define DRAGCURSOR_P_H

#include <QCursor>
#include <QGuiApplication>

#include <utility>

namespace QLx {

/// The application-wide cursor that a drag shows. Knows whether one of the override cursors is its own, so
/// that a drag that is interrupted, or whose widget is destroyed, leaves none behind.
class DragCursor
{
public:
    DragCursor() = default;
    ~DragCursor() { giveBack(); }
    Q_DISABLE_COPY_MOVE(DragCursor)

    /// A mouse button is pressed: what became of an earlier drag no longer matters.
    void press() { m_givenBack = false; }
    void push(Qt::CursorShape shape)
    {
        giveBack(); // of a drag whose end was lost
        press();
        QGuiApplication::setOverrideCursor(shape);
        m_pushed = true;
    }
    /// A mouse button is released: takes the topmost override cursor away, whoever pushed it, unless the drag
    /// that ends has given back its own.
    void pop()
    {
        if (std::exchange(m_givenBack, false))
            return;
        QGuiApplication::restoreOverrideCursor();
        m_pushed = false;
    }
    /// The drag is interrupted.
    void giveBack()
    {
        if (!std::exchange(m_pushed, false))
            return;
        QGuiApplication::restoreOverrideCursor();
        m_givenBack = true;
    }

private:
    bool m_pushed = false;
    bool m_givenBack = false; // and its button not released yet
};

} // namespace QLx

#endif
