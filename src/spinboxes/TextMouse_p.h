// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef TEXTMOUSE_P_H
#define TEXTMOUSE_P_H

#include <QMouseEvent>

#include <optional>

namespace QLx {

/// Hands a mouse event of a spin box's text to the box's private object, which may be gone afterwards.
/// Returns whether the text is kept from seeing it, or nothing for any other event.
template <typename Private>
std::optional<bool> handleMouse(Private *box, const QEvent *event)
{
    const auto mouse = [event] { return static_cast<const QMouseEvent *>(event); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return box->pressMouse(mouse());
    case QEvent::MouseMove:
        return box->moveMouse(mouse());
    case QEvent::MouseButtonRelease:
        return box->releaseMouse(mouse());
    default:
        return std::nullopt;
    }
}

} // namespace QLx

#endif
