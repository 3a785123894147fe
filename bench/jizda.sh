#!/bin/bash
# The panel's slide in the real window on virtual displays of three sizes: in, out, in, out.
#   jizda.sh STAGING
# Ordered are 34 frames of 40 ms: from the first picture to the last 1320 ms of frames, and 40 until
# the panel rests or is gone. The processor's time runs on for 600 ms behind it.
set -eu
staging="$1"
programy="$(dirname "$staging")"
obrazky=""
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/../tests/okno/spolecne.sh"

for rozmer in "640 480" "1920 1080" "3840 2160"; do
    read -r sirka vyska <<<"$rozmer"
    echo "== $sirka × $vyska"
    displej -fbdir "$prace"
    hra
    z_titulu 2
    prvni_rodina
    prvni_uloha 1.6
    xdotool type Jan
    jeden_priklad
    pokracuj 2
    for kam in "332 266" "631 354" "332 266" "631 354"; do
        # shellcheck disable=SC2086
        mys $kam
        sleep 0.5
        "$programy/jizda_v_okne" "$prace/Xvfb_screen0" "$sirka" "$vyska" "$pid_hra" | {
            read -r _
            xdotool click 1
            cat
        }
    done
    kill "$pid_hra" "$pid_x"
    wait "$pid_hra" "$pid_x" 2>/dev/null || true
    pid_hra=""
    pid_x=""
done
