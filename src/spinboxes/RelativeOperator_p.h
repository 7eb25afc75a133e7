// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef RELATIVEOPERATOR_P_H
#define RELATIVEOPERATOR_P_H

#include "QLxRelativeOperator.h"

#include <QString>

namespace QLx {

/// Whether text starts with an operator character followed by '='.
bool startsWithRelativeOperator(const QString &text);

/// Reads "+=5", "*= 1.5", "-=2*(3+4)" and the like: an operator at the very start, then a number or an
/// expression. Returns false, and writes nothing, for anything else.
bool parseRelativeOperator(const QString &text, RelativeOperator &op, double &operand);

/// What value becomes. Not clamped; may be infinite or NaN.
double appliedRelativeOperator(RelativeOperator op, double value, double operand);

} // namespace QLx

#endif
