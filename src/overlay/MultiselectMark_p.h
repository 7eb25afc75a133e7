// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef MULTISELECTMARK_P_H
#define MULTISELECTMARK_P_H

class QPainter;
class QWidget;

namespace QLx {

/// Covers widget in translucent olive if its dynamic property "multiselect" converts to true: the
/// value that it shows is shared by several selected objects.
void paintMultiselectMark(QPainter &painter, const QWidget &widget);

} // namespace QLx

#endif
