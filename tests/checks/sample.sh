#!/usr/bin/env bash
# The sample trip is understood to its end and gives a schedule of many rows, as a user without a display sees it.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
table=$(env -u DISPLAY -u WAYLAND_DISPLAY ./run 2>&1) || { printf '%s\n' "$table" | tail -n 20; exit 1; }
printf '%s\n' "$table" | tail -n 5
[ "$(printf '%s\n' "$table" | grep -cE '^ *[0-9]+  ')" -ge 64 ]
