#!/usr/bin/env bash
# Builds and runs the benchmarks. Prints one line a figure, "NAME VALUE TARGET ok|short", and
# nothing else on standard output. --quick leaves the 1 GB recording out, --peers adds other
# tools where they are installed, a name's beginning ("load.") measures those figures alone.
set -euo pipefail
cd "$(dirname "$0")"
if [ -x scripts/setup.sh ]; then
    scripts/setup.sh >&2
fi

build=build/bench
mkdir -p "$build"
{
    cmake --preset bench -DCMAKE_CXX_COMPILER_LAUNCHER=ccache &&
        cmake --build --preset bench --target orna-bench orna-bench-window
} >"$build/build-log.txt" 2>&1 || {
    cat "$build/build-log.txt" >&2
    exit 1
}
export TMPDIR=$PWD/$build # on the disk, where /tmp may be memory
"$build/bin/orna-bench" "$@"
# Windows need a display, a virtual one will do.
xvfb-run -a -s "-screen 0 1400x1000x24" "$build/bin/orna-bench-window" "$@"
