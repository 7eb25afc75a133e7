// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "NumberText_p.h"

#include "RelativeOperator_p.h"

#include <algorithm>
#include <cmath>

namespace {

const QLatin1Char point('.');

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9'); // QChar::isDigit() knows other scripts' digits too
}

bool isPartOfExpression(QChar c)
{
    return isDigit(c) || c == point || c == QLatin1Char(' ') || c == QLatin1Char('(') ||
           c == QLatin1Char(')') || c == QLatin1Char('=') || QLx::isOperatorCharacter(c);
}

bool isPlainNumber(const QString &text)
{
    const auto *first = text.begin() + (text.startsWith(QLatin1Char('-')) ? 1 : 0);
    return std::all_of(first, text.end(), [](QChar c) { return isDigit(c) || c == point; });
}

// Two operators or two points in a row, or two operators with one blank or point between them.
bool hasClash(const QString &text)
{
    for (int i = 1; i < text.size(); ++i) {
        const QChar before = text.at(i - 1);
        const QChar here = text.at(i);
        if (before == point && here == point)
            return true;
        if (!QLx::isOperatorCharacter(here))
            continue;
        if (QLx::isOperatorCharacter(before))
            return true;
        if (i >= 2 && (before == QLatin1Char(' ') || before == point) &&
            QLx::isOperatorCharacter(text.at(i - 2)))
            return true;
    }
    return false;
}

} // namespace

bool QLx::isOperatorCharacter(QChar c)
{
    return c == QLatin1Char('+') || c == QLatin1Char('-') || c == QLatin1Char('*') || c == QLatin1Char('/');
}

QString QLx::cleanedText(QString text, const QString &prefix, const QString &suffix)
{
    text.chop(suffix.size());
    text.remove(0, prefix.size());
    return text.simplified();
}

QLx::TextForm QLx::textForm(const QString &cleaned)
{
    if (!std::all_of(cleaned.begin(), cleaned.end(), isPartOfExpression) || hasClash(cleaned))
        return TextForm::Forbidden;
    const int equalSigns = cleaned.count(QLatin1Char('='));
    if (equalSigns > 0)
        return equalSigns == 1 && startsWithRelativeOperator(cleaned) ? TextForm::RelativeOperator
                                                                      : TextForm::Forbidden;
    return isPlainNumber(cleaned) ? TextForm::Number : TextForm::Expression;
}

QString QLx::numberText(double value, int displayDecimals, bool exactDecimals, const QLocale &locale)
{
    int decimals = displayDecimals;
    if (!exactDecimals) {
        const QString digits = QString::number(value, 'f', displayDecimals);
        int end = digits.size();
        while (end > 0 && digits.at(end - 1) == QLatin1Char('0'))
            --end;
        const int at = digits.indexOf(point);
        decimals = at < 0 ? 2 : std::max(2, end - at - 1);
    }
    QString text = locale.toString(value, 'f', decimals);
    if (std::fabs(value) >= 1000.0)
        text.remove(locale.groupSeparator());
    return text;
}

double QLx::clampedNumber(double value, double minimum, double maximum)
{
    if (!(value >= minimum))
        value = minimum;
    return value > maximum ? maximum : value;
}
