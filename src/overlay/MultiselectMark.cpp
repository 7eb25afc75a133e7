// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "MultiselectMark_p.h"

#include <QLinearGradient>
#include <QPainter>
#include <QVariant>
#include <QWidget>

namespace QLx {

void paintMultiselectMark(QPainter &painter, const QWidget &widget)
{
    if (!widget.property("multiselect").toBool())
        return;
    // The gradient ends above the centre of the first pixel row, so nearly all of the mark has the
    // second colour.
    QLinearGradient olive(0.0, 0.1, 0.0, 0.45);
    olive.setColorAt(0.0, QColor(235, 185, 55, 175));
    olive.setColorAt(1.0, QColor(165, 155, 45, 135));
    painter.fillRect(widget.rect(), olive);
}

} // namespace QLx
