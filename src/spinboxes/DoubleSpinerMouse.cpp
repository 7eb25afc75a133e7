// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// The mouse on a double spin box's text, and what interrupts it.
#include "QLxDoubleSpiner_p.h"
#include "TextMouse_p.h"
#include "WhileAlive_p.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <optional>

bool QLxDoubleSpiner::event(QEvent *event)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    switch (event->type()) {
    case QEvent::FocusIn: {
        bool handled = true;
        // Announced here, because QWidget goes on with itself after focusInEvent(), where the receiver may
        // have deleted the box.
        whileAlive(
            this, [d] { d->announceFocus(); },
            [&] {
                d->focusAnnounced = true;
                handled = QDoubleSpinBox::event(event);
            },
            [d] { d->focusAnnounced = false; });
        return handled;
    }
    case QEvent::EnabledChange:
    case QEvent::Hide:
        if (isEnabled() && event->type() == QEvent::EnabledChange)
            break;
        d->mouseButtonHeld = false; // the release will not come, or will not be looked at
        d->dragMode = QLx::NoDrag;
        d->dragCursor.giveBack();
        break;
    case QEvent::ReadOnlyChange:
        if (isReadOnly())
            d->dragCursor.giveBack();
        break;
    default:
        break;
    }
    return QDoubleSpinBox::event(event);
}

bool QLxDoubleSpiner::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != lineEdit())
        return QDoubleSpinBox::eventFilter(watched, event);
    if (testAttribute(Qt::WA_Disabled))
        return false;
    const std::optional<bool> kept = QLx::handleMouse(d_func(), event);
    return kept ? *kept : QDoubleSpinBox::eventFilter(watched, event);
}

bool QLxDoubleSpinerPrivate::pressMouse(const QMouseEvent *event)
{
    const Qt::MouseButton button = event->button();
    mouseButtonHeld = true;
    lastMouseX = event->x();
    dragCursor.press();
    if (!whileAlive(q_ptr, [this] { Q_EMIT q_ptr->mouseButtonPressed(); }))
        return true;       // so that the event goes nowhere near the text that went with the box
    if (mouseButtonHeld) { // unless the receiver hid or disabled the box
        dragMode = QLx::dragModeAfterPress(button, dragMode);
        if (button == Qt::MiddleButton && !q_ptr->isReadOnly())
            dragCursor.push(Qt::SizeHorCursor);
    }
    return !QLx::pressIsForText(button);
}

bool QLxDoubleSpinerPrivate::moveMouse(const QMouseEvent *event)
{
    if (!mouseButtonHeld)
        return false;
    const double delta = QLx::dragDelta(q_ptr->singleStep(), lastMouseX, event->x());
    lastMouseX = event->x();
    if (delta != 0.0 && dragMode == QLx::MiddleDrag && !q_ptr->isReadOnly() &&
        !whileAlive(q_ptr, [&] { dragBy(delta); }))
        return true;
    return !QLx::moveIsForText(dragMode);
}

void QLxDoubleSpinerPrivate::dragBy(double delta) const
{
    if (!stepEditing && handlingMode == EmitRelativeOperator) {
        Q_EMIT q_ptr->relativeOperatorApplied(RelOpAdd, delta);
        return;
    }
    std::optional<QSignalBlocker> blocker;
    if (stepEditing)
        blocker.emplace(q_ptr);
    q_ptr->setValue(q_ptr->value() + delta);
}

bool QLxDoubleSpinerPrivate::releaseMouse(const QMouseEvent *event)
{
    lastMouseX = event->x();
    mouseButtonHeld = false;
    dragMode = QLx::NoDrag;
    if (!q_ptr->isReadOnly())
        dragCursor.pop(); // whichever button it was
    Q_EMIT q_ptr->mouseButtonReleased();
    return true;
}
