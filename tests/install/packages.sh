#!/usr/bin/env bash
# Makes the Debian packages of a build, and has them judged as a distribution judges them.
#   packages.sh BUILD_FOLDER WORK_FOLDER
set -euo pipefail
build=$1
work=$2
rm -rf "$work"
mkdir -p "$work"
cd "$work"
cpack --config "$build/CPackConfig.cmake" -B "$work" >"$work/cpack.log" 2>&1 || { cat "$work/cpack.log"; exit 1; }
lintian --fail-on error,warning --tag-display-limit 0 ./*.deb

contains() { # package, file
    dpkg-deb --contents ./"$1"_*deb >contents
    grep -qE " \./$2( |$)" contents || { echo "$1 lacks $2"; exit 1; }
}
contains wirepane usr/bin/wirepane
contains wirepane usr/bin/wirepane-sample-wire
contains libwirepane-host0.1 usr/lib/wirepane-0.1/libwirepane_news.so
contains wirepane usr/share/wirepane/docs/guide/guide.md
contains wirepane-wire usr/lib/wirepane-0.1/libwirepane_wire_postgres.so
contains wirepane-sound usr/lib/wirepane-0.1/libwirepane_sound.so
contains wirepane-dev usr/share/pkgconfig/wirepane-host.pc

# The symbols of a program that was stripped for its package stand in another.
dpkg-deb --fsys-tarfile ./wirepane_*.deb | tar -xO ./usr/bin/wirepane >program
id=$(readelf --notes program | sed -n 's/.*Build ID: //p')
contains wirepane-dbgsym "usr/lib/debug/\.build-id/${id:0:2}/${id:2}\.debug"
