#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks what a new user sees. ./run without a display must show the whole sample trip. The first trip of README.md must
# give the table that is printed there.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1

legs=64 # legs of the sample trip; its schedule has at least as many numbered rows
table=$(env -u DISPLAY -u WAYLAND_DISPLAY ./run 2>&1) || {
    printf '%s\n' "$table" | tail -n 20
    exit 1
}
rows=$(printf '%s\n' "$table" | grep -cE '^ *[0-9]+  [^ ]')
if [ "$rows" -lt "$legs" ]; then
    echo "run showed $rows rows of the sample trip"
    exit 1
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/programma"

# block KIND: prints the README's fenced text of that kind
block() { awk -v fence="\`\`\`$1" '$0 == "```" { on = 0 } on; $0 == fence { on = 1 }' README.md; }

block vanzer-batch >"$scratch/script"
block text >"$scratch/promised"
[ -s "$scratch/script" ] && [ -s "$scratch/promised" ] || { echo 'README.md has no first trip'; exit 1; }
build/release/vanzer-batch --dir "$scratch/programma" --script "$scratch/script" |
    build/release/schedule_table >"$scratch/shown" || exit 1
diff "$scratch/promised" "$scratch/shown"
