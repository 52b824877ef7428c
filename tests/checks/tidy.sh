#!/usr/bin/env bash
# clang-tidy over all sources: tidy.sh BUILD BENCHMARKS, two folders of unity builds, the second one with the benchmarks. A room or
# a handful of tests is looked at a time, since most of the work is on Qt's headers.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
build=$(realpath "${1:?the build folder}") benchmarks=$(realpath "${2:?the build folder with the benchmarks}")
failed=0

# look BUILD PART [OPTION...]: what was put together for the part in that folder.
look() {
    local folder=$1 part=$2 files
    shift 2
    files=$(sed -n "s|^ *\"file\": \"\($folder/$part/.*/Unity/.*\)\"\$|\1|p" "$folder/compile_commands.json")
    [ -n "$files" ] || { echo "no compile commands of $part in $folder"; failed=1; return; }
    xargs -n 1 -P "$(nproc)" clang-tidy --quiet -p "$folder" "$@" <<<"$files" 2> >(grep -vE '^[0-9]+ warnings? generated|^$' >&2) || failed=1
}

# The analyzer looks at included files too, since the rooms include theirs; in shallow mode: the deep one found nothing more.
look "$build" src --checks=-bugprone-suspicious-include --extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang \
    --extra-arg=mode=shallow --extra-arg=-Xclang --extra-arg=-analyzer-opt-analyze-headers

# Nobody waits for tests, and an exception that ends one is told. The other checks that are left out take the most time.
lighter=-bugprone-suspicious-include,-clang-analyzer-*,-performance-*,-bugprone-exception-escape,-bugprone-use-after-move
lighter+=,-bugprone-unused-return-value,-bugprone-implicit-widening-of-multiplication-result
lighter+=,-bugprone-suspicious-string-compare,-bugprone-sizeof-expression,-bugprone-suspicious-semicolon
lighter+=,-bugprone-not-null-terminated-result,-bugprone-misplaced-widening-cast,-modernize-use-nullptr
look "$build" tests --checks="$lighter"
look "$benchmarks" benchmarks --checks="$lighter"
exit $failed
