# Sourced after priprav.sh by who builds for the browser.

# sestav_web STAGED [ninja targets...]: the libraries, and the program for the browser in build/web,
# with pictures, sounds and data of a staged copy. Without targets the page too, in build/web/stranka.
sestav_web() {
    hotove="$1"
    shift
    # The compiler's own libraries, and the modules of its scripts, are those of Debian's packages.
    export EM_FROZEN_CACHE=1 NODE_PATH=/usr/share/nodejs
    knihovny="$(packaging/knihovny/sestav web)"
    mkdir -p build/web
    PKG_CONFIG_LIBDIR="$knihovny/lib/pkgconfig" emcmake cmake -S . -B build/web -G Ninja \
        -DRYSOVNA_TESTY=OFF "-DRYSOVNA_HOTOVE=$hotove" "-DCMAKE_FIND_ROOT_PATH=$knihovny" \
        ${WEB_VOLBY:-} >build/web.cmake.log 2>&1 || { cat build/web.cmake.log >&2; return 1; }
    ninja -C build/web "$@"
    [ $# -gt 0 ] || node packaging/web/zabal.mjs "$hotove" build/web/src packaging/web build/web/stranka
}
