#!/bin/sh
# Nobody asks the C library for a function whose last place differs from home to home: these come from
# base/Matematika.h. The text is searched, since a compiler may reckon a call away, and so are the
# libraries, since a call may come by another way.
#   jedny_funkce.sh SRC LIBRARY...
set -eu
export LC_ALL=C
funkce='(sin|cos|tan|sincos|asin|acos|atan|atan2|sinh|cosh|tanh|asinh|acosh|atanh|hypot|pow|cbrt'
funkce="$funkce|exp|exp2|exp10|expm1|log|log2|log10|log1p|erf|erfc|lgamma|tgamma)(f|l)?"
src="$1"
shift
cizi="$(grep -rnE "(^|[^A-Za-z0-9_.>\"])(std::)?$funkce\(" "$src" --include=*.cpp --include=*.h || true)"
[ -z "$cizi" ] || { echo "SELHALO:"; echo "$cizi"; exit 1; }
for knihovna in "$@"; do
    zada="$(nm -u "$knihovna" | awk '$1 == "U" { print $2 }' | sort -u)"
    echo "$zada" | grep -q '^mem' || { echo "SELHALO: $knihovna nic nechce, prohlídka nic neviděla"; exit 1; }
    cizi="$(echo "$zada" | grep -xE "$funkce" || true)"
    [ -z "$cizi" ] || { echo "SELHALO: $knihovna chce: $cizi"; exit 1; }
done
echo "V pořádku."
