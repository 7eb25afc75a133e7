// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef DESKTOP_H
#define DESKTOP_H

#include <QProcess>
#include <QtTest>

/// Runs xdotool with the commands while our own events go on. Returns whether it succeeded.
inline bool onDesktop(const QString &commands)
{
    QProcess xdotool;
    xdotool.start(QStringLiteral("xdotool"), commands.simplified().split(QLatin1Char(' ')));
    return xdotool.waitForStarted() &&
           QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }, 20000) &&
           xdotool.exitStatus() == QProcess::NormalExit && xdotool.exitCode() == 0;
}

inline QString moveTo(const QPoint &global)
{
    return QStringLiteral("mousemove %1 %2 ").arg(global.x()).arg(global.y());
}

inline QString moveTo(const QWidget *widget)
{
    return moveTo(widget->mapToGlobal(widget->rect().center()));
}

#endif
