#!/usr/bin/env bash
# Installs the build, moves the tree, and uses it as a stranger does: the program runs from it, and the example host
# is built against it from its own folder alone.
#   installed_tree.sh BUILD_FOLDER WORK_FOLDER
set -euo pipefail
build=$1
work=$2
export QT_QPA_PLATFORM=offscreen XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
rm -rf "$work"
mkdir -p "$work"

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
printf '%s\n' '{"jsonrpc":"2.0","id":1,"method":"view.open","params":{"size":[900,600]}}' \
    '{"jsonrpc":"2.0","id":2,"method":"grid.read","params":{"list":0}}' \
    '{"jsonrpc":"2.0","id":3,"method":"app.quit"}' |
    "$wirepane" --automation --store "$work/news" --config "$work/config" --now 2026-03-02T09:30:00 >"$work/opened"
expect "the terminal finds its module" '"rows":[1-9]' "$work/opened"

# What is installed for the shell tells the program's own options and commands.
for command in import feed replay sample search export check; do
    expect "completion" "\b$command\b" "$work/moved/share/bash-completion/completions/wirepane"
    expect "manual page" "^\.B wirepane $command$" "$work/moved/share/man/man1/wirepane.1"
done
PATH=$work/moved/bin:$PATH bash -c '
    source "$1"
    COMP_WORDS=(wirepane search --li) COMP_CWORD=2
    _wirepane
    printf "%s\n" "${COMPREPLY[@]}"' _ "$work/moved/share/bash-completion/completions/wirepane" >"$work/completed"
expect "completed option" '^--limit$' "$work/completed"

example=$work/moved/share/doc/wirepane/examples/minimal_host
cmake -S "$example" -B "$work/host" -DCMAKE_PREFIX_PATH="$work/moved" >"$work/configure.log"
cmake --build "$work/host" >"$work/build.log" || { cat "$work/build.log"; exit 1; }
"$work/host/minimal_host" "$work/moved/lib/wirepane/"*wirepane_news* --picture "$work/host.png"
[ "$(head -c 8 "$work/host.png" | tail -c 7 | head -c 3)" = PNG ] || { echo "the example drew no picture"; exit 1; }

# The embedding guide, word for word: its code blocks by file name, built and run as it says.
guide=$work/moved/share/doc/wirepane/embedding.md
mkdir "$work/guide"
awk -v folder="$work/guide/" '/^```$/ { file = "" } file { print > file } /^```[a-z]+ / { file = folder $2 }' "$guide"
cmake -S "$work/guide" -B "$work/guide/build" -DCMAKE_PREFIX_PATH="$work/moved" >"$work/configure.log"
cmake --build "$work/guide/build" >"$work/build.log" || { cat "$work/build.log"; exit 1; }
"$work/guide/build/check_back_end"
"$work/guide/build/my_terminal" "$work/guide.png"
