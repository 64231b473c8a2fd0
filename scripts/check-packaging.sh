#!/usr/bin/env bash
# Checks what an installation consists of: desktop entry, metainfo, MIME types, icons and manual
# pages by the tools that will read them, an installation into a folder, the Debian package.
# Usage: check-packaging.sh BUILD_FOLDER, built with the viewer.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "packaging: $*" >&2
    exit 1
}

stage=$work/stage
cmake --install "$build" --prefix "$stage" >/dev/null

desktop-file-validate "$stage/share/applications/orna.desktop"
appstreamcli validate --no-net "$stage"/share/metainfo/*.metainfo.xml
find "$stage" -name '*.svg' -exec xmllint --noout {} +

update-mime-database "$stage/share/mime" 2>"$work/mime" || fail "$(cat "$work/mime")"
# The cards of a unit name their files in upper case; a project is known by its root alone.
mime() {
    XDG_DATA_HOME=$work/none XDG_DATA_DIRS=$stage/share:/usr/share \
        gio info -a standard::content-type "$1" | sed -n 's/.*content-type: //p'
}
"$stage/bin/orna-demo" --out "$work/card" --minutes 1 --files 1
recording=$work/card/LOG_0001.CAN
[ "$(mime "$recording")" = application/x-orna-recording ] || fail "no MIME type for $recording"
cp resources/demo/Demo_Project.xml "$work/project"
[ "$(mime "$work/project")" = application/x-orna-project+xml ] || fail "no MIME type for a project"

for page in "$stage"/share/man/man1/*.1.gz; do
    gzip -dc "$page" | groff -man -Tutf8 -ww -z 2>"$work/groff"
    [ ! -s "$work/groff" ] || fail "$page: $(cat "$work/groff")"
done

# The installed programs on the installed files.
"$stage/bin/orna-cli" events --profile "$stage"/lib*/orna/orna.app/Contents/Resources/Tolvane_Profile.xml \
    "$recording" >/dev/null 2>"$work/events" || fail "$(cat "$work/events")"
[ -x "$stage/bin/orna" ] || fail "bin/orna leads nowhere"
[ "$(readlink "$stage/bin/orna")" = "$(realpath --relative-to="$stage/bin" "$stage/bin/orna")" ] ||
    fail "bin/orna is no relative link: the tree could not be moved"

(cd "$work" && cpack -G DEB --config "$build/CPackConfig.cmake" >"$work/cpack" 2>&1) ||
    fail "$(cat "$work/cpack")"
dpkg-deb -c "$work"/orna_*.deb | awk '{print $6}' >"$work/files"
[[ $(dpkg-deb -f "$work"/orna_*.deb Depends) == *libqt6widgets6* ]] || fail "no library dependencies"
resources=lib/orna/orna.app/Contents/Resources
for file in bin/orna{,-cli,-demo} lib/orna/orna.app/Contents/MacOS/orna \
    $resources/{Tolvane_Profile.xml,{tarn,qt}_{de,es,fr,pt,cz}.qm} \
    share/applications/orna.desktop share/mime/packages/orna.xml \
    share/icons/hicolor/scalable/apps/orna.svg \
    share/icons/hicolor/scalable/mimetypes/application-x-orna-{project+xml,recording}.svg \
    share/man/man1/orna{,-cli,-demo}.1.gz share/doc/orna/{copyright,changelog.Debian.gz,README.md}; do
    grep -qxF "./usr/$file" "$work/files" || fail "the package lacks /usr/$file"
done
! grep -qE '\.(a|h|cmake)$' "$work/files" || fail "the package holds files for building"
