#!/usr/bin/env bash
# long.sh FOLDER MINUTES [SEED]: all attacks of the program in that build folder, again and again for so long, each time
# from the next seed on; at the end the table of all tries. What ended badly is in the folder's stress.log, with what
# shows it again. The exit status is 1 if anything did.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
program=$1/vanzer_stress log=$1/stress.log tally=$(mktemp) seed=${3:-1} status=0
trap 'rm -f "$tally"' EXIT
export LC_ALL=C.UTF-8 TZ=UTC QT_QPA_PLATFORM=offscreen
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
: >"$log"
for ((end = SECONDS + $2 * 60; SECONDS < end; seed++)); do
    "$program" --gtest_brief=1 --seed="$seed" --tries=100 --tally="$tally" >"$log.last" 2>&1 ||
        { status=1; cat "$log.last" >>"$log"; }
done
sed -n '/^attack  /,$p' "$log.last"
rm -f "$log.last"
exit "$status"
