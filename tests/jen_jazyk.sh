#!/bin/sh
# Rules and store lean on the language alone: a program made of them wants its library, the C library
# and the mathematics, and nothing of windows, pictures or fonts.
#   jen_jazyk.sh PROGRAM
set -eu
cizi="$(ldd "$1" | awk '{ print $1 }' | grep -vE 'linux-vdso|/?ld-linux|lib(stdc\+\+|m|gcc_s|c)\.so\.' || true)"
[ -z "$cizi" ] || { echo "SELHALO: $1 chce navíc: $cizi" >&2; exit 1; }
ldd "$1" | grep -q 'libc\.so' || { echo "SELHALO: $1 nic nechce, prohlídka nic neviděla" >&2; exit 1; }
echo "V pořádku."
