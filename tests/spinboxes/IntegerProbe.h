// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef INTEGERPROBE_H
#define INTEGERPROBE_H

#include "QLxSpiner.h"
#include "SignalLog.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QStyleOptionSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

/// Lets tests at what is protected, and remembers whether the box kept the last mouse event from its text.
class Probe : public QLxSpiner
{
public:
    using QLxSpiner::QLxSpiner;
    QLineEdit *edit() const { return lineEdit(); }
    QPoint arrow(QStyle::SubControl which) const
    {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_SpinBox, &option, which, this).center();
    }
    bool consumed = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool result = QLxSpiner::eventFilter(watched, event);
        if (watched == lineEdit() && dynamic_cast<QMouseEvent *>(event))
            consumed = result;
        return result;
    }
};

inline void watch(SignalLog &log, QLxSpiner *box)
{
    log.watch(box, &QLxSpiner::singleStepChanged, "singleStepChanged");
    log.watch(box, QOverload<int>::of(&QLxSpiner::valueChanged), "value");
    log.watch(box, &QLxSpiner::editingFinished, "editingFinished");
}

/// The box under test, which has the keyboard focus, and another one, in an active window.
struct Window : QWidget
{
    Window()
        : box(new Probe)
        , other(new Probe)
    {
        auto *const layout = new QVBoxLayout(this);
        layout->addWidget(box);
        layout->addWidget(other);
        show();
        box->setFocus();
        if (!QTest::qWaitForWindowActive(this))
            qWarning("the window is not active"); // fails the test
    }
    QPointer<Probe> box;
    QPointer<Probe> other;
};

/// Opens the box's menu as the window system does, by an event to its text, and acts on it while it is open.
/// The position is the box's.
inline void openMenu(Probe *box, const std::function<void(QMenu *menu)> &act,
                     QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse, const QPoint &at = {4, 5})
{
    bool opened = false;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        opened = menu;
        // The window system's news of the focus; after the menu closed they would end the next edit.
        QCoreApplication::processEvents();
        if (menu)
            act(menu);
        if (menu)
            menu->close();
    });
    timer.start(0);
    QContextMenuEvent event(reason, at - box->edit()->pos(), box->mapToGlobal(at));
    event.ignore();
    QApplication::sendEvent(box->edit(), &event);
    QVERIFY(opened);
    QVERIFY(event.isAccepted());
}

inline QAction *action(const QMenu *menu, const char *text)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *candidate : actions) {
        if (candidate->text().startsWith(QLatin1String(text)))
            return candidate;
    }
    qWarning("the menu has no %s", text); // fails the test
    return nullptr;
}

inline void choose(QMenu *menu, const char *text)
{
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action(menu, text)).center());
}

inline void chooseFromMenu(Probe *box, const char *text)
{
    openMenu(box, [&](QMenu *menu) { choose(menu, text); });
}

#endif
