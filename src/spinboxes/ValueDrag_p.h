// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef VALUEDRAG_P_H
#define VALUEDRAG_P_H

#include <qnamespace.h>

namespace QLx {

/// The mouse button that was pressed on a spin box's text last.
enum DragMode : int {
    LeftDrag = 0,   ///< selects text
    MiddleDrag = 1, ///< drags the value
    RightDrag = 2,  ///< opens the menu
    NoDrag = 4
};

/// The mode after a press; a button that does nothing of its own leaves the mode that there is.
inline int dragModeAfterPress(Qt::MouseButton button, int mode)
{
    switch (button) {
    case Qt::LeftButton:
        return LeftDrag;
    case Qt::MiddleButton:
        return MiddleDrag;
    case Qt::RightButton:
        return RightDrag;
    default:
        return mode;
    }
}

/// Whether a press of the button is for the text: to select in it, or for the menu.
inline bool pressIsForText(Qt::MouseButton button)
{
    return button == Qt::LeftButton || button == Qt::RightButton;
}

/// Whether a movement in this mode is for the text.
inline bool moveIsForText(int mode)
{
    return mode == LeftDrag || mode == RightDrag;
}

/// What a drag from one pixel to another adds: a step for each pixel to the right. Nothing without a
/// movement, even with an infinite step.
inline double dragDelta(double step, int fromX, int toX)
{
    return fromX == toX ? 0.0 : step * (static_cast<double>(toX) - static_cast<double>(fromX));
}

/// The value after a drag, clamped to [minimum, maximum]. The product of any two distances in pixels and
/// any step from 0 on fits into 64 bits.
inline int draggedValue(int value, int step, int fromX, int toX, int minimum, int maximum)
{
    const qint64 delta = (static_cast<qint64>(toX) - fromX) * step;
    return static_cast<int>(qBound<qint64>(minimum, value + delta, maximum));
}

} // namespace QLx

#endif
