// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef BENCHMARKMAIN_H
#define BENCHMARKMAIN_H

/// Registers a program's benchmarks; each program has its own, main() is shared. The names are paths,
/// FAMILY/ROW/..., and make_table.py has a table for every family.
void addBenchmarks();

#endif
