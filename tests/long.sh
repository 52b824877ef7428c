#!/usr/bin/env bash
# long.sh MINUTES [SEED]: all attacks for so long, by the programs that ./test has built: half of the time kills, losses of
# power, failing disks and damage, each time from the next seed on; a third readers under fire; the rest users who do anything.
# The tables of all tries come last. What ended badly is in build/long.log, with what shows it again; the exit status is 1 then.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
minutes=${1:?how many minutes} seed=${2:-1} status=0
log=build/long.log
export LC_ALL=C.UTF-8 TZ=UTC QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS=suppressions=$PWD/tests/checks/leaks.txt:print_suppressions=0
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
: >"$log"

# attacks HEAD COMMAND...: the table behind its head; all of the output is in the log when it ended badly.
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
