// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Expression_p.h"

#include <QScriptEngine>

std::optional<double> QLx::evaluateExpression(const QString &text)
{
    QScriptEngine engine;
    const QScriptValue result = engine.evaluate(text);
    if (!result.isValid() || !result.isNumber())
        return std::nullopt;
    return result.toNumber();
}
