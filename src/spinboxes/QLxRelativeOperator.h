// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXRELATIVEOPERATOR_H
#define QLXRELATIVEOPERATOR_H

/// How an edit changes a number that is already there. Typed as the operator before an operand: "+=5".
enum RelativeOperator : int {
    RelOpNone = 0,     ///< no relative edit
    RelOpAdd = 1,      ///< "+=": value + operand
    RelOpSubtract = 2, ///< "-=": value - operand
    RelOpMultiply = 3, ///< "*=": value * operand
    RelOpDivide = 4,   ///< "/=": value / operand; a zero operand leaves the value alone
    RelOpAssign = 5    ///< the operand itself; never typed, reported for a plain number that was confirmed
};

/// What a spin box does with a relative operator typed into it. A number outside the enum is neither.
enum RelativeOperatorHandlingMode : int {
    ApplyRelativeOperator = 0, ///< changes its own value
    EmitRelativeOperator = 1   ///< keeps its value and reports the edit, for example for a whole selection
};

#endif
