#!/usr/bin/env bash
# Fails if a translation file lacks a text of the sources, holds one that is gone, unfinished or
# empty, if a translation fills in other values (%1, %L2) than its text does, or if a manual has
# other headings, lists or tables than the English one.
# Usage: check-translations.sh LUPDATE
set -euo pipefail
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp resources/translations/tarn_*.ts "$work"
# What only the sources have comes in as unfinished, what only a file has becomes vanished.
"$1" -silent -locations none src -ts "$work"/*.ts

shape() { grep -oE '^(#+ |- |[|])' "$1"; }
for code in cz de es fr pt; do
    diff -q <(shape resources/help/manual_us.md) <(shape "resources/help/manual_$code.md") >/dev/null || {
        echo "manual_$code.md: not built like manual_us.md"
        exit 1
    }
done

awk -v RS='</message>' '
function between(start, end,    from, rest) {
    from = index($0, start)
    if (!from) return ""
    rest = substr($0, from + length(start))
    return substr(rest, 1, index(rest, end) - 1)
}
function complain(what) {
    file = FILENAME
    sub(/.*\//, "", file)
    printf "%s: %s: %s: \"%s\"\n", file, context, what, source
    ++faults
}
/<name>/ { context = between("<name>", "</name>") }
/<source>/ {
    source = between("<source>", "</source>")
    translation = between("<translation", "</translation>")
    ++texts
    if (translation ~ /^ type="unfinished"/) { complain("not translated"); next }
    if (translation ~ /^ type=/) { complain("no longer in the sources"); next }
    if (translation ~ /^>[ \n]*$/ || translation ~ /<numerusform><\/numerusform>/ ||
        translation == "") { complain("empty"); next }
    for (i = 1; i <= 9; ++i) {
        marker = "%L?" i
        if ((source ~ marker) != (translation ~ marker)) complain("%" i " is not in both")
    }
}
END {
    if (!texts) { print "no texts found"; exit 1 }
    exit faults > 0
}' "$work"/*.ts
