#!/usr/bin/env bash
# clang-tidy over src, a room at a time, since most of its work is on the headers: tidy.sh BUILD-FOLDER, one of a unity build.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
build=${1:?the build folder}
rooms=$(sed -n 's/^ *"file": "\(.*\/src\/.*\/Unity\/.*\)"$/\1/p' "$build/compile_commands.json")
[ -n "$rooms" ] || { echo "no compile commands of rooms in $build"; exit 1; }
# The analyzer looks at included files too, since the rooms include theirs; in shallow mode: the deep one found nothing more.
shallow=(--extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=mode=shallow
    --extra-arg=-Xclang --extra-arg=-analyzer-opt-analyze-headers)
xargs -n 1 -P "$(nproc)" clang-tidy --quiet --checks=-bugprone-suspicious-include -p "$build" "${shallow[@]}" <<<"$rooms" \
    2> >(grep -vE '^[0-9]+ warnings? generated|^$' >&2)
