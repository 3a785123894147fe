#!/bin/sh
# The browser's home proved: the perfect pupil plays all tasks under node and in the browser, and what
# comes of it is the same to the byte as at home, also under sanitizers; then the page itself
# (testy.mjs). Called by ./test web, all that it needs is built.
#   testy.sh HOME_BUILD WEB_BUILD [NAME...]
set -eu
doma="$1"
web="$2"
shift 2
slozka="$(dirname "$0")"
if [ $# = 0 ]; then
    echo "== Důkaz v node: dvacet úloh, pět semínek"
    "$doma/tools/sit/sit" hraj 1-20 1-5 mysi-spravne 640x480 >"$web/dukaz_doma.txt"
    # A newer node than the toolchain expects must not fetch where it is to read.
    node --no-experimental-fetch "$web/tools/sit/sit.js" hraj 1-20 1-5 mysi-spravne 640x480 \
        >"$web/dukaz_node.txt"
    cmp "$web/dukaz_doma.txt" "$web/dukaz_node.txt"
    her="$(grep -c '^souhrn ' "$web/dukaz_node.txt")"
    [ "$her" = 100 ] || { echo "SELHALO: odehráno jen $her her" >&2; exit 1; }
    if grep -E ' nejde sestrojit$|^chyba' "$web/dukaz_node.txt" >&2; then exit 1; fi
    echo "V pořádku: $her her, $(wc -l <"$web/dukaz_node.txt") řádků," \
        "za plný počet bodů $(grep -c ' bodu 20 z 20$' "$web/dukaz_node.txt")."
    echo "== V node se sanitizery: každá deska"
    "$doma/tools/sit/sit" hraj 1,4,9-12 1 mysi-spravne 640x480 >"$web/sanitizery_doma.txt"
    node --no-experimental-fetch --stack-size=4000 "$web-sanitizery/tools/sit/sit.js" \
        hraj 1,4,9-12 1 mysi-spravne 640x480 >"$web/sanitizery_node.txt"
    cmp "$web/sanitizery_doma.txt" "$web/sanitizery_node.txt"
fi
echo "== Stránka v prohlížeči"
"$doma/tools/sit/sit" hraj 1-20 1 mysi-spravne 640x480 >"$web/dukaz_doma_1.txt"
node "$slozka/testy.mjs" "$doma" "$web/stranka" "$web/dukaz_doma_1.txt" "$@"
