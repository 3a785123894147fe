#!/bin/bash
# The game on a Wayland compositor with no X server behind it: its picture must arrive, the program
# must go on, the window's close must reach it; and where no pixels can be had it must say so.
#   wayland.sh STAGING [PICTURES]
# Keys and mouse are not driven here: the headless compositor has neither.
set -eu
staging="$1"
obrazky="${2:-}"
export LC_ALL=C.UTF-8
unset DISPLAY

prace="$(mktemp -d)"
export XDG_STATE_HOME="$prace/stav" XDG_DATA_HOME="$prace/ucet"
pid_hra=""
pid_sway=""
uklid() {
    [ -n "$pid_hra" ] && kill "$pid_hra" 2>/dev/null || true
    [ -n "$pid_sway" ] && kill "$pid_sway" 2>/dev/null || true
    rm -rf "$prace"
}
trap uklid EXIT
selhani() { echo "SELHALO: $*" >&2; exit 1; }
fotka() {
    grim "$prace/$1.png"
    [ -z "$obrazky" ] || { mkdir -p "$obrazky"; cp "$prace/$1.png" "$obrazky/wayland_$1.png"; }
}
# How far two pictures are from each other, 0 to 1000; nothing if they cannot be compared.
rozdil() {
    compare -metric RMSE "$1" "$2" null: 2>&1 | sed -n 's/^[0-9.e-]* (\([0-9.e-]*\))$/\1/p' |
        awk '{ printf "%d", $1 * 1000 }'
}
# The condition comes true within so many seconds.
#   pockej SECONDS COMMAND...
pockej() {
    for _ in $(seq $(($1 * 5))); do "${@:2}" && return 0; sleep 0.2; done
    return 1
}

# At the design size the title is on the screen pixel for pixel.
cat >"$prace/nastaveni" <<'KONEC'
xwayland disable
output HEADLESS-1 mode 640x480 position 0 0
default_border none
KONEC
export XDG_RUNTIME_DIR="$prace/beh"
mkdir -m 700 "$XDG_RUNTIME_DIR"
jako=""
if [ "$(id -u)" = 0 ]; then  # the compositor refuses to run as root
    chmod 711 "$prace"
    chmod 644 "$prace/nastaveni"
    chown nobody "$XDG_RUNTIME_DIR"
    jako="setpriv --reuid=nobody --regid=nogroup --clear-groups"
fi
# shellcheck disable=SC2086
WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
    $jako sway -c "$prace/nastaveni" >"$prace/sway" 2>&1 &
pid_sway=$!
je_socket() { SWAYSOCK="$(ls "$XDG_RUNTIME_DIR"/sway-ipc.* 2>/dev/null)" && [ -S "$XDG_RUNTIME_DIR/wayland-1" ]; }
pockej 10 je_socket || selhani "sway se nespustil: $(cat "$prace/sway")"
export SWAYSOCK WAYLAND_DISPLAY=wayland-1

cp -r "$staging" "$prace/hra"
titul="$prace/vzor.bmp"
"$staging/kodovani" rozbal "$prace/hra/assets/Bitmap/Intro/title.bmp" "$titul"
"$prace/hra/rysovna" 2>"$prace/chyby" &
pid_hra=$!
je_titul() { fotka titul && [ "$(rozdil "$prace/titul.png" "$titul")" -lt 20 ]; }
pockej 8 je_titul || selhani "titul není vidět (rozdíl $(rozdil "$prace/titul.png" "$titul")); $(cat "$prace/chyby")"
# Its ten seconds pass and the menu comes up.
je_nabidka() { fotka nabidka && [ "$(rozdil "$prace/nabidka.png" "$titul")" -gt 100 ]; }
pockej 15 je_nabidka || selhani "po titulu se nic neukázalo"
sleep 0.5
fotka nabidka
swaymsg '[title="Rysovna 1"] kill' >/dev/null || selhani "swaymsg"
je_otazka() { fotka otazka && [ "$(rozdil "$prace/otazka.png" "$prace/nabidka.png")" -gt 20 ]; }
pockej 5 je_otazka || selhani "zavření okna se neptá"
kill -0 "$pid_hra" 2>/dev/null || selhani "hra skončila: $(cat "$prace/chyby")"
kill "$pid_hra"
wait "$pid_hra" || true
pid_hra=""

# A machine that gives the window no pixels.
stav=0
SDL_FRAMEBUFFER_ACCELERATION=0 timeout 10 "$prace/hra/rysovna" 2>"$prace/chyby" || stav=$?
[ "$stav" = 1 ] || selhani "bez plochy okna skončila hra se stavem $stav"
grep -q "Do okna hry se nedá kreslit" "$prace/chyby" || selhani "bez plochy okna hra mlčí"
echo "V pořádku."
