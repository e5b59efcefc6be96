#!/usr/bin/env bash
# clang-tidy over every source of the product, as the given build folder compiles it.
set -euo pipefail
build=$1
# Without the compiler's precompiled headers, which clang cannot read.
mkdir -p "$build/lint"
sed -E 's/ -Winvalid-pch//g; s/ -include [^ ]*cmake_pch\.hxx//g' "$build/compile_commands.json" >"$build/lint/compile_commands.json"
git ls-files '*.cpp' | grep -v '^tests/' |
    xargs -P "$(nproc)" -n 4 clang-tidy-14 -p "$build/lint" --quiet --extra-arg=-Wno-unknown-warning-option 2>/dev/null
