// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SIGNALTEXT_H
#define GALLERY_SIGNALTEXT_H

#include "QLxColor.h"
#include "SignalLog.h"

#include <QString>

/// The number with that many decimals and a point.
QString number(float value, int decimals);

/// A signal and its arguments, as the log shows them.
QString call(const char *signal, const QString &arguments = {});
QString call(const char *signal, const QLxColor &color);
QString call(const char *signal, int red, int green, int blue);
QString call(const char *signal, float value);
QString call(const char *signal, float red, float green, float blue);

/// Logs one signal of the sender, under the sender's object name.
template <typename... Arguments, typename Sender>
void watch(Sender *sender, void (Sender::*signal)(Arguments...), const char *name, SignalLog *log)
{
    QObject::connect(sender, signal, log, [=](Arguments... arguments) {
        log->add(sender->objectName(), call(name, arguments...));
    });
}

#endif
