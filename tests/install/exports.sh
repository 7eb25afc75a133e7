#!/bin/sh
# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# exports.sh LIBRARY: fails if the library exports anything but its public classes, namespace QLx's
# conversions and settings, and the plugin's entry points.
set -eu
surplus=$(nm -D --defined-only -C "$1" | cut -d ' ' -f 3- | grep -vE \
    -e '^((non-virtual )?(thunk|vtable|typeinfo|typeinfo name|guard variable) (to|for) )?QLxColor(Slider|Field|Button|Manipulator)(::|$)' \
    -e '^QLx::(hsvToRgb|rgbToHsv|rgbToLab|labToHsv|linearToSrgb|srgbToLinear|to(Srgb|Q)Color(Raw|F)?|fromSrgbColor)\(' \
    -e '^QLx::(colorUseGamma|colorGammaValue|whitePoint|labChromaRange)$' \
    -e '^qt_plugin_(instance|query_metadata)$' \
    -e '^(__bss_start|_edata|_end|_init|_fini)$' || true)
[ -z "$surplus" ] || { printf 'exported without need:\n%s\n' "$surplus"; exit 1; }
