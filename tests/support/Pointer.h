// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef POINTER_H
#define POINTER_H

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

/// Mouse events sent straight to a widget, with exactly the buttons that they say.
class Pointer
{
public:
    explicit Pointer(QWidget *widget)
        : m_widget(widget)
    {
    }

    void press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        m_held |= button;
        send(QEvent::MouseButtonPress, at, button);
    }
    void move(const QPoint &to) { send(QEvent::MouseMove, to, Qt::NoButton); }
    void release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        m_held &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, at, button);
    }

private:
    void send(QEvent::Type type, const QPoint &at, Qt::MouseButton button)
    {
        if (!m_widget)
            return;
        QMouseEvent event(type, at, button, m_held, Qt::NoModifier);
        QApplication::sendEvent(m_widget.data(), &event);
    }

    QPointer<QWidget> m_widget;
    Qt::MouseButtons m_held = Qt::NoButton;
};

#endif
