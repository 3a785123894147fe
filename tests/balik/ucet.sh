#!/bin/bash
# An ordinary account of a system plays there with what is installed, driven from outside on a display
# that the system has not.
#   ucet.sh ROOT ACCOUNT EVENTS [PICTURES]
set -eu
koren="$1"
kdo="$2"
udalosti="$3"
sirka=640
vyska=480
obrazky="${4:-}"
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/../okno/spolecne.sh"

displej -ac
seminko="$(awk '$1 == "seminko" { print $2 }' "$udalosti")"
otevri chroot "$koren" su - "$kdo" -c \
    "exec env LC_ALL=C.UTF-8 DISPLAY=$DISPLAY SDL_AUDIODRIVER=dummy rysovna --seminko $seminko"
# There is no window manager to do it, and older SDL does not do it by itself.
xdotool windowfocus "$okno" 2>/dev/null || true
odehraj "$udalosti"
ukonci
