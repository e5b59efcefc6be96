#!/usr/bin/env bash
# Installs the build, moves the tree, and uses the program as a stranger does.
#   installed_tree.sh BUILD_FOLDER WORK_FOLDER
set -euo pipefail
build=$1
work=$2
export QT_QPA_PLATFORM=offscreen XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
rm -rf "$work"
mkdir -p "$work"

# Whoever has built this one target, as ./run does, can install: nothing is installed that it does not build.
if [ -f "$build/build.ninja" ]; then
    ninja -C "$build" -t commands wirepane_installed >"$work/commands"
    # What tests have built beside it is none of its own.
    find "$build" -path "$build/tests" -prune -o -name cmake_install.cmake -exec grep -hoE "\"$build/[^\"]*\.(a|so[.0-9]*|qm)\"" {} + |
        tr -d '"' | sort -u | sed "s|^$build/||" >"$work/needed"
    grep -q 'libwirepane_conformance\.a' "$work/needed"
    while read -r file; do
        grep -qF -- "$file" "$work/commands" || { echo "$file is installed, and not built for it"; exit 1; }
    done <"$work/needed"
fi
cmake --install "$build" --prefix "$work/first" >"$work/install.log"
mv "$work/first" "$work/moved"
wirepane=$work/moved/bin/wirepane

expect() { # what, text, file
    grep -qE -- "$2" "$3" || { echo "$1: no \"$2\" in:"; cat "$3"; exit 1; }
}

"$wirepane" --version >"$work/version"
expect "version" '^wirepane [0-9]+\.[0-9]+\.[0-9]+$' "$work/version"
"$wirepane" sample --store "$work/news" --now 2026-03-02T09:30:00 --days 2 --per-day 50 >"$work/sample"
expect "sample wire" '^[1-9][0-9]* taken in, 0 already there' "$work/sample"
# Of a wire that breaks off nothing stays, and one that is missing is named.
wire=$work/moved/bin/wirepane-sample-wire
mv "$wire" "$work/wire"
refused() { # what the program says
    "$wirepane" sample --store "$work/refused" >"$work/said" 2>&1 && { echo "taken in: $1"; exit 1; }
    expect "a wire that cannot be used" "$1" "$work/said"
    "$wirepane" search --store "$work/refused" a >"$work/found" 2>&1 || true
    ! grep -qE '^[0-9]{4}-' "$work/found" || { echo "something stayed: $1"; exit 1; }
}
refused 'wirepane-sample-wire cannot be started'
printf '#!/bin/sh\n"%s" | head -n 4000\necho "no more words" >&2\nexit 3\n' "$work/wire" >"$wire"
chmod +x "$wire"
refused 'broke off. no more words'
mv "$work/wire" "$wire"
# Systems may leave out what is in share/doc: the program needs none of it.
mv "$work/moved/share/doc" "$work/doc"
printf '%s\n' '{"jsonrpc":"2.0","id":1,"method":"view.open","params":{"size":[900,600]}}' \
    '{"jsonrpc":"2.0","id":2,"method":"grid.read","params":{"list":0}}' \
    '{"jsonrpc":"2.0","id":3,"method":"input.key","params":{"key":"F1"}}' \
    '{"jsonrpc":"2.0","id":4,"method":"dialog.state"}' '{"jsonrpc":"2.0","id":5,"method":"app.quit"}' |
    "$wirepane" --automation --store "$work/news" --config "$work/config" --now 2026-03-02T09:30:00 >"$work/opened"
mv "$work/doc" "$work/moved/share/doc"
expect "the terminal finds its module" '"rows":[1-9]' "$work/opened"
expect "the terminal finds its guide" '"class":"wirepane::GuideWindow"' "$work/opened"

# What is installed for the shell tells the program's own options and commands.
manual=$work/manual
gzip -dc "$work/moved/share/man/man1/wirepane.1.gz" >"$manual"
for command in '' import feed replay sample search export check; do
    expect "completion" "\b$command\b" "$work/moved/share/bash-completion/completions/wirepane"
    expect "manual page" "^\.B wirepane ?$command$" "$manual"
    "$wirepane" $command --help 2>/dev/null | sed -nE 's/^ *(-[a-z], )?--([a-z0-9-]+).*/\2/p' >"$work/options"
    expect "options of '$command'" '^store$' "$work/options"
    for option in $(cat "$work/options"); do
        expect "manual page, $command" "\\\\-\\\\-${option//-/\\\\-}([^a-z\\\\]|$)" "$manual"
    done
done
PATH=$work/moved/bin:$PATH bash -c '
    source "$1"
    COMP_WORDS=(wirepane search --li) COMP_CWORD=2
    _wirepane
    printf "%s\n" "${COMPREPLY[@]}"' _ "$work/moved/share/bash-completion/completions/wirepane" >"$work/completed"
expect "completed option" '^--limit$' "$work/completed"
