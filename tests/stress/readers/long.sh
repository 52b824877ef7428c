#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# long.sh BUILD-FOLDER SECONDS [READER...]: fuzzes each reader for so many seconds, or all readers if none is named.
# First runs each file of the reader's corpus once. An input that breaks a reader is left in
# BUILD-FOLDER/fuzz/READER/broken. Inputs that cover more than the corpus are left in BUILD-FOLDER/fuzz/READER/found.
# Prints a table at the end. The exit status is 1 if a reader broke.
set -uo pipefail
build=$(realpath "${1:?the build folder}") seconds=${2:?seconds for each reader}
shift 2
cd "$(dirname "$0")" || exit 1
[ $# -gt 0 ] || set -- iei pacchetto mete vecchi archivio comando bozza impostazioni
[ -w /dev/shm ] && export TMPDIR=/dev/shm
most=10 # broken inputs; then the reader is left alone

# fuzz READER: continues after broken inputs until the time is over.
fuzz() {
    local folder=$build/fuzz/$1 end=$((SECONDS + seconds)) left tries=0 broken=-1 now=0 hung ran status=0 options=()
    rm -rf "$folder" && mkdir -p "$folder/found" "$folder/broken" || return 1
    [ -f "$1.dict" ] && options+=("-dict=$1.dict")
    while left=$((end - SECONDS)) && [ "$left" -gt 0 ] && [ "$broken" -lt "$now" ] && [ "$now" -lt "$most" ]; do
        broken=$now
        VANZER_FUZZ=$1 "$build/vanzer_fuzz" "${options[@]}" -max_total_time="$left" -timeout=20 -report_slow_units=20 \
            -rss_limit_mb=4096 -print_final_stats=1 -artifact_prefix="$folder/broken/" "$folder/found" "corpus/$1" \
            >"$folder/log" 2>&1 ||
            { status=1; grep -E '^(broken|==[0-9]+==ERR|SUMMARY|artifact| +#)|runtime error' "$folder/log" || cat "$folder/log"; }
        now=$(find "$folder/broken" -type f | wc -l)
        ran=$(sed -n 's/^stat::number_of_executed_units: *//p' "$folder/log")
        tries=$((tries + ${ran:-0}))
    done
    hung=$(find "$folder/broken" -name 'timeout-*' | wc -l)
    printf '%-14s %9d %8d %5d\n' "$1" "$tries" "$((now - hung))" "$hung" >>"$table"
    [ "$status" -eq 0 ] && [ "$tries" -gt 0 ]
}

status=0
table=$(mktemp)
trap 'rm -f "$table"' EXIT
for reader in "$@"; do fuzz "$reader" || status=1; done
printf '%-14s %9s %8s %5s\n' reader tries crashed hung
cat "$table"
exit "$status"
