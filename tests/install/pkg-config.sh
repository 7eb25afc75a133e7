#!/bin/sh
# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# pkg-config.sh PREFIX WORK-FOLDER: compiles and runs a program with the flags of the installed .pc file.
set -eu
prefix=$1
work=$2
mkdir -p "$work"
PKG_CONFIG_PATH=$(find "$prefix" -name pkgconfig -type d)
export PKG_CONFIG_PATH
cat > "$work/program.cpp" <<'EOF'
#include <QLxColorSpaces.h>
int main() { return QLx::toQColorRaw({120, 1, 1}) == QColor(0, 255, 0) ? 0 : 1; }
EOF
# The flags are quoted where a folder's name has blanks.
eval "set -- $(pkg-config --cflags --libs QLxControls)"
"${CXX:-c++}" -std=c++17 -fPIC "$work/program.cpp" -o "$work/program" "$@"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir QLxControls) "$work/program"
