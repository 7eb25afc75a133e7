# shellcheck shell=sh
# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
#
# Shared by run, check and lint: sourced from the project's folder, with $name set to the command's name.

build_packages='g++ cmake ninja-build pkg-config qtbase5-dev qtscript5-dev qttools5-dev qttools5-dev-tools fonts-dejavu-core'
test_packages='clang xvfb xdotool openbox xcompmgr imagemagick'
lint_packages='clang libclang-rt-14-dev clang-format clang-tidy clazy shellcheck reuse gcovr git libbenchmark-dev'

say() { printf '%s: %s\n' "$name" "$*"; }

fail() {
    printf '%s: %s\n' "$name" "$*" >&2
    exit 1
}

# install_missing PACKAGE...: installs what is missing where apt can, else says what is needed and goes on.
install_missing() {
    if ! command -v apt-get > /dev/null || ! command -v dpkg-query > /dev/null; then
        say "this system has no apt; needed are, by Debian's names: $*"
        return 0
    fi
    missing=
    for package in "$@"; do
        state=$(dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2> /dev/null) || state=
        case $state in ii*) ;; *) missing="$missing $package" ;; esac
    done
    [ -n "$missing" ] || return 0
    as_root=
    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo > /dev/null; then
            say "neither root nor sudo to install with; missing are:$missing"
            return 0
        fi
        as_root=sudo
    fi
    say "installing$missing"
    mkdir -p build
    # shellcheck disable=SC2086 # lists of words
    { $as_root apt-get -q update && $as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y install --no-install-recommends $missing; } > build/apt.log 2>&1 || {
        tail -n 5 build/apt.log >&2
        say "apt could not install$missing; going on with what is there"
    }
}

# build PRESET [TARGET...]: configures and builds quietly; shows the output only if that fails.
build() {
    preset=$1
    shift
    command -v cmake > /dev/null || fail 'cmake is not installed'
    mkdir -p build
    say "building ($preset)"
    cmake --preset "$preset" > "build/$preset.log" 2>&1 || {
        tail -n 30 "build/$preset.log" >&2
        fail "configuring failed (all of it in build/$preset.log)"
    }
    cmake --build --preset "$preset" ${1:+--target "$@"} > "build/$preset.log" 2>&1 || {
        grep -E -A 5 'error|warning' "build/$preset.log" | head -n 60 >&2
        fail "building failed (all of it in build/$preset.log)"
    }
}
