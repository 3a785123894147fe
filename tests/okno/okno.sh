#!/bin/bash
# Drives the real window from outside, as a person would: from the title to the score table, with a
# name in Czech letters and one triangle drawn by mouse. Then looks into the log and the table.
#   okno.sh STAGING [WIDTH HEIGHT [PICTURES]]
# The values of the example are not known here: the pupil types and draws 15 everywhere, which
# always closes the triangle and costs at most six points.
set -eu
staging="$1"
sirka="${2:-1920}"
vyska="${3:-1080}"
obrazky="${4:-}"
jmeno="Žofie Řeřichová"
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/spolecne.sh"

tah() {
    mys "$1" "$2"
    xdotool mousedown 1
    mys $((($1 + $3) / 2)) $((($2 + $4) / 2))
    mys "$3" "$4"
    sleep 0.1
    xdotool mouseup 1
    sleep 0.4
}

# An account with documents of its own, and a desktop that only notes what it is to show.
if [ -z "${HRA_JINDE:-}" ]; then
    export HOME="$prace/domov" PATH="$prace/bin:$PATH"
    unset XDG_CONFIG_HOME
    mkdir -p "$HOME/.config" "$HOME/Moje dokumenty" "$prace/bin"
    echo 'XDG_DOCUMENTS_DIR="$HOME/Moje dokumenty"' >"$HOME/.config/user-dirs.dirs"
    printf '#!/bin/sh\necho "$1" >"%s"\n' "$prace/ukazano" >"$prace/bin/xdg-open"
    chmod +x "$prace/bin/xdg-open"
fi
spust
fotka titul
z_titulu 1.6
fotka nabidka
prvni_rodina
prvni_uloha 1.6
napis_jmeno "$jmeno"
jeden_priklad
fotka nastaveni
pokracuj 1
fotka deska

# All three sides marked on the sketch, the panel pushed away.
klik $((325 + 21 + 150)) $((164 + 24 + 140))
klik $((325 + 21 + 205)) $((164 + 24 + 85))
klik $((325 + 21 + 95)) $((164 + 24 + 85))
fotka znacky
klik 332 266 2

# The side AB, then circles about both ends. The list opens under the pointer.
klik 60 296; fotka seznam; klik 72 310 0.4
xdotool type 15; sleep 0.2; tah 346 358 466 358
fotka strana
klik 150 328; klik 162 342 0.4
xdotool type 15; sleep 0.2; tah 346 358 466 358
klik 150 328; klik 162 362 0.4
xdotool type 15; sleep 0.2
mys 466 358; xdotool mousedown 1; mys 400 358; fotka tah; mys 346 358; sleep 0.1
xdotool mouseup 1; sleep 0.6
fotka trojuhelnik

klik 318 45 1
fotka verdikt
if [ -z "${HRA_JINDE:-}" ]; then
    xdotool key ctrl+p
    sleep 0.5
    fotka papir
    papir="$(find "$HOME/Moje dokumenty" -name "Rysovna $jmeno úloha 1 20*-*-* 1.pdf")"
    [ -n "$papir" ] || selhani "na papíře není nic: $(ls "$HOME/Moje dokumenty")"
    pdftotext "$papir" - | grep -q "^Počet bodů: .* z 10" || selhani "na papíře nejsou body"
    grep -q '^file:///.*/Moje%20dokumenty/Rysovna%20%C5%BDofie%20' "$prace/ukazano" ||
        selhani "papír se neukázal"
fi
pokracuj 1
fotka tabulka

vypis="$(log)"
echo "$vypis"
[ "$(wc -l <"$prace/hra/data/Vysledky.dat")" = 4 ] || selhani "v logu nejsou čtyři řádky"
grep -q "^Jméno: $jmeno  *Datum: " <<<"$vypis" || selhani "v logu není jméno"
grep -q "^Hra: Trojúhelník 1  *Typ úlohy: podle věty SSS" <<<"$vypis" || selhani "v logu není úloha"
iconv -f WINDOWS-1250 -t UTF-8 "$prace/hra/data/01.res" | grep -qE "^$jmeno\|(10|[4-9])\|[0-6]\|[1-5]" ||
    selhani "v tabulce není čekaný záznam: $(cat "$prace/hra/data/01.res")"

# Back to the menu and out by its exit button. They lie one over the other: what came within half a
# second would be a double click.
klik 591 42 1
klik 591 42
ukonci
echo "V pořádku."
