#!/bin/bash
# Starts the game $HRA_EXE for Windows: see tests/okno/spolecne.sh.
exec "${WINE:-/usr/lib/wine/wine64}" "$HRA_EXE" "$@"
