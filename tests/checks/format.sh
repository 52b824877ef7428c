#!/usr/bin/env bash
# Every source file stands as clang-format would write it.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
find src tests benchmarks tools \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format --dry-run -Werror
