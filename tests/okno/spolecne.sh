# Sourced by the tests of the real window: a display of our own, the game on it, mouse and pictures.
# Before: $staging, $sirka, $vyska, and $obrazky, where pictures go if it is not empty.
export LC_ALL=C.UTF-8  # Czech letters are typed and looked for

prace="$(mktemp -d)"
pid_hra=""
pid_x=""
uklid() {
    [ -n "$pid_hra" ] && kill "$pid_hra" 2>/dev/null || true
    [ -n "$pid_x" ] && kill "$pid_x" 2>/dev/null || true
    rm -rf "$prace"
}
trap uklid EXIT
selhani() { echo "SELHALO: $*" >&2; exit 1; }

# The design picture is as large as fits, letterboxed.
awk_meritko='BEGIN { s = w / 640 < h / 480 ? w / 640 : h / 480; ox = (w - 640 * s) / 2; oy = (h - 480 * s) / 2 }'
# Design pixels to pixels of the screen.
na_obrazovku() {
    awk -v x="$1" -v y="$2" -v w="$sirka" -v h="$vyska" \
        "$awk_meritko"' BEGIN { printf "%d %d", ox + (x + 0.5) * s, oy + (y + 0.5) * s }'
}
# shellcheck disable=SC2046
mys() { xdotool mousemove $(na_obrazovku "$1" "$2"); sleep 0.05; }
# klik X Y [SECONDS]: a click, and a while for what comes of it.
klik() { mys "$1" "$2"; xdotool click 1; sleep "${3:-0.2}"; }
# The way from the title to a board, a press each, with klik's while where it is not always the same.
z_titulu() { klik 320 240 "$1"; }
prvni_rodina() { klik 150 166 0.4; }
prvni_uloha() { klik 480 190 "$1"; }  # what is typed then is the name
jeden_priklad() { klik 145 267 1; }
pokracuj() { klik 570 468 "$1"; }
fotka() { [ -z "$obrazky" ] || { mkdir -p "$obrazky"; import -window root "$obrazky/${sirka}_$1.png"; }; }

# Types a name into the box that has the keyboard, until it looks the same twice. A letter that the
# display's keyboard lacks gets a key for a moment alone, and a busy program looks for it too late:
# then it is lost on the way.
napis_jmeno() {
    local minule="" nyni
    for _ in 1 2 3 4 5 6 7 8; do
        xdotool key ctrl+a key BackSpace
        xdotool type --delay 40 "$1"
        sleep 0.3  # the caret stands still for a while
        nyni="$(import -window root png:- | md5sum)"
        [ "$nyni" != "$minule" ] || return 0
        minule="$nyni"
    done
    selhani "jméno se nedá napsat dvakrát stejně"
}

# A display with a number that nobody has.
#   displej [arguments of the server...]
displej() {
    rm -f "$prace/cislo"
    exec 3<>"$prace/cislo"
    Xvfb -displayfd 3 -screen 0 "${sirka}x${vyska}x24" -nolisten tcp -noreset "$@" >/dev/null 2>&1 &
    pid_x=$!
    for _ in $(seq 100); do [ -s "$prace/cislo" ] && break; sleep 0.1; done
    DISPLAY=":$(cat "$prace/cislo")"
    export DISPLAY
    [ "$DISPLAY" != ":" ] || selhani "Xvfb se nespustil"
}

# A display, and on it the game.
#   spust [arguments of the game...]
spust() {
    displej
    hra "$@"
}

# The game on the display, with no results in it, in a full-screen window. $HRA_JINDE: a command that
# starts a game of another home as it lies there; its log is $HRA_DENIK.
#   hra [arguments of the game...]
hra() {
    if [ -n "${HRA_JINDE:-}" ]; then
        otevri "$HRA_JINDE" "$@"
        return
    fi
    rm -rf "$prace/hra"
    cp -r "$staging" "$prace/hra"
    for priklady in "$prace"/hra/data/[0-9][0-9].dat; do : >"${priklady%.dat}.res"; done
    : >"$prace/hra/data/Vysledky.dat"
    # What a result leaves aside must not come to the account that runs the tests.
    XDG_STATE_HOME="$prace/stav" XDG_DATA_HOME="$prace/ucet" otevri "$prace/hra/rysovna" "$@"
}

# The game by its command, in a full-screen window.
#   otevri COMMAND [arguments...]
otevri() {
    "$@" 2>"$prace/chyby" &
    pid_hra=$!
    for _ in $(seq 100); do
        xdotool search --name 'Rysovna 1' >/dev/null 2>&1 && break
        kill -0 "$pid_hra" 2>/dev/null || selhani "hra skončila: $(cat "$prace/chyby")"
        sleep 0.1
    done
    okno="$(xdotool search --name 'Rysovna 1' | tail -n 1)" || selhani "okno se neotevřelo"
    eval "$(xdotool getwindowgeometry --shell "$okno")"
    [ "$WIDTH" = "$sirka" ] && [ "$HEIGHT" = "$vyska" ] || selhani "okno má $WIDTH x $HEIGHT"
    sleep 0.5
}

# Leaves by the menu's exit button, which lies over that of the screen before: sooner it would be a double
# click. The game must end well.
ukonci() {
    sleep 1
    klik 591 42 0.5
    fotka otazka
    xdotool key Return
    for _ in $(seq 50); do kill -0 "$pid_hra" 2>/dev/null || break; sleep 0.1; done
    if kill -0 "$pid_hra" 2>/dev/null; then selhani "hra po otázce neskončila"; fi
    local stav=0
    wait "$pid_hra" || stav=$?
    pid_hra=""
    [ "$stav" = 0 ] || selhani "hra skončila se stavem $stav"
}

# Carries out events in the open game, a line each: "mys X Y" (design px), "dolu", "nahoru", "text Ž",
# "klavesa Delete 0" (1: with Shift, 2: with Ctrl), "cekej MS", "fotka NAME". The window is real: it gets
# a little more time than the virtual clock took.
#   odehraj EVENTS
odehraj() {
    # One script for xdotool between two pictures.
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
    ' "$1"
    for usek in "$prace"/usek????; do
        xdotool "$usek" || selhani "xdotool: $usek"
        kill -0 "$pid_hra" 2>/dev/null || selhani "hra skončila: $(cat "$prace/chyby")"
        if [ -f "$usek.jmeno" ]; then fotka "$(cat "$usek.jmeno")"; fi
    done
}

# What the log holds, in UTF-8.
log() { iconv -f WINDOWS-1250 -t UTF-8 "${HRA_DENIK:-$prace/hra/data/Vysledky.dat}"; }
