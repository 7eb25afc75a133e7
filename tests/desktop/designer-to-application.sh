#!/bin/bash
# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# designer-to-application.sh PREFIX EMPTY-FORM EXAMPLE-SOURCE WORK-FOLDER: the whole way of a form, by mouse and
# keyboard. Qt Designer loads the installed library, the manipulator is dragged from its widget box onto
# an empty form and saved; the example application is built from that form, and its slider is dragged.
set -euo pipefail
prefix=$1
form=$2
example=$3
work=$4
rm -rf "$work"
mkdir -p "$work"
cd "$work"

fail() {
    echo "FAILED: $*"
    import -window root "$work/failure.png" 2> /dev/null && echo "see $work/failure.png"
    exit 1
}
# until_true WHAT COMMAND...: waits up to 30 seconds for the command to succeed.
until_true() {
    local what=$1
    shift
    for ((try = 0; try < 300; ++try)); do
        "$@" && return
        sleep 0.1
    done
    fail "$what"
}
drag() { # FROM-X FROM-Y TO-X TO-Y
    local steps=10
    xdotool mousemove "$1" "$2" mousedown 1
    for ((i = 1; i <= steps; ++i)); do
        xdotool mousemove $(($1 + ($3 - $1) * i / steps)) $(($2 + ($4 - $2) * i / steps)) sleep 0.02
    done
    xdotool mouseup 1
}

cp "$form" form.ui
plugins=$(cd "$prefix"/lib*/qt5/plugins 2> /dev/null || cd "$prefix"/lib/*/qt5/plugins && pwd)
designer=$(pkg-config --variable=host_bins Qt5Core)/designer
QT_PLUGIN_PATH=$plugins "$designer" -style fusion form.ui 2> designer.log &
running=$!
trap 'kill $running 2> /dev/null || true' EXIT
until_true "Designer opens" xdotool search --onlyvisible --name '^Qt Designer$' > /dev/null
grep -q libQLxControls "/proc/$running/maps" || fail "Designer has not loaded the library"

# The filter of the widget box leaves our group with its one widget just below it.
place_widget() {
    xdotool mousemove 130 112 click --repeat 3 1 type QLxColor
    drag 90 160 450 250
    xdotool key ctrl+s
    sleep 0.5
    grep -q '<widget class="QLxColorManipulator" name="qLxColorManipulator">' form.ui
}
until_true "the widget lands on the form" place_widget
kill "$running"
grep -q '<header>QLxColorManipulator.h</header>' form.ui || fail "the form names the header"
[ "$(grep -A 7 'class="QLxColorManipulator"' form.ui | grep -cE '<(width|height)>100<')" = 2 ] \
    || fail "the widget starts with 100 x 100 pixels"

cp "$example"/CMakeLists.txt "$example"/main.cpp .
if ! (cmake -S . -B build -G Ninja -DCMAKE_PREFIX_PATH="$prefix" && cmake --build build) > build.log; then
    cat build.log
    fail "the application builds"
fi
QT_STYLE_OVERRIDE=fusion build/designer-form > signals.log &
running=$!
until_true "the application opens" xdotool search --onlyvisible --pid "$running" > /dev/null
window=$(xdotool search --onlyvisible --pid "$running" | tail -n 1)
xdotool windowactivate --sync "$window" 2> /dev/null || true
left=$(sed -n '/QLxColorManipulator"/,/<\/widget>/s/.*<x>\([0-9]*\)<.*/\1/p' form.ui)
top=$(sed -n '/QLxColorManipulator"/,/<\/widget>/s/.*<y>\([0-9]*\)<.*/\1/p' form.ui)
eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^[XY]=')"
# The slider is 32 pixels wide in a manipulator of 100: from its middle to beyond its right edge.
drag $((X + left + 16)) $((Y + top + 50)) $((X + left + 60)) $((Y + top + 50))
until_true "the slider is released" grep -q '^final colour' signals.log
awk '
    NR == 1 { good = $0 == "slider pressed"; next }
    /^colour/ && !released { good = good && $2 == $3 && $3 == $4 && $2 > grey; grey = $2; ++greys; next }
    /^slider released$/ { ++released; next }
    { good = good && $0 == "final colour: hue 0, saturation 0, value 1"; ++final }
    END { exit !(good && greys > 2 && grey == 255 && released == 1 && final == 1) }
' signals.log || { cat signals.log; fail "press, rising greys, release and final colour are reported"; }
echo "from Designer's widget box to a dragged slider: passed"
