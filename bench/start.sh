#!/bin/bash
# Start and memory of the real window on virtual displays of three sizes, each beside its floor: an
# empty window of that size.
#   start.sh STAGING [OTHER_STAGING]
# All programs start in turns, fifteen times; medians count. A start takes from the process's birth
# to the picture on the screen, read off the screen itself, less the waits that the game's own start
# orders (100 ms); what it took of the processor tells more where others work beside. Memory is what
# the process has for itself, and whole the segments that it shares with the display's server, on
# each screen of a tour.
set -eu
staging="$1"
jina="${2:-}"
programy="$(dirname "$staging")"
behu=15
narizeno=100  # ms
obrazky=""
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/../tests/okno/spolecne.sh"

# The memory of a process, MB.
pamet() {
    awk '/^[0-9a-f]+-[0-9a-f]+ / { sdileny = $6 ~ /^\/(SYSV|memfd:|dev\/shm)/ }
         sdileny ? /^Size:/ : /^Private_(Clean|Dirty):/ { kb += $2 }
         END { printf "%.1f", kb / 1024 }' "/proc/$1/smaps"
}
# One number of the tour, with how many times the floor it is.
radek() { awk -v co="$1" -v mb="$(pamet "$pid_hra")" -v dno="$dno" \
    'BEGIN { printf "    %6.1f MB, %.2f dna  %s\n", mb, mb / dno, co }'; }

# Every screen, in the order in which a pupil comes to it.
obchuzka() {
    staging="$1"
    hra
    radek titul
    z_titulu 2; radek nabídka
    prvni_rodina
    prvni_uloha 1.6
    xdotool type Jan
    jeden_priklad; radek nastavení
    pokracuj 1.5; radek deska
    klik 332 266 2.5; radek zasunuto
    klik 60 45 1.5; radek nápověda
    klik 320 400 1; klik 487 42 1.5; radek tabulka
    kill "$pid_hra"
    wait "$pid_hra" 2>/dev/null || true
    pid_hra=""
}

for rozmer in "640 480" "1920 1080" "3840 2160"; do
    read -r sirka vyska <<<"$rozmer"
    echo "== $sirka × $vyska"
    displej -fbdir "$prace"
    # Where they lie is where they look for what belongs to them.
    hry=("$narizeno" "$staging/rysovna")
    [ -z "$jina" ] || hry+=("$narizeno" "$jina/rysovna")
    "$programy/cekani_na_obraz" "$prace/Xvfb_screen0" "$sirka" "$vyska" "$behu" \
        0 "$programy/prazdne_okno" "${hry[@]}" 2>/dev/null
    "$programy/prazdne_okno" &
    pid_hra=$!
    sleep 1
    dno="$(pamet "$pid_hra")"
    kill "$pid_hra"
    wait "$pid_hra" 2>/dev/null || true
    pid_hra=""
    echo "paměť: prázdné okno $dno MB"
    for kopie in "$staging" ${jina:+"$jina"}; do
        echo "  $kopie"
        (obchuzka "$kopie")
    done
    kill "$pid_x"
    wait "$pid_x" 2>/dev/null || true
    pid_x=""
done
