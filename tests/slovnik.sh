#!/bin/sh
# Whether the glossary knows every word of the names of folders, files, types and public functions.
# A word (of three letters at least) is known if it begins with a stem of the glossary and at most
# three letters follow; after a stem of three letters, two.
#   slovnik.sh SRC GLOSSARY
set -eu
export LC_ALL=C
slovnik="$(realpath "$2")"
cd "$1"
hlavicky="$(find . -name '*.h' -o -name '*.h.in' | sort)"
{
    find . -mindepth 1 ! -name CMakeLists.txt | sed 's,^\./,,; s,\(.*/\)\{0\,1\}\([^./]*\).*,& \2,'
    # shellcheck disable=SC2086
    awk '
    FNR == 1 { skryto = 0 }
    { sub(/\/\/.*/, ""); gsub(/"([^"\\]|\\.)*"/, "\"\""); match($0, /^ */); vlevo = RLENGTH }
    /^ *(private|protected):/ { skryto = 1; kde = vlevo; next }
    /^ *public:/ || (skryto && /^ *}/ && vlevo <= kde) { skryto = 0 }
    skryto { next }
    {
        for (r = $0; match(r, /(struct|class|using|concept) [A-Z][A-Za-z0-9]*/);
             r = substr(r, RSTART + RLENGTH)) {
            jmeno = substr(r, RSTART, RLENGTH)
            sub(/.* /, "", jmeno)
            print substr(FILENAME, 3), jmeno
        }
        # A function: its type, its name, a bracket; not a call in the body of another one.
        for (r = $0; match(r, /[A-Za-z0-9_>*&\]]+ [*&]*[A-Z][A-Za-z0-9]*\(/);
             r = substr(r, RSTART + RLENGTH)) {
            jmeno = substr(r, RSTART, RLENGTH - 1)
            if (jmeno ~ /^(return|throw|else|new|co_await|co_return) /) continue
            sub(/.*[ *&]/, "", jmeno)
            print substr(FILENAME, 3), jmeno
        }
    }' $hlavicky
} | awk '
    FNR == NR { slovnik = slovnik " " $0; next }
    FNR == 1 {
        useku = split(slovnik, usek, /`/)  # every second one stands between two of these marks
        for (u = 2; u <= useku; u += 2) {
            n = split(usek[u], s, /, */)
            for (i = 1; i <= n; i++) kmen[s[i]] = 1
        }
    }
    {
        jmen++
        slova = ""
        for (i = 1; i <= length($2); i++) {
            z = substr($2, i, 1); pred = substr($2, i - 1, 1); po = substr($2, i + 1, 1)
            if (z !~ /[A-Za-z]/) z = " "
            else if (z ~ /[A-Z]/ && (pred ~ /[a-z0-9]/ || po ~ /[a-z]/)) z = " " z
            slova = slova z
        }
        n = split(tolower(slova), s, / +/)
        for (i = 1; i <= n; i++) {
            d = length(s[i])
            for (k = d; k >= 3 && k >= d - 3; k--) {
                if (substr(s[i], 1, k) in kmen && (d - k < 3 || k > 3)) break
            }
            if (d < 3 || (k >= 3 && k >= d - 3)) continue
            print "SELHALO: " $1 ": " $2 ": slovo \"" s[i] "\" není ve slovníku" > "/dev/stderr"
            spatne = 1
        }
    }
    END {
        if (jmen < 500) {
            print "SELHALO: jen " jmen + 0 " jmen, prohlídka nic neviděla" > "/dev/stderr"
            spatne = 1
        }
        if (!spatne) print jmen " jmen v pořádku."
        exit spatne
    }' "$slovnik" -
