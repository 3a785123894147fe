#!/bin/bash
# The overview of a class, measured: 10,000 series new and all on the page; then 100,000 known ones,
# 100 new, one class and one school year on the page. Time, memory, size of the page.
#   prehled.sh BUILD      a build folder with tests
set -eu
build="$1"
export LC_ALL=C.UTF-8
prace="$(mktemp -d)"
trap 'rm -rf "$prace"' EXIT

# mnoz HOW_MANY FROM WHERE: copies of the made-up class's attempts from a number on, each class of
# them a year older and of other names.
mnoz() {
    awk -v kolik="$1" -v od="$2" -v kam="$3" '
        FNR == 1 { soubor = FILENAME; sub(/.*\//, "", soubor); poradi[++n] = soubor }
        { text[soubor] = text[soubor] $0 "\n" }
        END {
            for (i = od; i < od + kolik; ++i) {
                soubor = poradi[i % n + 1]; trida = int(i / n); t = text[soubor]
                sub(/\njmeno [^\n]*/, "& " trida, t)
                sub(/\nzacatek [0-9]*/, "\nzacatek " 2026 - trida, t)
                ven = kam "/" i "-" soubor; printf "%s", t > ven; close(ven)
            }
        }' "$prace"/predloha/*.pokus
}
# prehled WHAT ARGUMENTS...
prehled() {
    co="$1"
    shift
    /usr/bin/time -f "$co: %e s, procesor %U s, %M KB" "$build/staging/prehled" "$@" \
        -o "$prace/t.html" >/dev/null 2>"$prace/cas" || { cat "$prace/cas" >&2; exit 1; }
    echo "$(tail -1 "$prace/cas"), stránka $(($(stat -c %s "$prace/t.html") / 1024)) KB"
}

mkdir "$prace/malo" "$prace/mnoho"
"$build/tests/prehled/vzorek" "$prace/predloha" 5000
mnoz 10000 0 "$prace/malo"
prehled "10000 nových" "$prace/malo" --rejstrik "$prace/malo.rejstrik"
prehled "10000 známých" "$prace/malo" --rejstrik "$prace/malo.rejstrik"
mnoz 100000 0 "$prace/mnoho"
sed 's/^\([^;]*\);[^;]*;/\1 0;;/' "$prace/predloha/zaci.csv" >"$prace/zaci.csv"
trida="--zaci $prace/zaci.csv --trida 7.A --od 1.9.2026 --do 30.6.2027"
# shellcheck disable=SC2086
prehled "100000 nových" "$prace/mnoho" --rejstrik "$prace/mnoho.rejstrik" $trida
mnoz 100 100000 "$prace/mnoho"
# shellcheck disable=SC2086
prehled "100000 známých a 100 nových" "$prace/mnoho" --rejstrik "$prace/mnoho.rejstrik" $trida
