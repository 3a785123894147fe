#!/bin/bash
# Plays the game for Windows as a teacher gets it, in its window, under wine.
#   hra.sh SHOW prenosna ZIP | hra.sh SHOW nainstalovana INSTALLER
# SHOW is the program ukazka of this machine: it plays the examples without a window first.
set -eu
ukazka="$1"
jak="$2"
# Where it is called from by whatever path: wine's own is another one.
vydani="$(realpath "$3")"
# A home of its own: whose first program saw no display sees none in any other.
export WINEPREFIX="$PWD/build/windows/wine-okno"
# shellcheck source=tests/windows/spolecne.sh
. tests/windows/spolecne.sh
export SDL_AUDIODRIVER=dummy
c="$WINEPREFIX/drive_c"
kde="$(mktemp -d)"
trap 'rm -rf "$kde"' EXIT
selhani() { echo "SELHALO: $*" >&2; exit 1; }
ucet="$(echo "$c"/users/*/AppData/Roaming/Rysovna)"
case "$ucet" in *"*"*) ucet="$c/users/$(id -un)/AppData/Roaming/Rysovna" ;; esac
rm -rf "$c"/users/*/AppData/*/Rysovna

case "$jak" in
prenosna)
    # From a folder whose name no western code page holds.
    slozka="$kde/Škola Řeř"
    mkdir "$slozka"
    (cd "$slozka" && cmake -E tar xf "$vydani")
    slozka="$slozka/Rysovna"
    export HRA_DENIK="$slozka/data/Vysledky.dat"
    ;;
nainstalovana)
    slozka="$c/Škola Řeř/Rysovna"
    rm -rf "$c/ProgramData/Rysovna"
    # By the system's own shell: the installer takes its folder without quotes.
    cp "$vydani" "$c/instalace.exe"
    "$WINE" cmd /c 'C:\instalace.exe /S /D=C:\Škola Řeř\Rysovna' || selhani "instalátor: stav $?"
    [ -f "$slozka/rysovna.exe" ] || selhani "nic se nenainstalovalo"
    grep -q 'HD=C:.Škola Řeř' "$c/ProgramData/Rysovna/Rysovna.ini" || selhani "nastavení vede jinam"
    export HRA_DENIK="$ucet/Vysledky.dat"
    ;;
esac

export HRA_EXE="$slozka/rysovna.exe"
dobehni_windows
HRA_JINDE="$(realpath tests/windows/spust.sh)" tests/okno/ulohy.sh - "$ukazka" "1 4 9 10 11 15 18" 1280 960 \
    "${OBRAZKY:-}"

# The check before a lesson: to the end, its texts as they are. A display it has none here.
ve_windows "$slozka/rysovna.exe" --kontrola >"$kde/kontrola" 2>&1 || true
grep -q 'Zámek výsledků.*lze získat' "$kde/kontrola" || selhani "kontrola: $(cat "$kde/kontrola")"
grep -q "Nastavení: .*Rysovna.Rysovna.ini" "$kde/kontrola" || selhani "kontrola: $(cat "$kde/kontrola")"

if [ "$jak" = nainstalovana ]; then
    cp "$HRA_DENIK" "$kde/denik"
    # A file of somebody else's among the game's own.
    echo x >"$slozka/data/Moje.dat"
    "$WINE" "$slozka/odinstalovat.exe" /S || selhani "odinstalace: stav $?"
    # It goes on as a copy of itself, or it could not take itself away.
    dobehni_windows
    zbylo="$(cd "$slozka" && find . -type f)"
    [ "$zbylo" = ./data/Moje.dat ] || selhani "po odinstalaci zbylo: $(head -5 <<<"$zbylo")"
    [ ! -e "$c/ProgramData/Rysovna/Rysovna.ini" ] || selhani "zůstalo nastavení"
    cmp "$kde/denik" "$HRA_DENIK" || selhani "výsledky odinstalaci nepřežily"
fi
