# Sourced after priprav.sh by who builds for Windows.

# sestav_windows STAGED [ninja targets...]: the libraries, and the programs for Windows in
# build/windows, with pictures, sounds and data of a staged copy.
sestav_windows() {
    hotove="$1"
    shift
    knihovny="$(packaging/knihovny/sestav windows)"
    nove_knihovny build/windows "$knihovny"
    # shellcheck source=packaging/ikona/ikona.sh
    . packaging/ikona/ikona.sh
    for velikost in 16 24 32 48 64 256; do
        ikona_png $velikost >"build/windows/ikona$velikost.png"
    done
    (cd build/windows && convert ikona16.png ikona24.png ikona32.png ikona48.png ikona64.png \
        ikona256.png rysovna.ico)
    PKG_CONFIG_LIBDIR="$knihovny/lib/pkgconfig" cmake -S . -B build/windows -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE=packaging/knihovny/cile/windows-mingw.cmake \
        "-DRYSOVNA_HOTOVE=$hotove" "-DCMAKE_FIND_ROOT_PATH=$knihovny" \
        "-DRYSOVNA_IKONA=$PWD/build/windows/rysovna.ico" ${WINDOWS_VOLBY:-} \
        >build/windows.cmake.log 2>&1 || { cat build/windows.cmake.log >&2; return 1; }
    ninja -C build/windows "$@"
}

# vydani_windows STAGED: in build/windows/vydani the portable zip and the installer of what
# sestav_windows has built.
vydani_windows() {
    hotove="$1"
    kam="build/windows/vydani"
    slozka="$kam/Rysovna"
    verze="$(verze_programu)"
    rm -rf "$kam"
    mkdir -p "$slozka"
    cp build/windows/staging/rysovna.exe build/windows/staging/kodovani.exe build/windows/staging/prehled.exe \
        "$slozka"
    # As it stands before anybody has played.
    obsah_hry | (cil="$PWD/$slozka" && cd "$hotove" && xargs cp --parents -t "$cil")
    # Licences of what is linked with the program, beside those of the fonts.
    cp "$(packaging/knihovny/sestav windows)"/share/licence/* "$slozka/assets/Licence"
    # And those of the overview's libraries, as Debian's package lists them; utf8proc is one of the
    # former here.
    knihovny_prehledu="$(sed -n 's/^@doc:\(.*\)@$/\1/p' packaging/balik/copyright)"
    for balicek in $knihovny_prehledu; do
        [ "$balicek" = libutf8proc-dev ] ||
            cp "/usr/share/doc/$balicek/copyright" "$slozka/assets/Licence/$balicek.txt"
    done
    (cd "$slozka/data" && echo '; Generated: the game data that the installer brings.' &&
        printf 'Delete "$INSTDIR\\data\\%s"\n' *.dat) >"$kam/data.nsh"
    makensis -V2 -INPUTCHARSET UTF8 "-DVERZE=$verze" "-DSLOZKA=$PWD/$slozka" \
        "-DIKONA=$PWD/build/windows/rysovna.ico" "-DSEZNAM_DAT=$PWD/$kam/data.nsh" \
        "-DKAM=$PWD/$kam/Rysovna-$verze-instalace.exe" packaging/windows/instalator.nsi >&2
    # The portable copy has results beside its examples, and what it reads by Notepad's lines.
    for soubor in "$slozka"/data/[0-9][0-9].dat; do : >"${soubor%.dat}.res"; done
    : >"$slozka/data/Vysledky.dat"
    sed 's/$/\r/' "$hotove/Rysovna.ini" >"$slozka/Rysovna.ini"
    (cd "$kam" && cmake -E tar cf "Rysovna-$verze.zip" --format=zip Rysovna)
    echo "$kam/Rysovna-$verze.zip"
    echo "$kam/Rysovna-$verze-instalace.exe"
}
