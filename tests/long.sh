#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# long.sh MINUTES [SEED]: runs all attacks for so long, with the programs that ./test has built. Half of the time goes
# to kills, losses of power, failing disks and damage, from one seed to the next. A third goes to readers under attack,
# the rest to random users. Prints the tables of all tries at the end. Bad ends are in build/long.log, with the command
# that repeats them; the exit status is then 1.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
minutes=${1:?how many minutes} seed=${2:-1} status=0
log=build/long.log
export LC_ALL=C.UTF-8 TZ=UTC QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS=suppressions=$PWD/tests/checks/leaks.txt:print_suppressions=0
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
: >"$log"

# attacks HEAD COMMAND...: prints the head and the table. If the command ended badly, the log gets all of its output.
attacks() {
    local head=$1 output
    shift
    output=$("$@" 2>&1) || { status=1; echo "$output" >>"$log"; }
    sed -n "/^$head  /,\$p" <<<"$output"
}

attacks attack build/release/stress/vanzer_stress --gtest_brief=1 --gtest_filter='-Users*:Pairs*' --seed="$seed" --tries=100 \
    --minutes=$((minutes / 2))
attacks reader tests/stress/readers/long.sh build/asan $((minutes * 60 / 3 / 8))
attacks attack build/asan/stress/vanzer_stress --gtest_brief=1 --gtest_filter='Users*:Pairs*' --seed="$seed" \
    --minutes=$((minutes / 6))
exit "$status"
