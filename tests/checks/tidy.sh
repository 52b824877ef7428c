#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# tidy.sh BUILD BENCHMARKS: runs clang-tidy on all sources. The arguments are two folders of unity builds, the second
# one with the benchmarks. It checks a room or a few tests at a time, since Qt's headers take most of the work.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
build=$(realpath "${1:?the build folder}") benchmarks=$(realpath "${2:?the build folder with the benchmarks}")
failed=0

# look BUILD PART [OPTION...]: checks the unity files of that part.
look() {
    local folder=$1 part=$2 files
    shift 2
    files=$(sed -n "s|^ *\"file\": \"\($folder/$part/.*/Unity/.*\)\"\$|\1|p" "$folder/compile_commands.json")
    [ -n "$files" ] || { echo "no compile commands of $part in $folder"; failed=1; return; }
    xargs -n 1 -P "$(nproc)" clang-tidy --quiet -p "$folder" "$@" <<<"$files" 2> >(grep -vE '^[0-9]+ warnings? generated|^$' >&2) || failed=1
}

# The analyzer checks included files too, since the rooms include theirs. It runs in shallow mode: the deep one found
# nothing more.
look "$build" src --checks=-bugprone-suspicious-include --extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang \
    --extra-arg=mode=shallow --extra-arg=-Xclang --extra-arg=-analyzer-opt-analyze-headers

# No user waits for tests, and an exception that ends a test is reported. The other checks left out here take the most
# time.
lighter=-bugprone-suspicious-include,-clang-analyzer-*,-performance-*,-bugprone-exception-escape,-bugprone-use-after-move
lighter+=,-bugprone-unused-return-value,-bugprone-implicit-widening-of-multiplication-result
lighter+=,-bugprone-suspicious-string-compare,-bugprone-sizeof-expression,-bugprone-suspicious-semicolon
lighter+=,-bugprone-not-null-terminated-result,-bugprone-misplaced-widening-cast,-modernize-use-nullptr
look "$build" tests --checks="$lighter"
look "$benchmarks" benchmarks --checks="$lighter"
exit $failed
