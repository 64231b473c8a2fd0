#!/usr/bin/env bash
# Looks for inputs that break a promise: ./fuzz.sh TARGET SECONDS, TARGET being recording,
# profile, settings, decode, exports or graph. Inputs worth keeping gather in build/fuzz/corpus,
# those that break something in build/fuzz/finds. "./fuzz.sh TARGET merge" adds to the kept
# inputs in tests/fuzz/corpus what reaches code that they do not.
set -euo pipefail
cd "$(dirname "$0")"
target=$1
seconds=$2

if ! command -v clang++-16 >/dev/null || [ ! -e /usr/lib/llvm-16/lib/clang/16/include/fuzzer ]; then
    echo "Needs clang 16 and its runtime: apt-get install clang-16 libclang-rt-16-dev" >&2
    exit 1
fi
build=$PWD/build/fuzz
mkdir -p "$build"
{
    cmake --preset fuzz -DCMAKE_CXX_COMPILER_LAUNCHER=ccache &&
        cmake --build --preset fuzz --target "fuzz_$target"
} >"$build/build-log-$target.txt" 2>&1 || {
    cat "$build/build-log-$target.txt" >&2
    exit 1
}
kept=$PWD/tests/fuzz/corpus/$target
found=$build/corpus/$target
mkdir -p "$kept" "$found" "$build/finds"
if [ "$seconds" = merge ]; then
    exec "$build/bin/fuzz_$target" -merge=1 -use_counters=0 "$kept" "$found"
fi

case $target in
profile | settings) limits=(-max_len=16384 -dict="$PWD/tests/fuzz/xml.dict") ;;
exports) limits=(-max_len=4096 -dict="$PWD/tests/fuzz/xml.dict") ;;
*) limits=(-max_len=4096) ;;
esac
# Targets write files, thousands a second: in memory where there is a file system for it.
base=${TMPDIR:-/tmp}
[ -d /dev/shm ] && base=/dev/shm
TMPDIR=$(mktemp -d "$base/orna-fuzz.XXXXXX")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
nice -n 19 "$build/bin/fuzz_$target" -max_total_time="$seconds" -rss_limit_mb=2048 -timeout=10 \
    -artifact_prefix="$build/finds/$target-" -print_final_stats=1 "${limits[@]}" "$found" "$kept"
