#!/bin/bash
# Start and memory of the real window under a virtual display.
#   start.sh STAGING
# The time runs from the process's start to the title's picture on the screen, read off the screen
# itself, median of ten; the waits that the start-up orders before the title (100 ms) are taken off.
# Memory is the peak of the resident set after title, menu and a board.
set -eu
staging="$1"
prace="$(mktemp -d)"
pid_x=""
uklid() { [ -z "$pid_x" ] || kill "$pid_x" 2>/dev/null || true; rm -rf "$prace"; }
trap uklid EXIT

obrazovka() {  # WIDTH HEIGHT: a display of our own
    [ -z "$pid_x" ] || { kill "$pid_x"; wait "$pid_x" 2>/dev/null || true; }
    rm -f "$prace/cislo"
    exec 3<>"$prace/cislo"
    Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp -fbdir "$prace" >/dev/null 2>&1 &
    pid_x=$!
    for _ in $(seq 100); do [ -s "$prace/cislo" ] && break; sleep 0.05; done
    DISPLAY=":$(cat "$prace/cislo")"
    export DISPLAY
}

for rozmer in "640 480" "1920 1080"; do
    # shellcheck disable=SC2086
    set -- $rozmer
    obrazovka "$1" "$2"
    rm -rf "$prace/hra"
    cp -r "$staging" "$prace/hra"
    "$(dirname "$staging")/cekani_na_obraz" "$prace/Xvfb_screen0" "$1" "$2" 10 "$prace/hra/rysovna" \
        2>/dev/null | sed "s/^/$1x$2  /"
    "$prace/hra/rysovna" 2>/dev/null &
    pid_hra=$!
    sleep 1
    klik() { xdotool mousemove "$(awk -v a="$1" -v w="$sx" -v h="$sy" 'BEGIN{s=w/640<h/480?w/640:h/480; printf "%d",(w-640*s)/2+a*s}')" \
        "$(awk -v a="$2" -v w="$sx" -v h="$sy" 'BEGIN{s=w/640<h/480?w/640:h/480; printf "%d",(h-480*s)/2+a*s}')" click 1; sleep "$3"; }
    sx=$1
    sy=$2
    klik 320 240 1.5
    klik 150 166 0.4
    klik 480 190 0.8
    xdotool type "Jan"
    klik 145 267 1
    klik 570 468 1
    klik 332 266 2
    printf '%sx%s  nejvíce paměti: %s MB\n' "$sx" "$sy" \
        "$(awk '/VmHWM/ {printf "%.0f", $2 / 1024}' "/proc/$pid_hra/status")"
    kill "$pid_hra"
    wait "$pid_hra" 2>/dev/null || true
done
