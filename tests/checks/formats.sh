#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# formats.sh BUILD: other programs read the files that are made for them. Computes the sample trip. Readers that know
# nothing of Vanzer compare its calendar and its table with the schedule. The manual pages must format without
# complaints.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/programma"
{
    grep -vx stop samples/capo_nord.txt
    printf 'grid mfgTab\nexport ics viaggio.ics\nexport csv viaggio.csv\n'
} >"$scratch/script"
"$1/vanzer-batch" --dir "$scratch/programma" --script "$scratch/script" >"$scratch/answers" || exit 1
/usr/bin/python3 tests/checks/formats.py "$scratch/answers" "$scratch/programma/viaggio.ics" "$scratch/programma/viaggio.csv" || exit 1

for page in share/man/*.1; do
    complaints=$(groff -man -Tutf8 -ww "$page" 2>&1 >"$scratch/page")
    [ -z "$complaints" ] && grep -q VANZER "$scratch/page" || { printf '%s: %s\n' "$page" "$complaints"; exit 1; }
done
# The manual page and docs/batch.md explain each command that --help lists.
"$1/vanzer-batch" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]*\) .*/\1/p' | sort -u >"$scratch/words"
[ "$(wc -l <"$scratch/words")" -gt 20 ] || { echo 'vanzer-batch --help lists no commands'; exit 1; }
while read -r word; do
    grep -q "^\.BI* \"*$word\b" share/man/vanzer-batch.1 || { echo "vanzer-batch.1 does not tell of $word"; exit 1; }
done <"$scratch/words"
