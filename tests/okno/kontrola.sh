#!/bin/bash
# The check of the machine by the program as it is shipped: without a display it must say so and
# go on to the end, on a virtual one nothing must be wrong.
#   kontrola.sh STAGING
set -eu
staging="$1"
sirka=640
vyska=480
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/spolecne.sh"
cp -r "$staging" "$prace/hra"
export XDG_CONFIG_HOME="$prace/nastaveni" XDG_STATE_HOME="$prace/stav" XDG_DATA_HOME="$prace/ucet"
export SDL_AUDIODRIVER=dummy
# What the program ended with is in $stav, what it said in $prace/vypis.
kontrola() {
    stav=0
    "$@" timeout 60 "$prace/hra/rysovna" --kontrola >"$prace/vypis" 2>&1 || stav=$?
}

kontrola env -u DISPLAY -u WAYLAND_DISPLAY
[ "$stav" = 1 ] || selhani "bez displeje skončila kontrola se stavem $stav: $(cat "$prace/vypis")"
grep -q "Obrazovka" "$prace/vypis" || selhani "o obrazovce nic: $(cat "$prace/vypis")"
grep -q "Zámek výsledků.*lze získat" "$prace/vypis" || selhani "nedošla k výsledkům: $(cat "$prace/vypis")"

displej
kontrola env -u WAYLAND_DISPLAY
[ "$stav" = 0 ] || selhani "na displeji skončila kontrola se stavem $stav: $(cat "$prace/vypis")"
[ ! -e "$prace/stav" ] || selhani "kontrola něco založila"
