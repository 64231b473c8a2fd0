#!/usr/bin/env bash
# Checks that includes only point down: a folder sees the floors below it, never its neighbours or
# what stands above; headers form no circle; and nothing that the core is made of includes a
# widget. Usage: check-floors.sh [SRC]; prints each offending line and fails.
set -euo pipefail
cd "${1:-$(dirname "$0")/../src}"

declare -A floor=(
    [base]=0
    [record]=1 [widgets]=1
    [profile]=2
    [faults]=3
    [flight]=4
    [card]=5 [selection]=5 [table]=5 [events]=5 [graph]=5 [compare]=5 [track]=5
    [export]=6 [logbook]=6
    [report]=7
    [app]=8 [cli]=8
)
failed=0
complain() {
    echo "$*" >&2
    failed=1
}

# "file:line:folder/header" for every include of a file of ours, "file:line:<header>" for others.
includes=$(grep -rHnE '^[[:space:]]*#[[:space:]]*include' --include='*.h' --include='*.cpp' . |
    sed -E 's|^\./([^:]*:[0-9]+):.*include[[:space:]]*"([^"]*)".*|\1:\2|; s|^\./([^:]*:[0-9]+):.*include[[:space:]]*(<[^>]*>).*|\1:\2|')

while IFS=: read -r file line target; do
    from=${file%%/*}
    [ -n "${floor[$from]+known}" ] || complain "$file: the folder stands on no floor"
    [[ $target == "<"* ]] && continue
    to=${target%%/*}
    [ -e "$target" ] || complain "$file:$line: \"$target\" is not named from the top folder"
    if [ "$from" != "$to" ] && [ "${floor[$to]:-99}" -ge "${floor[$from]:-0}" ]; then
        complain "$file:$line: $from must not include $target"
    fi
done <<<"$includes"

edges=$(sed -nE 's|^([^:]*\.h):[0-9]+:([^<]*)$|\1 \2|p' <<<"$includes")
if ! circle=$(tsort <<<"$edges" 2>&1 >/dev/null); then
    complain "headers include each other in a circle: $circle"
fi

# What the core's sources reach by their includes.
declare -A seen=()
mapfile -t todo < <(sed -nE '/^add_library\(orna_core /,/\)/s|^ +([a-zA-Z0-9_]+/[A-Za-z0-9_]+\.cpp)\)?$|\1|p' CMakeLists.txt)
[ ${#todo[@]} -gt 0 ] || complain "no source of the core found in CMakeLists.txt"
while [ ${#todo[@]} -gt 0 ]; do
    file=${todo[0]}
    todo=("${todo[@]:1}")
    [ -z "${seen[$file]+seen}" ] || continue
    seen[$file]=1
    while IFS=: read -r _ line target; do
        case $target in
        "<QtWidgets/"* | "<QtOpenGL"* | widgets/*)
            complain "$file:$line: the core must not include $target" ;;
        "" | "<"*) ;;
        *) todo+=("$target") ;;
        esac
    done < <(grep -F "$file:" <<<"$includes" | grep "^$file:" || true)
done
for file in {base,record,profile,faults,flight}/*.cpp; do
    [ -n "${seen[$file]+seen}" ] || complain "$file: the ground holds only the core"
done
exit $failed
