// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXDOUBLESPINER_P_H
#define QLXDOUBLESPINER_P_H

#include "DragCursor_p.h"
#include "QLxDoubleSpiner.h"
#include "ValueDrag_p.h"

#include <QString>

class QMenu;
class QMouseEvent;
class QTimer;

class QLxDoubleSpinerPrivate
{
public:
    explicit QLxDoubleSpinerPrivate(QLxDoubleSpiner *q)
        : q_ptr(q)
    {
    }

    void leaveStepEditing();
    void announceFocus();
    /// The three take the events of the text and return whether the text is kept from seeing them.
    bool pressMouse(const QMouseEvent *event);
    bool moveMouse(const QMouseEvent *event);
    bool releaseMouse(const QMouseEvent *event);
    void dragBy(double delta) const;

    double savedValue = 0.0;
    double savedMinimum = 0.0;
    double savedMaximum = 0.0;
    int displayDecimals = 6;
    bool useExactDisplayDecimals = false;
    bool mouseButtonHeld = false;
    bool stepEditing = false;
    int lastMouseX = 0;
    int dragMode = QLx::NoDrag;
    QString savedPrefix;
    QString savedSuffix;
    bool showStepHint = true;
    QMenu *stepMenu = nullptr;
    QTimer *feedbackTimer = nullptr;
    RelativeOperatorHandlingMode handlingMode = ApplyRelativeOperator;
    bool enterPressed = false;
    bool inputAcceptable = true;
    RelativeOperator currentOperator = RelOpNone;
    double currentOperand = 0.0;
    bool validatingInput = false;
    bool displaySceneUnit = false;
    QLxDoubleSpiner *q_ptr;

    QLx::DragCursor dragCursor;
    bool reporting = false;      // inside relativeOperatorApplied() of a finished edit
    bool focusAnnounced = false; // focusGained() was emitted for the event that is being delivered
};

#endif
