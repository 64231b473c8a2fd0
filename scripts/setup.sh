#!/usr/bin/env bash
# Installs what building, testing and running needs. The one list of packages; safe to repeat.
# Usage: setup.sh [--servers]; with it the database servers that the tests start by themselves, none
# of which runs or starts with the machine because of this.
set -euo pipefail

packages=(
    # build
    g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 libqt6opengl6-dev
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
    libgl-dev libopengl-dev libcli11-dev nlohmann-json3-dev libssl-dev
    # the logbook's databases, loaded by name at run time
    libqt6sql6-sqlite libqt6sql6-psql
    # test and benchmark
    clang-format-14 gdal-bin locales
    # packaging and its checks
    dpkg-dev file desktop-file-utils appstream shared-mime-info libglib2.0-bin libxml2-utils groff-base
    # a screen where there is none
    xvfb xauth xdotool libgl1-mesa-dri fonts-dejavu-core
)

if [ "$(uname)" = Darwin ]; then
    # Untested: the packages of the same names as far as Homebrew has them.
    brew install cmake ninja ccache qt cli11 nlohmann-json google-benchmark clang-format
    exit
fi

servers=()
[ "${1:-}" = --servers ] && servers=(postgresql clickhouse-server clickhouse-client)
packages+=("${servers[@]}")

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "installing: ${missing[*]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq

is_missing() { [[ " ${missing[*]} " == *" $1 "* ]]; }
policy=/usr/sbin/policy-rc.d # asked by packages whether they may start what they bring
if is_missing postgresql && [ ! -e /etc/postgresql-common ]; then
    # Installed alone it would make a database for everybody, and start with the machine.
    "${as_root[@]}" mkdir -p /etc/postgresql-common/createcluster.d
    echo "create_main_cluster = false" |
        "${as_root[@]}" tee /etc/postgresql-common/createcluster.d/orna.conf >/dev/null
fi
if is_missing clickhouse-server && [ ! -e $policy ]; then
    trap '"${as_root[@]}" rm -f $policy' EXIT
    printf '#!/bin/sh\nexit 101\n' | "${as_root[@]}" tee $policy >/dev/null
    "${as_root[@]}" chmod 755 $policy
fi
"${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
if is_missing clickhouse-server; then
    "${as_root[@]}" update-rc.d clickhouse-server disable
fi
