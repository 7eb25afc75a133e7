// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef MENUPOSITION_P_H
#define MENUPOSITION_P_H

#include <QContextMenuEvent>
#include <QWidget>

namespace QLx {

/// Where a widget's context menu opens, in global coordinates: at the pointer, or for a key half the
/// widget's size away from (the event's x, 0). The event's y has no part in that on purpose.
inline QPoint menuPosition(const QWidget &widget, const QContextMenuEvent &event)
{
    if (event.reason() == QContextMenuEvent::Mouse)
        return event.globalPos();
    return widget.mapToGlobal(QPoint(event.x(), 0)) + QPoint(widget.width() / 2, widget.height() / 2);
}

} // namespace QLx

#endif
