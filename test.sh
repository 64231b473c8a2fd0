#!/usr/bin/env bash
# Installs what is missing, builds, runs every test, and tells how long each step took. Ends with
# a status other than 0 when anything fails: a warning of the compiler, a file that is not
# formatted, a test.
set -euo pipefail
cd "$(dirname "$0")"

name=
began=0
step() { # the one that ends here took so long
    [ -z "$name" ] || printf '== %s: %d s\n' "$name" $((SECONDS - began))
    name=$*
    began=$SECONDS
    [ -z "$name" ] || printf '\n== %s\n' "$name"
}
build() { # PRESET [TARGETS]
    cmake --preset "$1" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DORNA_WERROR=ON >/dev/null
    cmake --build --preset "$1" ${2:+--target "${@:2}"} | tail -n 1
}
core_tests() { QT_QPA_PLATFORM=offscreen ctest --label-exclude display --parallel 2 --quiet "$@"; }
with_display() { xvfb-run -a -s "-screen 0 1400x1000x24" "$@"; }

step "set up"
scripts/setup.sh

step "format"
git ls-files '*.cpp' '*.h' | xargs clang-format-14 --dry-run --Werror

step "build"
build release

step "tests of the core"
core_tests --preset release

step "tests of the windows"
with_display ctest --preset release --label-regex display --quiet

step "the same numbers and dates in another country"
mkdir -p build/locale
localedef -i de_DE -f UTF-8 build/locale/de_DE.UTF-8
LOCPATH=$PWD/build/locale LC_ALL=de_DE.UTF-8 TZ=America/St_Johns core_tests --preset release

step "packaging"
scripts/check-packaging.sh build/release

step "the core without a widget toolkit"
build core
core_tests --preset core

step "build with the address and undefined-behaviour sanitizers"
build asan

step "tests with them"
core_tests --preset asan
# The window in use: graphics drivers leak by themselves, so leaks are looked for in the core only.
ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=16 \
    with_display ctest --preset asan --tests-regex tst_soak --quiet

step "what threads share, with the thread sanitizer"
build tsan tst_record tst_flight tst_curves
# Its shadow memory lies at fixed addresses, which a random layout may have taken.
setarch --addr-no-randomize env QT_QPA_PLATFORM=offscreen \
    ctest --preset tsan --tests-regex 'tst_(record|flight|curves)$' --quiet

step
printf '\nAll tests passed after %d s.\n' "$SECONDS"
