#!/bin/bash
# The machine may sleep while the pupil thinks: a screen on which nothing happens wakes no thread of
# the program, not even after a sound; only the caret of the setup does, at its own pace.
#   klid.sh STAGING [PICTURES]
set -eu
staging="$1"
sirka=640
vyska=480
obrazky="${2:-}"
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/spolecne.sh"

# How many times threads of the game went to wait: each wake-up is followed by one.
cekani() { cat "/proc/$pid_hra/task/"*/status | awk '/^voluntary_ctxt/ { n += $2 } END { print n }'; }
# klid NAME FROM TO: after the sound's device is closed, so many waits in four seconds.
klid() {
    local pred po
    fotka "klid_$1"
    sleep 3
    pred="$(cekani)"
    sleep 4
    po="$(cekani)"
    echo "$1: $((po - pred)) probuzení za 4 s"
    [ $((po - pred)) -ge "$2" ] && [ $((po - pred)) -le "$3" ] || selhani "$1: čekáno $2 až $3"
}
# That the device is open: were there none, the rest would say nothing. It opens anew after a rest, too.
zni() {
    local pred
    pred="$(cekani)"
    sleep 1
    [ $(($(cekani) - pred)) -ge 20 ] || selhani "po zvuku se nic nebudí: zařízení není otevřené"
}

export SDL_AUDIODRIVER=dummy
spust
z_titulu 1.6
prvni_rodina
zni
klid nabídka 0 0
prvni_uloha 1
xdotool type --delay 40 Jan
klid nastavení 7 24
jeden_priklad
pokracuj 1
klid deska 0 0
klik 487 42 0.4
zni
klid tabulka 0 0
