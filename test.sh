#!/usr/bin/env bash
# Installs what is missing, builds, runs every test, and tells how long each step took. Ends with
# a status other than 0 when anything fails: a warning of the compiler, a file that is not
# formatted, a test. Usage: test.sh [--servers]; with it database servers are installed where there
# are none, and the logbook and docs/fleet.md are tested with some that are started in folders of
# their own.
set -euo pipefail
[ $# -eq 0 ] || [ "$*" = --servers ] || { echo "usage: $0 [--servers]" >&2; exit 2; }
servers=${1:-}
cd "$(dirname "$0")"

name=
began=0
step() { # the one that ends here took so long
    [ -z "$name" ] || printf '== %s: %d s\n' "$name" $((SECONDS - began))
    name=$*
    began=$SECONDS
    [ -z "$name" ] || printf '\n== %s\n' "$name"
}
build() { # PRESET [CMAKE OPTIONS] [--target TARGETS]
    local preset=$1 options=()
    shift
    while [[ ${1:-} == -D* ]]; do
        options+=("$1")
        shift
    done
    quietly cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DORNA_WERROR=ON \
        "${options[@]}"
    quietly cmake --build --preset "$preset" "$@"
}
quietly() { # says what was said only where it failed
    mkdir -p build
    "$@" >build/said 2>&1 || { cat build/said && return 1; }
}
core_tests() { # PRESET [OPTIONS]
    QT_QPA_PLATFORM=offscreen quietly ctest --parallel 2 --preset "$@"
}
with_display() { xvfb-run -a -s "-screen 0 1400x1000x24" "$@"; }

step "set up"
scripts/setup.sh "$@"

step "format"
git ls-files '*.cpp' '*.h' | xargs clang-format-14 --dry-run --Werror

step "build"
build release

step "tests of the core"
core_tests release --label-exclude display

if [ -n "$servers" ]; then
    step "the logbook and a fleet on servers"
    ORNA_SERVERS=yes core_tests release --tests-regex '^tst_(logbook|fleet)$'
fi

# They mostly wait for the screen: meanwhile something else can be done.
with_display ctest --preset release --label-regex display >build/windows.log 2>&1 &
windows=$!
trap 'kill $windows 2>/dev/null || true' EXIT

step "the same numbers and dates in another country"
mkdir -p build/locale
localedef -i de_DE -f UTF-8 build/locale/de_DE.UTF-8
# Set by env, not here: bash itself would look for the locale where it is not.
quietly env LOCPATH="$PWD/build/locale" LC_ALL=de_DE.UTF-8 TZ=America/St_Johns \
    QT_QPA_PLATFORM=offscreen ctest --parallel 2 --preset release --label-exclude "display|sources"

step "packaging"
scripts/check-packaging.sh build/release

step "build with the address and undefined-behaviour sanitizers"
build asan --target core_tests tst_soak

step "tests of the windows, until they are done"
wait $windows || { cat build/windows.log && exit 1; }

step "tests with the sanitizers"
core_tests asan --label-exclude "display|sources"
# The window in use: graphics drivers leak by themselves, so leaks are looked for in the core only.
ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=16 \
    quietly with_display ctest --preset asan --tests-regex tst_soak

step "the core without a widget toolkit, under the thread sanitizer"
build core -DORNA_SANITIZE=thread -DCMAKE_CXX_FLAGS_RELEASE=-Og \
    --target tst_record tst_flight tst_curves
# Its shadow memory lies at fixed addresses, which a random layout may have taken.
TSAN_OPTIONS=ignore_noninstrumented_modules=1 QT_QPA_PLATFORM=offscreen \
    quietly setarch --addr-no-randomize ctest --preset core \
    --tests-regex 'tst_(record|flight|curves)$'

step
printf '\nAll tests passed after %d s.\n' "$SECONDS"
