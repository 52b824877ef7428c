#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# hardened.sh BUILD [PROGRAM...]: checks that users' programs are built against memory faults. Each loads at a random
# address, has read-only tables of functions and no executable stack, and guards its stacks and the C library's calls.
# Prints what a program lacks.
set -uo pipefail
build=$1
shift
[ $# -gt 0 ] || set -- vanzer vanzer-batch Scribolo

lacking=0

# needs PROGRAM WHAT PATTERN TEXT: some line of the text must match the pattern.
needs() {
    grep -qE "$3" <<<"$4" && return
    printf '%s: %s\n' "$1" "$2"
    lacking=1
}

for program in "$@"; do
    file=$build/$program
    shape=$(readelf -hlWd "$file") || { lacking=1; continue; }
    imported=$(readelf --dyn-syms -W "$file")
    needs "$program" 'stands at a fixed place (no PIE)' '^ *Type: *DYN' "$shape"
    needs "$program" 'is a library, not a program (no PIE)' 'FLAGS_1.*PIE' "$shape"
    needs "$program" 'its tables can be written (no GNU_RELRO)' '^ *GNU_RELRO' "$shape"
    needs "$program" 'its tables are filled while it runs (no BIND_NOW)' '\(FLAGS\).*BIND_NOW|FLAGS_1.*NOW' "$shape"
    needs "$program" 'its stack can be run' '^ *GNU_STACK .* RW ' "$shape"
    needs "$program" 'its stacks are not guarded' 'UND __stack_chk_fail' "$imported"
    # The logbook's program has no calls that could be guarded.
    [ "$program" = Scribolo ] ||
        needs "$program" 'calls of the C library are not guarded' 'UND __[a-z]+_chk(@|$| )' "$imported"
done

# Guarded calls show only some files. The compile commands show all of them.
commands=$(grep -E '"command".* -c .*/src/CMakeFiles/' "$build/compile_commands.json")
[ -n "$commands" ] || { echo 'No commands that compiled them'; lacking=1; }
for flag in -D_FORTIFY_SOURCE=[23] -fstack-protector-strong; do
    if bare=$(grep -vE -e "$flag" <<<"$commands" | grep .); then
        printf 'Compiled without %s: %s files\n' "$flag" "$(wc -l <<<"$bare")"
        lacking=1
    fi
done
exit $lacking
