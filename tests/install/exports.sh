#!/bin/sh
# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# exports.sh LIBRARY: fails unless the library exports its public classes, namespace QLx's conversions and
# settings and the plugin's entry points, and nothing else, and unless Designer's link beside it is relative.
set -eu
library=$1
# Weak symbols without our name are Qt's inline functions, those of std the standard library's for our classes.
exported=$(nm -D --defined-only -C "$library" | cut -d ' ' -f 2- | grep -vE '^[WV] .*' | cut -d ' ' -f 2- \
    | sed 's/(.*//; s/ const$//')
weak=$(nm -D --defined-only -C "$library" | cut -d ' ' -f 2- | grep -E '^[WV] .*QLx' | cut -d ' ' -f 2- || true)

missing=
for name in QLx::hsvToRgb QLx::rgbToHsv QLx::rgbToLab QLx::labToHsv QLx::linearToSrgb QLx::srgbToLinear \
    QLx::toSrgbColor QLx::fromSrgbColor QLx::toQColor QLx::toQColorRaw QLx::toQColorF QLx::colorUseGamma \
    QLx::colorGammaValue QLx::whitePoint QLx::labChromaRange QLxColorSlider::QLxColorSlider \
    QLxColorSlider::staticMetaObject QLxColorField::QLxColorField QLxColorField::staticMetaObject \
    QLxColorButton::QLxColorButton QLxColorButton::staticMetaObject QLxColorArray::QLxColorArray \
    QLxColorArray::staticMetaObject QLxColorManipulator::QLxColorManipulator \
    QLxColorManipulator::staticMetaObject QLxDoubleSpiner::QLxDoubleSpiner QLxDoubleSpiner::staticMetaObject \
    QLxSpiner::QLxSpiner QLxSpiner::staticMetaObject QLxComboBox::QLxComboBox QLxComboBox::staticMetaObject \
    QLx::sceneUnit QLx::setSceneUnit qt_plugin_instance qt_plugin_query_metadata; do
    printf '%s\n' "$exported" | grep -qxF "$name" || missing="$missing $name"
done
[ -z "$missing" ] || { echo "not exported:$missing"; exit 1; }

classes='QLx(Color(Slider|Field|Array|Button|Manipulator)|DoubleSpiner|Spiner|ComboBox)'
surplus=$(printf '%s\n' "$exported" "$weak" | grep -vE \
    -e "^((non-virtual )?(thunk|vtable|typeinfo|typeinfo name|guard variable) (to|for) )?$classes(::|\$)" \
    -e '^QLx::(hsvToRgb|rgbToHsv|rgbToLab|labToHsv|linearToSrgb|srgbToLinear|to(Srgb|Q)Color(Raw|F)?|fromSrgbColor)$' \
    -e '^QLx::(sceneUnit|setSceneUnit)$' \
    -e '^QLx::(colorUseGamma|colorGammaValue|whitePoint|labChromaRange)$' \
    -e '^std::' \
    -e '^qt_plugin_(instance|query_metadata)$' \
    -e '^(__bss_start|_edata|_end|_init|_fini|)$' || true)
[ -z "$surplus" ] || { printf 'exported without need:\n%s\n' "$surplus"; exit 1; }

link=$(dirname "$library")/qt5/plugins/designer/libQLxControls.so
[ "$(readlink "$link")" = ../../../libQLxControls.so ] || { echo "$link is not the relative link"; exit 1; }
[ "$(readlink -f "$link")" = "$(readlink -f "$library")" ] || { echo "$link does not lead to the library"; exit 1; }
