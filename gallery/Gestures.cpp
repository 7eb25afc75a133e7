// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Gestures.h"

#include <QApplication>
#include <QColor>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWidget>

namespace {

void sendMouse(QWidget &widget, QEvent::Type type, const QPointF &fraction)
{
    const QPoint pos(qRound(fraction.x() * widget.width()), qRound(fraction.y() * widget.height()));
    const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, widget.mapTo(widget.window(), pos), widget.mapToGlobal(pos), changed, held,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

void drag(QWidget &widget, const QPointF &from, const QPointF &to, int steps)
{
    sendMouse(widget, QEvent::MouseButtonPress, from);
    for (int i = 1; i <= steps; ++i)
        sendMouse(widget, QEvent::MouseMove, from + (to - from) * i / steps);
    sendMouse(widget, QEvent::MouseButtonRelease, to);
}

void dragAcross(QWidget &widget, double from, double to, int steps)
{
    drag(widget, {from, 0.5}, {to, 0.5}, steps);
}

void click(QWidget &widget)
{
    click(widget, {0.5, 0.5});
}

void click(QWidget &widget, const QPointF &position)
{
    drag(widget, position, position, 0);
}

void dropColor(QWidget &widget, const QColor &color)
{
    QMimeData mime;
    mime.setColorData(color);
    const QPoint pos = widget.rect().center();
    QDragEnterEvent enter(pos, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    QDropEvent drop(pos, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &drop);
}
