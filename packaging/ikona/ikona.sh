# Sourced: the icon of the game, from its own drawing and colours.

# ikona_svg velka|mala: the drawing, ready to be shown. The small one is for 32 px and less, where the
# lines of the large one would vanish.
ikona_svg() {
    awk -v casti=assets/svg '
        function vypln(radek,  jmeno, soubor, dalsi) {
            if (match(radek, /^[{][{]>.*[}][}]$/)) {
                soubor = casti "/" substr(radek, 4, length(radek) - 5)
                while ((getline dalsi <soubor) > 0) vypln(dalsi)
                return
            }
            while (match(radek, /[{][{][A-Z0-9_]+[}][}]/)) {
                jmeno = substr(radek, RSTART + 2, RLENGTH - 4)
                if (!(jmeno in barva)) { print "ikona: není barva " jmeno >"/dev/stderr"; exit 1 }
                radek = substr(radek, 1, RSTART - 1) barva[jmeno] substr(radek, RSTART + RLENGTH)
            }
            print radek
        }
        FNR == NR { if (/^[A-Z0-9_]+ = /) barva[$1] = $3; next }
        { vypln($0) }
    ' assets/barvy.txt "packaging/ikona/$1.svg"
}

# ikona_png SIZE: the icon in so many pixels, to the standard output.
ikona_png() {
    druh=velka
    [ "$1" -gt 32 ] || druh=mala
    ikona_svg "$druh" | rsvg-convert --width "$1" --height "$1" --format png
}
