// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef REGISTERS_H
#define REGISTERS_H

#include <vector>

/// A state of the processor's registers to measure in. On x86 with AVX2 there are two: Qt's AVX2 code may
/// return with the upper halves of the vector registers in use, and SSE code then runs slower until something
/// clears them.
struct Registers
{
    const char *name;
    /// Brings the registers into this state.
    void (*enter)();
};

/// "clean", and where it differs "after_painting".
const std::vector<Registers> &registerStates();

#endif
