#!/bin/bash
# A clean system in which the package is installed, played by ordinary accounts from outside, given a
# folder of a class, upgraded and removed. As root.
#   system.sh SYSTEM PACKAGE NEXT SHOW
# NEXT is the package of a higher version, SHOW the program ukazka. The folder RYSOVNA_SYSTEMY
# (build/systemy) keeps systems as they come; delete it for newer ones.
set -eu
export LC_ALL=C.UTF-8
system="$1"
balik="$2"
pristi="$3"
ukazka="$4"
zde="$(dirname "$0")"
sklad="${RYSOVNA_SYSTEMY:-build/systemy}"
mkdir -p "$sklad"

prace="$(mktemp -d)"
koren="$prace/koren"
trap 'rm -rf "$prace"' EXIT
selhani() { echo "SELHALO ($system): $*" >&2; exit 1; }
oddil() { echo "== $system: $*"; }

if [ ! -f "$sklad/$system.tar" ]; then
    oddil "čistý systém"
    casti=main
    case "$(readlink -f "/usr/share/debootstrap/scripts/$system")" in
        */gutsy) casti=main,universe ;;  # all of Ubuntu's
    esac
    debootstrap --variant=minbase --components="$casti" "$system" "$prace/novy" >"$prace/debootstrap" ||
        { tail "$prace/debootstrap" >&2; selhani "debootstrap"; }
    tar -C "$prace/novy" -cf "$sklad/$system.tar.nove" .
    mv "$sklad/$system.tar.nove" "$sklad/$system.tar"
    rm -rf "$prace/novy"
fi
mkdir "$koren"
tar -C "$koren" -xf "$sklad/$system.tar"
cp /etc/resolv.conf "$koren/etc/"

v() { chroot "$koren" "$@"; }
# nainstaluj PACKAGE: with what it depends on and nothing more.
nainstaluj() {
    cp "$1" "$koren/root/balik.deb"
    # What an administrator changed stays without a question.
    v env DEBIAN_FRONTEND=noninteractive sh -c 'apt-get update -qq &&
        apt-get install -y -qq --no-install-recommends /root/balik.deb' >"$prace/apt" 2>&1 </dev/null ||
        { tail -n 20 "$prace/apt" >&2; selhani "instalace"; }
}
# As the account, freshly logged in.
ucet() { v su - "$1" -c "LC_ALL=C.UTF-8 $2"; }
# hraj ACCOUNT: plays the example on a display of its own; it must end well.
hraj() { "$zde/ucet.sh" "$koren" "$1" "$prace/predloha/$1/udalosti.txt"; }
# text FILE: of the system, in UTF-8.
text() { iconv -f WINDOWS-1250 -t UTF-8 "$koren/$1"; }
# vysledky FOLDER COUNT: so many results of the task at ten of ten in log and table, and no others. Whose
# they are is not asked: letters of a name typed from outside get lost now and then.
vysledky() {
    local her radku
    her="$(text "$1/Vysledky.dat" | grep -c 'Klad. body: 10  *Záp. body: 0 ')" || true
    radku="$(text "$1/04.res" | grep -cE '^[^|]+\|10\|0\|1')" || true
    [ "$her $radku $(text "$1/Vysledky.dat" | grep -c '^Hra:')" = "$2 $2 $2" ] ||
        selhani "$1: v deníku $her, v tabulce $radku výsledků za deset bodů místo $2: $(text "$1/Vysledky.dat")"
}
# otisk PATH...: what lies there; a path that is not there is a fault.
otisk() { (cd "$koren" && find "$@" -type f -exec sha256sum {} +); }
# nikde PATH...: neither as a file nor as a folder.
nikde() { local c; for c in "$@"; do [ ! -e "$koren/$c" ] || selhani "zůstalo /$c"; done; }

for kdo in alena bara cyril; do v useradd -m -s /bin/bash "$kdo"; done
v groupadd trida
v usermod -aG trida alena
v usermod -aG trida bara
# One plays by mouse, the other by keys.
"$ukazka" "$prace/predloha/alena" 4 >/dev/null
"$ukazka" --klavesami "$prace/predloha/bara" 4 >/dev/null

oddil "instalace"
nainstaluj "$balik"
ucet alena 'command -v rysovna kodovani prehled' || selhani "programy nejsou, kde se hledají"
ucet alena 'cp /usr/share/rysovna/data/01.dat . && kodovani dekoduj 01.dat 01.txt && kodovani zkontroluj 01.txt' ||
    selhani "kodovani"

oddil "výsledky účtu"
hraj alena
vysledky home/alena/.local/share/rysovna 1
nikde home/bara/.local

oddil "složka třídy"
v /usr/share/rysovna/slozka-tridy /srv/rysovna trida
[ "$(find "$koren/srv/rysovna" -name '??.res' | wc -l)" = "$(find "$zde/../../data" -name '[0-9][0-9].txt' | wc -l)" ] ||
    selhani "ve složce třídy není tabulka každé úlohy"
sed -i 's,^VYSLEDKY=.*,VYSLEDKY=/srv/rysovna,' "$koren/etc/rysovna/Rysovna.ini"
hraj alena &
prvni=$!
hraj bara
wait "$prvni" || selhani "jedna ze dvou her"
vysledky srv/rysovna 2
vysledky home/alena/.local/share/rysovna 1
ucet cyril 'rysovna --kontrola' | grep -q 'CHYBA.*: /srv/rysovna (chybí oprávnění)' || selhani "smí i ten, kdo není ve skupině"
# Once more, for all accounts: results stay.
v /usr/share/rysovna/slozka-tridy /srv/rysovna >/dev/null
vysledky srv/rysovna 2
if ucet cyril 'rysovna --kontrola' | grep 'CHYBA.*výsled'; then selhani "nesmí každý"; fi

oddil "vyšší verze"
pred="$(otisk etc/rysovna/Rysovna.ini srv/rysovna home/alena/.local/share/rysovna)"
nainstaluj "$pristi"
[ "$(v dpkg-query -W -f '${Version}' rysovna)" = "$(dpkg-deb -f "$pristi" Version)" ] || selhani "není nová"
[ "$pred" = "$(otisk etc/rysovna/Rysovna.ini srv/rysovna home/alena/.local/share/rysovna)" ] ||
    selhani "povýšení změnilo výsledky nebo nastavení"
hraj alena
vysledky srv/rysovna 3
v dpkg --verify rysovna | grep -v ' c /etc/rysovna/Rysovna.ini' && selhani "hra změnila svá data"

oddil "odebrání"
pred="$(otisk srv/rysovna home/alena/.local/share/rysovna)"
v apt-get remove -y -qq rysovna >/dev/null 2>&1
nikde usr/games/rysovna usr/bin/kodovani usr/bin/prehled usr/share/rysovna usr/share/doc/rysovna
grep -q '^VYSLEDKY=/srv/rysovna' "$koren/etc/rysovna/Rysovna.ini" || selhani "nastavení správce zmizelo"
v apt-get purge -y -qq rysovna >/dev/null 2>&1
nikde etc/rysovna
[ -z "$(find "$koren/usr" -name '*rysovna*')" ] || selhani "zůstalo: $(find "$koren/usr" -name '*rysovna*')"
[ "$pred" = "$(otisk srv/rysovna home/alena/.local/share/rysovna)" ] || selhani "odebrání změnilo výsledky"
echo "V pořádku: $system."
