// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef WHILEALIVE_P_H
#define WHILEALIVE_P_H

#include <QObject>
#include <QPointer>

/// Runs the steps in order and stops as soon as object has been destroyed. A receiver of a signal may
/// delete the sender, so each emission that is followed by anything else is a step of its own.
/// Returns whether object still lives, that is, whether the caller may go on using its members.
template <typename... Steps>
bool whileAlive(QObject *object, Steps &&...steps)
{
    const QPointer<QObject> alive(object);
    return ((steps(), !alive.isNull()) && ...);
}

#endif
