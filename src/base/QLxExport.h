// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#ifndef QLXEXPORT_H
#define QLXEXPORT_H

#include <QtGlobal>

/// Marks what the shared library shows to the programs that link it; all else is hidden.
#ifdef QLX_BUILDING_LIBRARY
#define QLX_EXPORT Q_DECL_EXPORT
#else
#define QLX_EXPORT Q_DECL_IMPORT
#endif

#endif
