#!/bin/bash
# Proves the game for Windows under wine: the net plays as at home, event for event and pixel for
# pixel; the suites of the floors without a screen; the portable copy and the installed game.
#   testy.sh BUILD_OF_THIS_MACHINE BUILD_FOR_WINDOWS ZIP INSTALLER
set -eu
doma="$1"
windows="$2"
zip="$3"
instalator="$4"
# shellcheck source=tests/windows/spolecne.sh
. tests/windows/spolecne.sh
selhani() { echo "SELHALO: $*" >&2; exit 1; }

echo "== Sady testů"
for patro in base engine rules store; do
    ve_windows "$windows/tests/windows/testy_$patro.exe" --gtest_brief=1 || selhani "testy_$patro"
done

echo "== Táž hra jako doma: úlohy 1-20, semínka 1-5"
tools/sit/porovnej "$doma/tools/sit/sit" tests/windows/sit.sh 1-20 1-5 mysi "$windows/rozdily"

echo "== Přenosná kopie"
tests/windows/hra.sh "$doma/ukazka" prenosna "$zip"
echo "== Nainstalovaná hra"
tests/windows/hra.sh "$doma/ukazka" nainstalovana "$instalator"
echo "V pořádku."
