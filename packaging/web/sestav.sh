# Sourced after priprav.sh by who builds for the browser.

# sestav_web STAGED [ninja targets...]: the libraries, and the program for the browser in build/web,
# with pictures, sounds and data of a staged copy. Without targets the page too, in build/web/stranka.
# WEB_SLOZKA: another folder than build/web; WEB_VOLBY: more options of cmake.
sestav_web() {
    hotove="$1"
    shift
    # The compiler's own libraries, and the modules of its scripts, are those of Debian's packages.
    export EM_FROZEN_CACHE=1 NODE_PATH=/usr/share/nodejs
    knihovny="$(packaging/knihovny/sestav web)"
    web="${WEB_SLOZKA:-build/web}"
    nove_knihovny "$web" "$knihovny"
    PKG_CONFIG_LIBDIR="$knihovny/lib/pkgconfig" emcmake cmake -S . -B "$web" -G Ninja \
        -DRYSOVNA_TESTY=OFF "-DRYSOVNA_HOTOVE=$hotove" "-DCMAKE_FIND_ROOT_PATH=$knihovny" \
        ${WEB_VOLBY:-} >"$web.cmake.log" 2>&1 || { cat "$web.cmake.log" >&2; return 1; }
    ninja -C "$web" "$@"
    [ $# -eq 0 ] || return 0
    # shellcheck source=packaging/ikona/ikona.sh
    . packaging/ikona/ikona.sh
    ikona_svg velka >"$web/src/ikona.svg"
    node packaging/web/zabal.mjs "$hotove" "$web/src" "$knihovny" packaging/web "$web/stranka"
}
