// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef NUMBERTEXT_P_H
#define NUMBERTEXT_P_H

#include <QLocale>
#include <QString>

namespace QLx {

/// '+', '-', '*' or '/'.
bool isOperatorCharacter(QChar c);

/// The text between prefix and suffix, with whitespace trimmed and collapsed. Cuts as many characters as
/// the affixes have, whether or not they are there.
QString cleanedText(QString text, const QString &prefix, const QString &suffix);

/// What a cleaned text is, as far as its characters tell.
enum class TextForm {
    Forbidden,        ///< "abc", "5=", "1++2", "1..2", "1+ +2": refused while it is typed
    Number,           ///< "", "-", "12.5", "1.2.3": digits and points after at most a minus
    RelativeOperator, ///< "+=", "*=2", "-=(": begins as a relative operator
    Expression        ///< "2*(3+4)", "2*(", "+5": anything else of digits, blanks, points, ( ) + - * /
};
TextForm textForm(const QString &cleaned);

/// The value with displayDecimals decimals (0 to 323) if exactDecimals, else with at least two and without
/// zeros beyond the second, in the locale's digits. From 1000 on there are no group separators.
QString numberText(double value, int displayDecimals, bool exactDecimals, const QLocale &locale);

/// Into [minimum, maximum]; NaN becomes minimum.
double clampedNumber(double value, double minimum, double maximum);

} // namespace QLx

#endif
