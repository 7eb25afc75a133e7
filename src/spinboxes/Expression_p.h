// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef EXPRESSION_P_H
#define EXPRESSION_P_H

#include <QString>

#include <optional>

namespace QLx {

/// The number that an arithmetic expression gives, nothing for a syntax error, a regular expression or
/// anything else but a number.
/// Division by zero gives an infinity or NaN; a leading 0 before octal digits makes them octal ("010" is 8).
/// Costs a script engine of its own, some 0.1 ms. Needs a QCoreApplication.
std::optional<double> evaluateExpression(const QString &text);

} // namespace QLx

#endif
