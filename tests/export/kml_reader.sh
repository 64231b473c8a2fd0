#!/usr/bin/env bash
# The paths and tracks of the demo flight, opened by a reader that is not ours: its marks, its one
# path, and as many places, with their times, as were exported.
set -euo pipefail
demo=$1 cli=$2 ogrinfo=$3 resources=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
flight=(--profile "$resources/Tolvane_Profile.xml" "$work/LOG_0001.CAN")
selection=(--project "$resources/demo/Demo_Project.xml")

"$demo" --out "$work" --minutes 20 --files 1
"$cli" kml "${selection[@]}" -o "$work/flight.kml" "${flight[@]}" 2>/dev/null
"$ogrinfo" -ro -al "$work/flight.kml" >"$work/seen.txt"

marks=$(grep -c '^  POINT Z (' "$work/seen.txt")
lines=$(grep -c '^  LINESTRING Z (' "$work/seen.txt")
echo "$marks marks, $lines path"
[ "$marks" -gt 1000 ] && [ "$lines" -eq 1 ]

exported() { sed -n 's/^track: \([0-9]*\) positions in 1 stretches$/\1/p'; }
moments() { sed -n "s/.*<$1>\(.*\)T\(.*\)Z<.*/\1 \2/p" "$2" | tr - / | sed -n '1p;$p' | xargs; }

positions=$("$cli" gpx -o "$work/flight.gpx" "${flight[@]}" 2>&1 | exported)
"$ogrinfo" -ro -al "$work/flight.gpx" track_points >"$work/points.txt"
seen=$(grep -c '^  POINT (' "$work/points.txt")
times=$(sed -n 's/^  time (DateTime) = \(.*\)+00$/\1/p' "$work/points.txt" | sed -n '1p;$p' | xargs)
grep '<trkpt' -A 3 "$work/flight.gpx" >"$work/track.txt"
echo "GPX: $positions positions, $seen seen, from $times"
[ "$positions" -gt 10000 ] && [ "$seen" -eq "$positions" ]
[ "$times" = "$(moments time "$work/track.txt")" ]

timed=$("$cli" kml --timed "${selection[@]}" -o "$work/timed.kml" "${flight[@]}" 2>&1 | exported)
"$ogrinfo" -ro -al "$work/timed.kml" >"$work/seen.txt"
[ "$timed" -eq "$positions" ]
if ! "$ogrinfo" --formats | grep -q LIBKML; then
    # The lesser driver knows no tracks: it shows the path, which is the same.
    grep '^  LINESTRING Z (' "$work/seen.txt" | tail -1 >"$work/line.txt"
else
    sed -n '/= Track$/,/^$/p' "$work/seen.txt" >"$work/line.txt"
    times=$(sed -n 's/^  \(begin\|end\) (DateTime) = \(.*\)+00$/\2/p' "$work/line.txt" | xargs)
    [ "$times" = "$(moments when <(grep '^<when' "$work/timed.kml"))" ]
    [ "$(grep -c '^  timestamp (DateTime) = 20' "$work/seen.txt")" -ge $((positions / 10)) ]
fi
seen=$(grep '^  LINESTRING Z (' "$work/line.txt" | tr -cd , | wc -c)
echo "timed KML: $timed positions, $((seen + 1)) seen, from $times"
[ $((seen + 1)) -eq "$positions" ]
