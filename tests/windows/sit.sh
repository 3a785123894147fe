#!/bin/bash
# The net of the build for Windows, called like the one of this machine: see tools/sit/porovnej.
# shellcheck source=tests/windows/spolecne.sh
. tests/windows/spolecne.sh
ve_windows build/windows/tools/sit/sit.exe "$@"
