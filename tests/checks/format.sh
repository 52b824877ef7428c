#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that clang-format would change no source file, and that each begins with its licence.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
find src tests benchmarks tools \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format --dry-run -Werror || exit 1

# The licence stands in the first line, in a script behind its "#!".
mapfile -t sources < <({
    find src tests benchmarks tools cmake -regex '.*\.\(cpp\|h\|sh\|py\|cmake\)' -o -name CMakeLists.txt
    grep -rlI '^#!' --exclude='*.*' run test .ci samples docs benchmarks tests
    echo CMakeLists.txt
} | sort -u)
bare=$(awk 'FNR == 1 { name = FILENAME; seen[name] = 0 } FNR <= 2 && /^(\/\/|#) SPDX-License-Identifier: MIT$/ { seen[name] = 1 }
    END { for (name in seen) if (!seen[name]) print name }' "${sources[@]}")
[ -z "$bare" ] || { printf 'No line "SPDX-License-Identifier: MIT" in\n%s\n' "$bare"; exit 1; }
