# Sourced by the proofs for Windows: programs of that system, run by wine in a home of their own.
export LC_ALL=C.UTF-8
export WINEPREFIX="${WINEPREFIX:-$PWD/build/windows/wine}" WINEDEBUG=-all
# Nobody asks for what web pages and .NET would want.
export WINEDLLOVERRIDES="mscoree,mshtml="
# Debian's own place of it, for which there is no name in the path without the package wine.
WINE="${WINE:-/usr/lib/wine/wine64}"
# Waits until all that runs there has ended: a desktop that saw no display gives none to who comes next.
dobehni_windows() { "${WINE%/*}/wineserver" -w; }
[ -d "$WINEPREFIX" ] || { "$WINE" wineboot -i >/dev/null 2>&1 && dobehni_windows; }

# ve_windows PROGRAM [ARGUMENTS...]: what it writes has this system's ends of lines.
ve_windows() {
    (
        set -o pipefail
        "$WINE" "$@" | tr -d '\r'
    )
}
