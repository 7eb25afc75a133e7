// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
// The mouse on a double spin box's text, and what interrupts it.
#include "QLxDoubleSpiner_p.h"
#include "WhileAlive_p.h"

#include <QLineEdit>
#include <QMouseEvent>
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
            this, [this] { announceFocus(); },
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
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return pressMouse(static_cast<const QMouseEvent *>(event));
    case QEvent::MouseMove:
        return moveMouse(static_cast<const QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        releaseMouse(static_cast<const QMouseEvent *>(event));
        return true;
    default:
        return QDoubleSpinBox::eventFilter(watched, event);
    }
}

bool QLxDoubleSpiner::pressMouse(const QMouseEvent *event)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    const Qt::MouseButton button = event->button();
    d->mouseButtonHeld = true;
    d->lastMouseX = event->x();
    d->dragCursor.press();
    if (!whileAlive(this, [this] { Q_EMIT mouseButtonPressed(); }))
        return true;          // so that the event goes nowhere near the text that went with the box
    if (d->mouseButtonHeld) { // unless the receiver hid or disabled the box
        if (button == Qt::MiddleButton) {
            d->dragMode = QLx::MiddleDrag;
            if (!isReadOnly())
                d->dragCursor.push(Qt::SizeHorCursor);
        } else if (button == Qt::RightButton) {
            d->dragMode = QLx::RightDrag;
        } else if (button == Qt::LeftButton) {
            d->dragMode = QLx::LeftDrag;
        }
    }
    return button != Qt::RightButton && button != Qt::LeftButton;
}

bool QLxDoubleSpiner::moveMouse(const QMouseEvent *event)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    if (!d->mouseButtonHeld)
        return false;
    const double delta = QLx::dragDelta(singleStep(), d->lastMouseX, event->x());
    d->lastMouseX = event->x();
    if (delta != 0.0 && d->dragMode == QLx::MiddleDrag && !isReadOnly() &&
        !whileAlive(this, [&] { dragBy(delta); }))
        return true;
    return d->dragMode != QLx::LeftDrag && d->dragMode != QLx::RightDrag;
}

void QLxDoubleSpiner::dragBy(double delta)
{
    const QLxDoubleSpinerPrivate *const d = d_func();
    if (!d->stepEditing && d->handlingMode == EmitRelativeOperator) {
        Q_EMIT relativeOperatorApplied(RelOpAdd, delta);
        return;
    }
    std::optional<QSignalBlocker> blocker;
    if (d->stepEditing)
        blocker.emplace(this);
    setValue(value() + delta);
}

void QLxDoubleSpiner::releaseMouse(const QMouseEvent *event)
{
    QLxDoubleSpinerPrivate *const d = d_func();
    d->lastMouseX = event->x();
    d->mouseButtonHeld = false;
    d->dragMode = QLx::NoDrag;
    if (!isReadOnly())
        d->dragCursor.pop(); // whichever button it was
    Q_EMIT mouseButtonReleased();
}
