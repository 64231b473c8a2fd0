#!/usr/bin/env bash
# Installs what is missing, builds, runs every test. Ends with a status other than 0 when
# anything fails: a warning of the compiler, a file that is not formatted, a test.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh

step() { printf '\n== %s\n' "$*"; }
launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache

step "format"
git ls-files '*.cpp' '*.h' | xargs clang-format-14 --dry-run --Werror

step "build and test"
cmake --preset release $launcher -DORNA_WERROR=ON
cmake --build --preset release
QT_QPA_PLATFORM=offscreen ctest --preset release --label-exclude display --parallel 2
xvfb-run -a -s "-screen 0 1400x1000x24" ctest --preset release --label-regex display

step "the same numbers and dates in another country"
mkdir -p build/locale
localedef -i de_DE -f UTF-8 build/locale/de_DE.UTF-8
LOCPATH=$PWD/build/locale LC_ALL=de_DE.UTF-8 TZ=America/St_Johns QT_QPA_PLATFORM=offscreen \
    ctest --preset release --label-exclude display --parallel 2 --quiet

step "packaging"
scripts/check-packaging.sh build/release

step "core and window under the address and undefined-behaviour sanitizers"
cmake --preset asan $launcher -DORNA_WERROR=ON
cmake --build --preset asan
ctest --preset asan --label-exclude display --parallel 2
# The window in use: graphics drivers leak by themselves, so leaks are looked for in the core only.
ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=16 \
    xvfb-run -a -s "-screen 0 1400x1000x24" ctest --preset asan --tests-regex tst_soak

printf '\nAll tests passed.\n'
