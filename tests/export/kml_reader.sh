#!/usr/bin/env bash
# The KML of the demo flight, opened by a reader that is not ours: its marks and its one path.
set -euo pipefail
demo=$1 cli=$2 ogrinfo=$3 resources=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$demo" --out "$work" --minutes 20 --files 1
"$cli" kml --profile "$resources/Tolvane_Profile.xml" --project "$resources/demo/Demo_Project.xml" \
    -o "$work/flight.kml" "$work/LOG_0001.CAN" 2>/dev/null
"$ogrinfo" -ro -al "$work/flight.kml" >"$work/seen.txt"

marks=$(grep -c '^  POINT Z (' "$work/seen.txt")
lines=$(grep -c '^  LINESTRING Z (' "$work/seen.txt")
echo "$marks marks, $lines path"
[ "$marks" -gt 1000 ] && [ "$lines" -eq 1 ]
