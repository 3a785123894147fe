#!/bin/bash
# Drags of a triangle in the real window on virtual displays of three sizes: from a move of the hand to
# the pixel.
#   tah.sh STAGING [OTHER_STAGING]
# A perfect pupil's events of one example are carried out; at each of its drags a hundred moves are
# measured instead. Two copies are played in turns, three times.
set -eu
kopie=("$1" ${2:+"$2"})
programy="$(dirname "$1")"
obrazky=""
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/../tests/okno/spolecne.sh"

"$programy/ukazka" "$prace/predloha" 1 >/dev/null
seminko="$(awk '$1 == "seminko" { print $2 }' "$prace/predloha/udalosti.txt")"
# Parts to be carried out, and between them the drags: "FROM TO", design pixels.
mkdir "$prace/casti"
awk -v kam="$prace/casti/" '
    BEGIN { cast = kam "000.udalosti"; printf "" > cast }
    $1 == "seminko" || $1 == "fotka" { next }
    $1 == "mys" && dole { tazeno = 1; konec = $2 " " $3; next }
    $1 == "mys" { misto = $2 " " $3 }
    $1 == "dolu" { dole = 1; cekani = ""; next }
    dole && $1 == "cekej" { cekani = $0; next }
    $1 == "nahoru" {
        dole = 0
        if (tazeno) {
            close(cast)
            tah = sprintf("%s%03d.tah", kam, ++n); print misto, konec > tah; close(tah)
            cast = sprintf("%s%03d.udalosti", kam, n); printf "" > cast
        } else {
            print "dolu" > cast
            if (cekani) print cekani > cast
            print "nahoru" > cast
        }
        tazeno = 0; next
    }
    { print > cast }' "$prace/predloha/udalosti.txt"

for rozmer in "640 480" "1920 1080" "3840 2160"; do
    read -r sirka vyska <<<"$rozmer"
    echo "== $sirka × $vyska"
    for kolo in 1 2 3; do
        for staging in "${kopie[@]}"; do
            displej -fbdir "$prace"
            hra --seminko "$seminko"
            for cast in "$prace"/casti/*.udalosti; do
                tah="${cast%.udalosti}.tah"
                # shellcheck disable=SC2046
                [ ! -f "$tah" ] || echo "$staging, tah $(basename "$tah" .tah): $("$programy/tah_v_okne" \
                    "$prace/Xvfb_screen0" "$sirka" "$vyska" "$pid_hra" $(cat "$tah"))"
                rm -f "$prace"/usek*
                odehraj "$cast"
            done
            # An example without a fault: what was measured were the drags that the game asked for.
            log | grep -q 'Klad. body: 10  *Záp. body: 0 ' || selhani "příklad není bez chyby"
            kill "$pid_hra" "$pid_x" 2>/dev/null || true
            wait "$pid_hra" "$pid_x" 2>/dev/null || true
            pid_hra=""
            pid_x=""
        done
    done
done
