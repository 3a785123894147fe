#!/bin/bash
# Runs a program on a virtual display of its own, without a window manager.
#   na_displeji.sh WIDTH HEIGHT PROGRAM [ARGUMENTS]
set -eu
sirka="$1"
vyska="$2"
shift 2
# shellcheck source=tests/okno/spolecne.sh
. "$(dirname "$0")/spolecne.sh"
displej
"$@"
