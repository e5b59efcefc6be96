#!/usr/bin/env bash
# Builds a library, and the resources of the program, in two folders at two times: both come out the same.
#   reproducible_build.sh SOURCE_FOLDER WORK_FOLDER
set -euo pipefail
source=$1
work=$2
library=bin/libwirepane_contract.so
resources=terminal/.rcc/qrc_terminal_icons.cpp
rm -rf "$work"
mkdir -p "$work"
git -C "$source" ls-files -z | (cd "$source" && tar --null --files-from=- -cf "$work/source.tar")
for place in one another/and-deeper; do
    mkdir -p "$work/$place"
    tar -xf "$work/source.tar" -C "$work/$place" --touch
    cmake -S "$work/$place" -B "$work/$place/build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF \
        -DWIREPANE_BENCHMARKS=OFF >"$work/configure.log"
    cmake --build "$work/$place/build" --target wirepane_contract "$resources" >"$work/build.log" ||
        { cat "$work/build.log"; exit 1; }
done
cmp "$work/one/build/$library" "$work/another/and-deeper/build/$library"
# The comments of this file name its sources; the compiler does not see them.
without_comments() { grep -v '^ *//' "$work/$1/build/$resources"; }
cmp <(without_comments one) <(without_comments another/and-deeper)
! grep -q "$work" "$work/one/build/$library" || { echo "$library names the folder of its build"; exit 1; }
