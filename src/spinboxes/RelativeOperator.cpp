// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "RelativeOperator_p.h"

#include "Expression_p.h"
#include "NumberText_p.h"

#include <QMap>

namespace {

const QMap<QString, RelativeOperator> &operators()
{
    static const QMap<QString, RelativeOperator> table = {
        {QStringLiteral("+="), RelOpAdd},
        {QStringLiteral("-="), RelOpSubtract},
        {QStringLiteral("*="), RelOpMultiply},
        {QStringLiteral("/="), RelOpDivide},
    };
    return table;
}

} // namespace

bool QLx::startsWithRelativeOperator(const QString &text)
{
    return text.size() >= 2 && isOperatorCharacter(text.at(0)) && text.at(1) == QLatin1Char('=');
}

bool QLx::parseRelativeOperator(const QString &text, RelativeOperator &op, double &operand)
{
    if (!startsWithRelativeOperator(text))
        return false;
    const QString operandText = text.mid(2);
    bool ok = false;
    double number = operandText.toDouble(&ok);
    if (!ok) {
        const std::optional<double> result = evaluateExpression(operandText);
        if (!result)
            return false;
        number = *result;
    }
    op = operators().value(text.left(2));
    operand = number;
    return true;
}

double QLx::appliedRelativeOperator(RelativeOperator op, double value, double operand)
{
    switch (op) {
    case RelOpNone:
        break;
    case RelOpAdd:
        return value + operand;
    case RelOpSubtract:
        return value - operand;
    case RelOpMultiply:
        return value * operand;
    case RelOpDivide:
        return operand == 0.0 ? value : value / operand;
    case RelOpAssign:
        return operand;
    }
    return value;
}
