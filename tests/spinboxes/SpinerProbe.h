// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef SPINERPROBE_H
#define SPINERPROBE_H

#include "QLxDoubleSpiner.h"
#include "SignalLog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QtTest>

/// A double spin box that lets tests at its line edit.
class SpinerProbe : public QLxDoubleSpiner
{
public:
    using QLxDoubleSpiner::QLxDoubleSpiner;
    QLineEdit *edit() const { return lineEdit(); }

    /// Replaces the text as a user does who selects it all and types.
    void type(const char *text)
    {
        selectAll();
        QTest::keyClicks(this, QString::fromLatin1(text));
    }
};

/// Logs everything that a double spin box emits; "applied" and "changed" are its relative operators'.
inline void watch(SignalLog &log, QLxDoubleSpiner *box)
{
    using B = QLxDoubleSpiner;
    log.watch(box, &B::singleStepChanged, "singleStepChanged");
    log.watch(box, &B::mouseButtonPressed, "mouseButtonPressed");
    log.watch(box, &B::mouseButtonReleased, "mouseButtonReleased");
    log.watch(box, &B::relativeOperatorChanged, "changed");
    log.watch(box, &B::relativeOperatorApplied, "applied");
    log.watch(box, &B::focusGained, "focusGained");
    log.watch(box, QOverload<double>::of(&B::valueChanged), "value");
    log.watch(box, &B::editingFinished, "editingFinished");
}

/// Two boxes in a window, so that the keyboard focus can go from one to the other. The first has it.
struct SpinerPair
{
    SpinerPair()
    {
        auto *const layout = new QHBoxLayout(window);
        layout->addWidget(box);
        layout->addWidget(other);
        window->show();
        QApplication::setActiveWindow(window);
        box->setFocus();
    }
    ~SpinerPair() { delete window; }
    Q_DISABLE_COPY_MOVE(SpinerPair)

    QPointer<QWidget> window = new QWidget;
    QPointer<SpinerProbe> box = new SpinerProbe(window);
    QPointer<SpinerProbe> other = new SpinerProbe(window);
};

#endif
