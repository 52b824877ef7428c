#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that clang-format would change no source file.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
find src tests benchmarks tools \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format --dry-run -Werror
