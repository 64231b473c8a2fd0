#!/usr/bin/env bash
# The manual pages against the programs: each synopsis names just the options that the command's
# own help names, and each of them has an entry that explains it.
set -euo pipefail
cli=$1 demo=$2 pages=$3
failed=0

options() { grep -oE -- '--[a-z-]+' | grep -vx -- --help | sort -u; }

check() { # page, command, what the help says
    local page synopsis entries option
    page=$(sed 's/\\-/-/g' "$pages/$1.1.in")
    synopsis=$(awk -v command="$2" '
        $1 == ".SY" { name = $0; gsub(/^\.SY |"/, "", name); inside = name == command }
        $1 == ".YS" { inside = 0 }
        inside' <<<"$page")
    entries=$(sed -n '/^\.SH OPTIONS/,/^\.SH EXIT/p' <<<"$page" | grep -A1 '^\.TP')
    if ! diff <(options <<<"$3") <(options <<<"$synopsis"); then
        echo "$1(1): the synopsis of \"$2\" (>) is not what its help says (<)"
        failed=1
    fi
    for option in $(options <<<"$3"); do
        if ! grep -qE -- "$option( |\"|$)" <<<"$entries"; then
            echo "$1(1): no entry explains $option"
            failed=1
        fi
    done
}

# Options and commands stand in the left column; the descriptions beside it name others.
named() { sed -n 's/^ \{2,8\}\(-[a-z], *\)\{0,1\}\(--[a-z-]*\).*/\2/p'; }

commands_of() { sed -n '/^subcommands:/I,$s/^  \([a-z]*\) .*/\1/p'; }

commands=$("$cli" --help | commands_of)
[ -n "$commands" ]
for command in $commands; do
    parts=$("$cli" "$command" --help | commands_of)
    for part in $parts; do
        check orna-cli "orna-cli $command $part" "$("$cli" "$command" "$part" --help | named)"
    done
    [ -n "$parts" ] || check orna-cli "orna-cli $command" "$("$cli" "$command" --help | named)"
done
check orna-cli orna-cli "$("$cli" --help | named)"
check orna-demo orna-demo "$("$demo" --help | named)"
exit $failed
