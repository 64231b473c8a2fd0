#!/usr/bin/env bash
# The sources pass the check of their floors, and each kind of stray include fails it.
# Usage: floors.sh CHECK SRC
set -euo pipefail
check=$1
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT

"$check" "$2"
while read -r file include; do
    rm -rf "$copy/src"
    cp -r "$2" "$copy/src"
    sed -i "0,/^#include/s|^#include|#include $include\n&|" "$copy/src/$file"
    if "$check" "$copy/src" 2>"$copy/said"; then
        echo "$include in $file was let through"
        exit 1
    fi
    grep -q "$file\|circle" "$copy/said" || { cat "$copy/said"; exit 1; }
done <<'STRAYS'
record/Record.cpp "app/Bundle.h"
profile/Profile.h "faults/Episode.h"
table/TableModel.cpp "graph/GraphModel.h"
card/DialogCard.h "events/EventModel.h"
widgets/Kernel.cpp "record/Record.h"
cli/Inputs.cpp "Inputs.h"
flight/Session.h <QtWidgets/QWidget>
graph/GraphModel.h "widgets/EmptyPlace.h"
profile/ProfileTypes.h "profile/Profile.h"
STRAYS
