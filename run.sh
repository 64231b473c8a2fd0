#!/usr/bin/env bash
# Installs what is missing, builds, makes the demo flight and opens the viewer on it, with a home
# of its own so that the user's settings are never touched. Without a display it runs the same
# session under a virtual one and leaves screenshots and exports.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh

root=$PWD
build=$root/build/release
demo=$root/build/demo
cmake --preset release -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >"$root/build-log.txt" 2>&1 &&
    cmake --build --preset release --target orna orna-cli orna-demo orna-tour >>"$root/build-log.txt" 2>&1 || {
    cat "$root/build-log.txt"
    exit 1
}
mkdir -p "$demo/home/ORNA"
mv "$root/build-log.txt" "$demo/build-log.txt"
[ -e "$demo/card/LOG_0001.CAN" ] || "$build/bin/orna-demo" --out "$demo/card"
[ -e "$demo/week2/LOG_0001.CAN" ] || "$build/bin/orna-demo" --seed 2 --out "$demo/week2"

export HOME=$demo/home
settings=$HOME/ORNA/ORNA.ini
# The logbook of a season: an injector is cleaned after two flights and clogs anew in the last four.
if [ ! -e "$HOME/ORNA/Logbook.sqlite" ]; then
    for number in $(seq 3 14); do
        "$build/bin/orna-demo" --seed "$number" --wear $((number > 10 ? number - 10 : 0)) \
            --out "$demo/season/flight$number"
    done
    "$build/bin/orna-cli" logbook add --profile resources/Tolvane_Profile.xml \
        "$demo/card" "$demo/week2" "$demo/season" >"$demo/logbook-log.txt" 2>&1 &&
        "$build/bin/orna-cli" logbook mark TV6-300-1187 2026-05-28 "Injector 6 cleaned"
fi
if [ ! -e "$settings" ]; then
    cp resources/demo/Demo_Project.xml "$HOME/ORNA/Demo_Project.xml"
    cat >"$settings" <<XML
<TARN>
    <Property id="LastPath" value="$demo/card"/>
    <Property id="LastProjectPath" value="$HOME/ORNA/Demo_Project.xml"/>
</TARN>
XML
fi

cd "$build" # the program looks for its bundle below the working directory
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || [ "$(uname)" = Darwin ]; then
    echo "Opening the demo flight: click a recording in the list on the left."
    echo "The same aircraft a week later, to compare with: $demo/week2"
    echo "Its season of 14 flights: Extras, Logbook"
    exec orna.app/Contents/MacOS/orna
fi
profile=orna.app/Contents/Resources/Tolvane_Profile.xml
selection=(--profile "$profile" --project "$HOME/ORNA/Demo_Project.xml")
recordings=("$demo"/card/LOG_*.CAN)
{
    bin/orna-cli csv "${selection[@]}" -o "$demo/flight.csv" "${recordings[@]}"
    bin/orna-cli kml "${selection[@]}" -o "$demo/flight.kml" "${recordings[@]}"
    bin/orna-cli can --start 33800 --stop 33900 -o "$demo/excerpt.CAN" "${recordings[@]}"
} 2>"$demo/export-log.txt" || {
    cat "$demo/export-log.txt"
    exit 1
}
xvfb-run -a -s "-screen 0 1400x1000x24" bin/orna-tour "$demo" >"$demo/tour-log.txt" 2>&1 || {
    cat "$demo/tour-log.txt"
    exit 1
}
echo "No display here: the demo flight was opened on a virtual one. Screenshots and exports of it:"
ls "$demo"/*.png "$demo"/flight.* "$demo"/excerpt.CAN
