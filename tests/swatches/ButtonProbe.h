// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef BUTTONPROBE_H
#define BUTTONPROBE_H

#include "FakeDialog.h"
#include "Pointer.h"
#include "QLxColorButton.h"
#include "SignalLog.h"

#include <QDragEnterEvent>
#include <QMimeData>

#include <memory>

// What the tests of the colour button do to it and look at.

inline void watch(SignalLog &log, QLxColorButton *button, const char *who = "")
{
    using B = QLxColorButton;
    const auto name = [who](const char *signal) { return QByteArray(who) + signal; };
    log.watch(button, &B::colorButtonClicked, name("colorButtonClicked"));
    log.watch(button, &B::temporaryColorChosen, name("temporaryColorChosen"));
    log.watch(button, &B::finalColorChosen, name("finalColorChosen"));
    log.watch(button, &B::userSkipped, name("userSkipped"));
    log.watch(button, &B::userAccepted, name("userAccepted"));
}

inline void click(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
{
    Pointer pointer(&widget);
    pointer.press({3, 3}, button);
    pointer.release({3, 3}, button);
}

inline QString look(int red, int green, int blue)
{
    return QStringLiteral("QPushButton {border: 1px solid rgb(127, 127, 127);border-radius: 3px;"
                          "background: rgb(%1, %2, %3);}")
        .arg(red)
        .arg(green)
        .arg(blue);
}

inline std::unique_ptr<QMimeData> colorData(const QColor &color)
{
    auto data = std::make_unique<QMimeData>();
    data->setColorData(color);
    return data;
}

template <typename Event, typename Pos>
bool send(QWidget *widget, const Pos &pos, const QMimeData *data)
{
    Event event(pos, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline bool sendEnter(QWidget *widget, const QMimeData *data)
{
    return send<QDragEnterEvent>(widget, QPoint(3, 3), data);
}

/// Enters with a colour first: moves and drops reach only a widget that has accepted to be entered.
template <typename Event, typename Pos = QPoint>
bool sendAfterEnter(QWidget *widget, const QMimeData *data)
{
    sendEnter(widget, colorData(Qt::red).get());
    return send<Event>(widget, Pos(3, 3), data);
}

inline bool sendMove(QWidget *widget, const QMimeData *data)
{
    return sendAfterEnter<QDragMoveEvent>(widget, data);
}

inline bool sendDrop(QWidget *widget, const QMimeData *data)
{
    return sendAfterEnter<QDropEvent, QPointF>(widget, data);
}

#endif
