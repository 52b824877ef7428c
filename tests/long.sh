#!/usr/bin/env bash
# long.sh MINUTES [SEED]: all attacks for so long, by the programs that ./test has built: half of the time kills, losses of
# power, failing disks and damage, each time from the next seed on; a third readers under fire; the rest users who do anything.
# The tables of all tries come last. What ended badly is in build/long.log, with what shows it again; the exit status is 1 then.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
seconds=$((${1:?how many minutes} * 60)) seed=${2:-1} status=0
log=build/long.log
tables=$(mktemp -d)
trap 'rm -rf "$tables"' EXIT
export LC_ALL=C.UTF-8 TZ=UTC QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS=suppressions=$PWD/tests/checks/leaks.txt:print_suppressions=0
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
: >"$log"

# keeps FILE COMMAND...: the command's output, in the log too when it ended badly.
keeps() {
    local file=$1
    shift
    "$@" >"$file" 2>&1 && return
    status=1
    cat "$file" >>"$log"
}

for ((at = seed, end = SECONDS + seconds / 2; SECONDS < end; at++)); do
    keeps "$tables/stress" build/release/vanzer_stress --gtest_brief=1 --seed="$at" --tries=100 --tally="$tables/tally"
done
keeps "$tables/fuzz" tests/fuzz/long.sh build/asan $((seconds / 3 / 8))
users=0 looks=0
for ((at = seed * 1000, end = SECONDS + seconds / 6; SECONDS < end; at += 200)); do
    keeps "$tables/users" build/asan/hostile/vanzer_hostile --scripts 200 --from "$at"
    users=$((users + 200)) looks=$((looks + $(sed -n 's/^[0-9]* scripts, \([0-9]*\) lines.*/\1/p' "$tables/users")))
done
sed -n '/^attack  /,$p' "$tables/stress"
sed -n '/^reader  /,$p' "$tables/fuzz"
printf 'users %d, their lines %d\n' "$users" "$looks"
exit "$status"
