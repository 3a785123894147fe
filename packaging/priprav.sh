# Sourced by ./run and ./test: what they share. Installs what a build needs, builds, lists the project's
# own sources and what the game reads, tells its version.

# Debian's package names; installed with apt-get, as root or through sudo. Nothing is asked for
# when nothing is missing.
BALICKY_HRA="g++ cmake ninja-build pkg-config libsdl2-dev libcairo2-dev libfreetype-dev
    librsvg2-dev zlib1g-dev fonts-liberation fonts-dejavu-core python3-fonttools"
BALICKY_PREHLED="libsqlite3-dev libutf8proc-dev nlohmann-json3-dev
    libkainjow-mustache-dev libjs-chart.js"
BALICKY_PREHLED_TESTY="chromium nodejs"
BALICKY_TESTY="libgtest-dev poppler-utils xvfb xdotool x11-utils imagemagick sway grim
    clang-format clang-tidy-16"
BALICKY_BALIK="dpkg-dev librsvg2-bin"
BALICKY_BALIK_TESTY="lintian debootstrap appstream desktop-file-utils xvfb xdotool x11-utils imagemagick"
BALICKY_WEB="emscripten dpkg-dev patch xz-utils"
BALICKY_WEB_TESTY="chromium poppler-utils xvfb xdotool x11-xkb-utils"
BALICKY_WINDOWS="g++-mingw-w64-x86-64-posix dpkg-dev patch xz-utils librsvg2-bin imagemagick nsis tcl"
BALICKY_WINDOWS_TESTY="wine64 googletest xvfb xdotool imagemagick"
BALICKY_BENCH="libbenchmark-dev libxtst-dev xvfb xdotool x11-utils time"

# Czech letters are typed, printed and compared in UTF-8, whatever the machine is set to.
export LC_ALL=C.UTF-8

# priprav PACKAGE...: installs those that are missing.
priprav() {
    chybi=""
    for balicek in "$@"; do
        dpkg-query -W -f='${Status}' "$balicek" 2>/dev/null | grep -q 'ok installed' ||
            chybi="$chybi $balicek"
    done
    [ -z "$chybi" ] && return 0
    echo "Instaluji:$chybi"
    if [ "$(id -u)" = 0 ]; then
        prava=""
    elif command -v sudo >/dev/null; then
        prava="sudo"
    else
        echo "Chybí balíčky a není právo je nainstalovat (root ani sudo):$chybi" >&2
        return 1
    fi
    export DEBIAN_FRONTEND=noninteractive
    # shellcheck disable=SC2086
    $prava apt-get install -y --no-install-recommends $chybi >/dev/null 2>&1 ||
        { $prava apt-get update -qq &&
          $prava apt-get install -y --no-install-recommends $chybi >/dev/null; }
}

# zdroje PATTERN [PATTERN]: the project's own sources, one a line; none is an error.
zdroje() {
    seznam="$(find src tools tests bench -type f \( -name "$1" -o -name "${2:-$1}" \) | sort)"
    [ -n "$seznam" ] || { echo "Nenašly se žádné zdroje: $*" >&2; return 1; }
    echo "$seznam"
}

# obsah_hry: what the game reads of a staged copy, a path a line: neither results that the copy was
# played with nor what an earlier build left there. A picture's shapes lie beside it.
obsah_hry() {
    awk '!/^#/ && NF { print "assets/" $1; if (sub(/\.bmp$/, ".tvary", $1)) print "assets/" $1 }' \
        assets/soubory.txt
    (cd data && for zdroj in [0-9][0-9].txt Errors.txt Znamky.txt; do echo "data/${zdroj%.txt}.dat"; done)
}

# The program's version, which attempts and all homes bear.
verze_programu() { sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt; }

# sestav FOLDER [cmake options...]: configures and builds everything there, or what CILE names.
sestav() {
    slozka="$1"
    shift
    cmake -S . -B "$slozka" -G Ninja "$@" >"$slozka.cmake.log" 2>&1 ||
        { cat "$slozka.cmake.log" >&2; return 1; }
    # shellcheck disable=SC2086
    ninja -C "$slozka" ${CILE:-}
}

# nove_knihovny FOLDER LIBRARIES: what cmake remembers in the build folder of libraries that lay
# elsewhere is forgotten: it would still look there.
nove_knihovny() {
    mkdir -p "$1"
    [ "$(cat "$1/knihovny.txt" 2>/dev/null)" = "$2" ] || rm -f "$1/CMakeCache.txt"
    echo "$2" >"$1/knihovny.txt"
}
