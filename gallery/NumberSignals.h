// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_NUMBERSIGNALS_H
#define GALLERY_NUMBERSIGNALS_H

#include "QLxDoubleSpiner.h"
#include "SignalLog.h"
#include "SignalText.h"

/// An argument of a signal, as the log shows it.
inline QString argument(double number)
{
    return QString::number(number, 'g', 10);
}

inline QString argument(RelativeOperator op)
{
    constexpr const char *names[] = {"RelOpNone",     "RelOpAdd",    "RelOpSubtract",
                                     "RelOpMultiply", "RelOpDivide", "RelOpAssign"};
    return QLatin1String(names[op]);
}

/// What to connect a signal to that carries these arguments.
template <typename... Arguments>
auto logger(const QObject *sender, const char *name, SignalLog *log)
{
    return [=](Arguments... arguments) {
        const QStringList texts{argument(arguments)...};
        log->add(sender->objectName(), call(name, texts.join(QStringLiteral(", "))));
    };
}

/// Logs everything that the box emits.
inline void watch(QLxDoubleSpiner *box, SignalLog *log)
{
    using B = QLxDoubleSpiner;
    QObject::connect(box, &B::focusGained, log, logger<>(box, "focusGained", log));
    QObject::connect(box, &B::mouseButtonPressed, log, logger<>(box, "mouseButtonPressed", log));
    QObject::connect(box, &B::mouseButtonReleased, log, logger<>(box, "mouseButtonReleased", log));
    QObject::connect(box, &B::singleStepChanged, log, logger<double>(box, "singleStepChanged", log));
    QObject::connect(box, QOverload<double>::of(&B::valueChanged), log,
                     logger<double>(box, "valueChanged", log));
    QObject::connect(box, &B::relativeOperatorChanged, log,
                     logger<RelativeOperator, double>(box, "relativeOperatorChanged", log));
    QObject::connect(box, &B::relativeOperatorApplied, log,
                     logger<RelativeOperator, double>(box, "relativeOperatorApplied", log));
    QObject::connect(box, &B::editingFinished, log, logger<>(box, "editingFinished", log));
}

#endif
