// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "Expression_p.h"

#include <QScriptEngine>

namespace {

// To the script engine, a slash where a number should be starts a regular expression, and matching one can
// take hours.
bool holdsRegularExpression(const QString &text)
{
    bool expectsNumber = true;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isSpace())
            continue;
        if (c == QLatin1Char('/')) {
            const QStringRef rest = text.midRef(i, 2);
            if (rest == QLatin1String("//"))
                return false; // a comment to the end
            if (rest == QLatin1String("/*")) {
                i = text.indexOf(QLatin1String("*/"), i + 2) + 1;
                if (i == 0)
                    return false; // a comment without an end
                continue;
            }
            if (expectsNumber)
                return true;
        }
        expectsNumber = QStringLiteral("+-*/(=").contains(c);
    }
    return false;
}

} // namespace

std::optional<double> QLx::evaluateExpression(const QString &text)
{
    if (holdsRegularExpression(text))
        return std::nullopt;
    QScriptEngine engine;
    const QScriptValue result = engine.evaluate(text);
    if (!result.isValid() || !result.isNumber())
        return std::nullopt;
    return result.toNumber();
}
