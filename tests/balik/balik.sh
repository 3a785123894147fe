#!/bin/bash
# The package: its makings are in order, twice the same, and it lives its life in clean systems.
#   balik.sh BUILD [SYSTEM...]
# SYSTEM is a name that debootstrap knows; without any, the Debian that the project is built on. Needs
# the right of root for them, own or by sudo.
set -eu
umask 022
sestaveni="$1"
shift
selhani() { echo "SELHALO: $*" >&2; exit 1; }
. packaging/priprav.sh
. packaging/balik/balik.sh

balik="$(sestav_balik "$sestaveni/staging" "$sestaveni/ukazka")"
cp "$balik" build/balik/poprve.deb
sestav_balik "$sestaveni/staging" "$sestaveni/ukazka" >/dev/null
cmp "$balik" build/balik/poprve.deb || selhani "podruhé vznikl jiný balíček"
pristi="$(sestav_balik "$sestaveni/staging" "$sestaveni/ukazka" 1.0+1)"

jako=""
[ "$(id -u)" != 0 ] || jako="--allow-root"
# shellcheck disable=SC2086
lintian $jako --profile debian --fail-on error,warning "$balik" || selhani "lintian"
rozbaleny=build/balik/rozbaleny
rm -rf "$rozbaleny"
dpkg-deb -x "$balik" "$rozbaleny"
desktop-file-validate "$rozbaleny/usr/share/applications/rysovna.desktop" || selhani "položka nabídky"
for klic in Exec TryExec; do
    kde="$(sed -n "s/^$klic=//p" "$rozbaleny/usr/share/applications/rysovna.desktop")"
    [ -x "$rozbaleny/$kde" ] || selhani "položka nabídky: $klic"
done
appstreamcli validate --no-net "$rozbaleny"/usr/share/metainfo/*.xml || selhani "stránka obchodu"
rm -rf "$rozbaleny" build/balik/poprve.deb

pravo=""
[ "$(id -u)" = 0 ] || pravo="sudo"
for system in "${@:-bookworm}"; do
    $pravo tests/balik/system.sh "$system" "$balik" "$pristi" "$sestaveni/ukazka"
done
