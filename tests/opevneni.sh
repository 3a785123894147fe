#!/bin/sh
# Whether programs were built so that a mistake in the handling of memory gives nobody a hold, and
# carry no symbols.
#   opevneni.sh PROGRAM...
set -eu
export LC_ALL=C
for program in "$@"; do
    popis="$(readelf -hlSdW --dyn-syms "$program")"
    ma() { echo "$popis" | grep -Eq -- "$1" || { echo "$program: $2" >&2; exit 1; }; }
    nema() { ! echo "$popis" | grep -Eq -- "$1" || { echo "$program: $2" >&2; exit 1; }; }
    ma 'Type: +DYN .*(Position-Independent|Shared)' "addresses do not differ (no PIE)"
    ma 'GNU_RELRO' "tables of addresses stay writable (no relro)"
    ma '\(FLAGS.*NOW' "addresses are not bound at the start (no now)"
    ma ' __stack_chk_fail' "the stack is not guarded"
    ma ' __(snprintf|memcpy|memmove|read|strcpy|vsnprintf|sprintf|fread|fgets)_chk' \
        "copies are not checked (no _FORTIFY_SOURCE)"
    ma 'GNU_STACK .* RW ' "the stack can be run"
    nema '\.symtab' "it has symbols"
done
echo "V pořádku."
