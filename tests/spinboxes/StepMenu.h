// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef STEPMENU_H
#define STEPMENU_H

#include "Pointer.h"
#include "SpinerProbe.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QWidgetAction>

// The menu that edits the step of a double spin box, and what a person does in it.

/// Opens the box's menu as the window system does, by an event to its text. The position is the box's.
inline void openMenu(SpinerProbe *box, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse,
                     const QPoint &at = {4, 5})
{
    QContextMenuEvent event(reason, at - box->edit()->pos(), box->mapToGlobal(at));
    event.ignore();
    QApplication::sendEvent(box->edit(), &event);
    QVERIFY(event.isAccepted());
    QCoreApplication::processEvents();
}

/// The box's menu, once it was opened.
inline QMenu *menuOf(const SpinerProbe *box)
{
    return box->edit()->findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
}

inline QLxDoubleSpiner *editorOf(const SpinerProbe *box)
{
    auto *const action = qobject_cast<QWidgetAction *>(menuOf(box)->actions().constFirst());
    return qobject_cast<QLxDoubleSpiner *>(action->defaultWidget());
}

inline QString selectionIn(const QLxDoubleSpiner *editor)
{
    return editor->findChild<QLineEdit *>()->selectedText();
}

inline void turnWheel(QWidget *widget)
{
    const QPoint at(5, 5);
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

/// Two boxes of which the second has the focus, so that the menu of the first takes it from neither.
struct Pair : SpinerPair
{
    Pair()
    {
        window->move(100, 50);
        other->setFocus();
        if (!QTest::qWaitForWindowActive(window))
            qWarning("the window is not active"); // fails the test
    }
};

/// What a person does in the open menu to change the step from 0.5.
struct Edit
{
    const char *name;
    void (*act)(QLxDoubleSpiner *editor);
};

const Edit edits[] = {
    {"typed, Return",
     [](QLxDoubleSpiner *editor) {
         QTest::keyClicks(editor, QStringLiteral("2"));
         QTest::keyClick(editor, Qt::Key_Return);
     }},
    {"up key", [](QLxDoubleSpiner *editor) { QTest::keyClick(editor, Qt::Key_Up); }},
    {"wheel", [](QLxDoubleSpiner *editor) { turnWheel(editor); }},
    {"drag",
     [](QLxDoubleSpiner *editor) {
         Pointer pointer(editor->findChild<QLineEdit *>());
         pointer.press({0, 3}, Qt::MiddleButton);
         pointer.move({2, 3});
         pointer.release({2, 3}, Qt::MiddleButton);
     }},
};

#endif
