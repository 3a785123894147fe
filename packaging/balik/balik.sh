# Sourced after priprav.sh: the package for Debian and Ubuntu, made of a staged copy. Byte for byte the
# same from the same copy.

# sestav_balik STAGING SHOW [VERSION]: leaves build/balik/rysovna_VERSION_ARCH.deb and its picture for
# the page of shops, prints the package's name. SHOW is the program ukazka; without a version the
# changelog's.
sestav_balik() (
    set -eu
    umask 022
    staging="$1"
    ukazka="$2"
    zdroj=packaging/balik
    prace=build/balik/prace
    koren="$prace/koren"
    rm -rf "$prace"
    mkdir -p "$koren" "$prace/debian"
    cp "$zdroj/control" "$zdroj/changelog" "$prace/debian/"
    if [ -n "${3:-}" ]; then
        sed -i "1s/([^)]*)/($3)/" "$prace/debian/changelog"
    fi
    verze="$(dpkg-parsechangelog -l "$prace/debian/changelog" -S Version)"
    programu="$(verze_programu)"
    if [ -z "${3:-}" ] && [ "$verze" != "$programu" ]; then
        echo "V $zdroj/changelog je verze $verze, v CMakeLists.txt $programu." >&2
        exit 1
    fi
    SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-$(dpkg-parsechangelog -l "$prace/debian/changelog" -S Timestamp)}"
    export SOURCE_DATE_EPOCH
    datum="$(date -u -d "@$SOURCE_DATE_EPOCH" +%Y-%m-%d)"
    # doplneno FILE: with version and date filled in.
    doplneno() { sed "s/@VERZE@/$verze/; s/@DATUM@/$datum/" "$zdroj/$1"; }
    # soubor TARGET [RIGHTS]: the standard input as a file of the package. None is empty: that it is
    # says that what should have written it failed.
    soubor() {
        mkdir -p "$(dirname "$koren/$1")"
        cat >"$koren/$1"
        chmod "${2:-644}" "$koren/$1"
        [ -s "$koren/$1" ] || { echo "Soubor balíčku je prázdný: $1" >&2; return 1; }
    }

    soubor usr/games/rysovna 755 <"$staging/rysovna"
    soubor usr/bin/kodovani 755 <"$staging/kodovani"
    soubor usr/bin/prehled 755 <"$staging/prehled"
    soubor etc/rysovna/Rysovna.ini <packaging/Rysovna.ini
    soubor usr/share/rysovna/slozka-tridy 755 <"$zdroj/slozka-tridy"
    # The licences stand in the copyright file.
    kam="$PWD/$koren/usr/share/rysovna"
    mkdir -p "$kam"
    obsah_hry | sed '/^assets\/Licence/d' >"$prace/seznam"
    (cd "$staging" && xargs cp --parents -t "$kam") <"$prace/seznam"
    find "$kam/assets" "$kam/data" -type f -exec chmod 644 {} +
    find "$kam" -type d -exec chmod 755 {} +

    soubor usr/share/applications/rysovna.desktop <"$zdroj/rysovna.desktop"
    doplneno rysovna.metainfo.xml | soubor usr/share/metainfo/org.example.rysovna.metainfo.xml
    . packaging/ikona/ikona.sh
    for velikost in 16 22 24 32 48 64 128 256; do
        ikona_png "$velikost" |
            soubor "usr/share/icons/hicolor/${velikost}x$velikost/apps/rysovna.png"
    done
    ikona_svg velka | soubor usr/share/icons/hicolor/scalable/apps/rysovna.svg
    "$ukazka" "$prace/obrazky" 5 >"$prace/ukazka.log"
    cp "$prace"/obrazky/*_05_konstrukce.png build/balik/rysovna.png
    soubor usr/share/doc/rysovna/rysovna.png <build/balik/rysovna.png

    doplneno man/rysovna.6 | gzip -9n | soubor usr/share/man/man6/rysovna.6.gz
    doplneno man/rysovna.cs.6 | gzip -9n | soubor usr/share/man/cs/man6/rysovna.6.gz
    doplneno man/kodovani.1 | gzip -9n | soubor usr/share/man/man1/kodovani.1.gz
    doplneno man/kodovani.cs.1 | gzip -9n | soubor usr/share/man/cs/man1/kodovani.1.gz
    doplneno man/prehled.1 | gzip -9n | soubor usr/share/man/man1/prehled.1.gz
    doplneno man/prehled.cs.1 | gzip -9n | soubor usr/share/man/cs/man1/prehled.1.gz
    gzip -9n <"$prace/debian/changelog" | soubor usr/share/doc/rysovna/changelog.gz
    # licence NAME: a font's, as a paragraph of the copyright file.
    # doc:PACKAGE: that of a library of Debian's, which a program holds.
    licence() {
        case "$1" in
            doc:*) text="/usr/share/doc/${1#doc:}/copyright" ;;
            *) text="$staging/assets/Licence/$1.txt" ;;
        esac
        sed 's/[[:space:]]*$//; s/^$/./; s/^/ /' "$text"
    }
    while IFS= read -r radek; do
        case "$radek" in
            @*@) jmeno="${radek#@}"; licence "${jmeno%@}" ;;
            *) echo "$radek" ;;
        esac
    done <"$zdroj/copyright" | soubor usr/share/doc/rysovna/copyright
    soubor usr/share/lintian/overrides/rysovna <"$zdroj/lintian-overrides"

    mkdir "$koren/DEBIAN"
    echo /etc/rysovna/Rysovna.ini >"$koren/DEBIAN/conffiles"
    (cd "$koren" && find usr -type f | LC_ALL=C sort | xargs -d '\n' md5sum >DEBIAN/md5sums)
    (
        cd "$prace"
        dpkg-shlibdeps -Tdebian/substvars koren/usr/games/rysovna koren/usr/bin/kodovani koren/usr/bin/prehled
        dpkg-gencontrol -Tdebian/substvars -Pkoren -prysovna
    )
    chmod 644 "$koren"/DEBIAN/*
    find "$koren" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
    balik="build/balik/rysovna_${verze}_$(dpkg --print-architecture).deb"
    # One thread: how many there are would show in the bytes.
    DPKG_DEB_THREADS_MAX=1 dpkg-deb --root-owner-group -Zxz --build "$koren" "$balik" >/dev/null
    rm -rf "$prace"
    echo "$balik"
)
