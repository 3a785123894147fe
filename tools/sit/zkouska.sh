#!/bin/bash
# The net holds: its right pupil ends with all points and goes back from every phase of every task,
# by every arrow and after every tool; a build is like itself, and another one is told from it.
#   zkouska.sh SIT FOLDER
set -eu
sit="$1"
prace="$2"
porovnej="$(dirname "$0")/porovnej"
rm -rf "$prace"
mkdir -p "$prace"
selhani() { echo "$1" >&2; exit 1; }

{
    "$sit" hraj 1-20 1-2 mysi-spravne 640x480
    "$sit" hraj 13,16 3-4 mysi-spravne 640x480 # there the second step can be left out
} >"$prace/spravne.txt"
awk '
    function spatne(co) { print co > "/dev/stderr"; vadne = 1 }
    /^souhrn/ {
        ++her; u = $2; cteno = ""
        if ($4 > fazi[u]) fazi[u] = $4
        for (i = 5; i <= NF; ++i) {
            if (split($i, p, ":") == 2) zpet[cteno, p[1], u] = 1
            else if ($i == "bodu") { if ($(i + 1) != $(i + 3)) spatne("ztracené body: " $0) }
            else if (cteno == "sipek") sipek[++sip % 4] += $i
            if ($i !~ /:/ && $i !~ /^[0-9]+$/) { cteno = $i; sip = -1 }
        }
    }
    / nejde sestrojit$/ || /^chyba/ { spatne("nedohráno: " $0) }
    END {
        if (her != 44) spatne("odehráno " her)
        for (u = 1; u <= 20; ++u) {
            for (f = (u >= 9 && u <= 11) ? 1 : 2; f <= fazi[u]; ++f)
                if (!(("fazi", f, u) in zpet)) spatne("úloha " u ": zpět z fáze " f " chybí")
        }
        for (i = 0; i < 4; ++i) if (sipek[i] == 0) spatne("šipka " i " chybí")
        exit vadne
    }
' "$prace/spravne.txt" || selhani "síť má díru"
for nastroj in 1 2 3 4 6; do
    grep -qE "^souhrn.* po nastrojich .*\b$nastroj:.* sipek" "$prace/spravne.txt" ||
        selhani "zpět po nástroji $nastroj chybí"
done

"$porovnej" "$sit" "$sit" 10 1 mysi "$prace" >"$prace/stejne.txt" || selhani "sám sobě se nepodobá"
grep -q '^2 her, [0-9]\{3,\}' "$prace/stejne.txt" || selhani "neporovnalo se nic"

# Another build: one that draws other examples.
cat >"$prace/jiny" <<KONEC
#!/bin/sh
case \$1 in
hraj) "$sit" hraj "\$2" 2 "\$4" | sed 's/^\(hra [0-9]*\) 2/\1 1/' ;;
obraz) "$sit" obraz "\$2" 2 "\$4" "\$5" "\$6" "\$7" ;;
*) "$sit" "\$@" ;;
esac
KONEC
chmod +x "$prace/jiny"
stav=0
OBRAZU=1 "$porovnej" "$sit" "$prace/jiny" 1 1 mysi-spravne "$prace" >"$prace/jine.txt" || stav=$?
[ "$stav" = 1 ] || selhani "jiný se neodlišil: $stav"
grep -q 'rozdil.png: [1-9][0-9]* bodů' "$prace/jine.txt" || selhani "není vidět kde"
