#!/bin/bash
# Plays examples in the real window from outside: a perfect pupil plays them without a window first
# and leaves its events behind; they are carried out by mouse and keyboard on the same examples.
#   ulohy.sh STAGING SHOW "TASKS" [WIDTH HEIGHT [PICTURES [--klavesami]]]
# SHOW is the program ukazka, --klavesami its option: by keys alone. Its events, a line each:
# "seminko N", "mys X Y" (design px), "dolu", "nahoru", "text Ž", "klavesa Delete 0" (1: with Shift,
# 2: with Ctrl), "cekej MS", "fotka NAME". Every example must end with 10 points of 10.
set -eu
staging="$1"
ukazka="$2"
ulohy="$3"
sirka="${4:-1920}"
vyska="${5:-1080}"
obrazky="${6:-}"
cim="${7:-}"
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/spolecne.sh"

# shellcheck disable=SC2086
"$ukazka" $cim "$prace/predloha" $ulohy >/dev/null
udalosti="$prace/predloha/udalosti.txt"
seminko="$(awk '$1 == "seminko" { print $2 }' "$udalosti")"

# One script for xdotool between two pictures. The window is real: it gets a little more time than
# the virtual clock took.
awk -v w="$sirka" -v h="$vyska" -v kam="$prace/usek" "$awk_meritko"'
    BEGIN { cast = 0; soubor = sprintf("%s%04d", kam, cast); printf "" > soubor }
    $1 == "mys"     { printf "mousemove %d %d\nsleep 0.01\n", ox + ($2 + 0.5) * s, oy + ($3 + 0.5) * s > soubor }
    $1 == "dolu"    { print "mousedown 1\nsleep 0.02" > soubor }
    $1 == "nahoru"  { print "mouseup 1\nsleep 0.08" > soubor }
    $1 == "text"    { printf "type --clearmodifiers \"%s\"\nsleep 0.06\n", $0 == "text  " ? " " : $2 > soubor }
    $1 == "klavesa" { printf "key %s%s\nsleep 0.05\n", $3 == 2 ? "ctrl+" : $3 == 1 ? "shift+" : "",
                             $2 == "Space" ? "space" : $2 > soubor }
    $1 == "cekej"   { printf "sleep %.3f\n", $2 / 1000 + 0.06 > soubor }
    $1 == "fotka"   { close(soubor); print $2 > (soubor ".jmeno"); close(soubor ".jmeno")
                      soubor = sprintf("%s%04d", kam, ++cast); printf "" > soubor }
' "$udalosti"

spust --seminko "$seminko"
if [ -n "$cim" ] && grep -qE '^(mys|dolu|nahoru)' "$udalosti"; then selhani "hraje se i myší"; fi
for usek in "$prace"/usek????; do
    xdotool "$usek" || selhani "xdotool: $usek"
    kill -0 "$pid_hra" 2>/dev/null || selhani "hra skončila: $(cat "$prace/chyby")"
    if [ -f "$usek.jmeno" ]; then fotka "$(cat "$usek.jmeno")"; fi
done

log
pocet="$(wc -w <<<"$ulohy")"
plnych="$(log | grep -c 'Klad. body: 10  *Záp. body: 0 ')" || true
[ "$plnych" = "$pocet" ] || selhani "z $pocet příkladů je jich za deset bodů $plnych"
echo "V pořádku: $pocet příkladů, každý za deset bodů."
