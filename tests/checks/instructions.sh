#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# instructions.sh BUILD: no key work may take over a tenth more instructions for a row than benchmarks/instructions.txt
# says.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1

counted=$(benchmarks/count "$1") || exit 1
join <(sort benchmarks/instructions.txt) <(sort <<<"$counted") | awk -v wanted="$(wc -l <benchmarks/instructions.txt)" '
    { printf "%-12s %9d instructions a row, %+.1f%%\n", $1, $3, ($3 / $2 - 1) * 100 }
    $3 > $2 * 1.1 { grown = 1 }
    $3 < $2 * 0.9 { shrunk = 1 }
    END {
        if (grown) print "A key work grew by more than a tenth. Where that has its reason: benchmarks/count >benchmarks/instructions.txt"
        if (shrunk) print "A key work shrank: to keep it so, benchmarks/count >benchmarks/instructions.txt"
        if (NR != wanted) print "Not every key work of benchmarks/instructions.txt was counted"
        exit grown || NR != wanted
    }'
