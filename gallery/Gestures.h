// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_GESTURES_H
#define GALLERY_GESTURES_H

class QColor;
class QPointF;
class QWidget;

/// What a visitor does with the mouse, sent straight to a widget.

/// Presses the left button, moves in steps and releases; positions are fractions of the widget's size.
void drag(QWidget &widget, const QPointF &from, const QPointF &to, int steps);
/// A drag at half the height; positions are fractions of the widget's width.
void dragAcross(QWidget &widget, double from, double to, int steps);
void click(QWidget &widget);
/// A click there; the position is a fraction of the widget's size.
void click(QWidget &widget, const QPointF &position);
void dropColor(QWidget &widget, const QColor &color);

#endif
