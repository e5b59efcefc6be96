#!/usr/bin/env bash
# Uses an installed tree as somebody does who embeds the module: with CMake, with pkg-config, word for word by the guide.
#   embedding.sh TREE WORK_FOLDER
set -euo pipefail
tree=$1
work=$2
export QT_QPA_PLATFORM=offscreen
rm -rf "$work"
mkdir -p "$work"

# Configures what is in a folder, against the tree alone.
configure() { cmake -S "$1" -B "$1/build" -DCMAKE_PREFIX_PATH="$tree" >"$work/configure.log" 2>&1; }
build() {
    configure "$1" || { cat "$work/configure.log"; exit 1; }
    cmake --build "$1/build" >"$work/build.log" 2>&1 || { cat "$work/build.log"; exit 1; }
}

# The example draws a picture.
cp -r "$tree/share/doc/wirepane/examples/minimal_host" "$work/example"
build "$work/example"
"$work/example/build/minimal_host" "$tree/lib/wirepane-"*/*wirepane_news* --picture "$work/host.png"
[ "$(head -c 4 "$work/host.png" | tail -c 3)" = PNG ] || { echo "the example drew no picture"; exit 1; }

# The embedding guide: its code blocks by file name, built and run as it says.
mkdir "$work/guide"
awk -v folder="$work/guide/" '/^```$/ { file = "" } file { print > file } /^```[a-z]+ / { file = folder $2 }' \
    "$tree/share/wirepane/docs/embedding.md"
build "$work/guide"
"$work/guide/build/check_back_end"
"$work/guide/build/my_terminal" "$work/guide.png"

export PKG_CONFIG_PATH=$tree/share/pkgconfig
module=$(pkg-config --variable=module wirepane-host)
compile() { # source, program, options
    "${CXX:-c++}" -std=c++20 -fPIC -Wall -Wextra -Werror "-DMODULE=\"$module\"" "${@:3}" "$1" -o "$2" \
        $(pkg-config --cflags --libs wirepane-host) "-Wl,-rpath,$tree/lib"
}

# The view of that host names its topics.
cp "$work/guide/my_back_end.h" "$work/topics.h"
cat >"$work/topics.cpp" <<'END'
#include "topics.h"
#include <host/contract/cfg_io.h>
#include <host/controls/super_sheet_wnd.h>
#include <host/views/news_module.h>
#include <host/views/quote_base_view.h>
#include <QApplication>
#include <QTextStream>
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    MyBackEnd backEnd;
    backEnd.Publish(QStringLiteral("Something"));
    BKQuoteInterface::setBKInterface(&backEnd);
    QString error;
    wirepane::NewsModule* module = wirepane::loadNewsModule(QStringLiteral(MODULE), error);
    QWidget frame;
    TRVQuoteBaseView* view = module->CreateView(QStringLiteral("TRVNewsCtrlView"), &frame);
    wirepane::MemoryCfgIO settings;
    view->OnInitialUpdate();
    view->InitialViewInfo(&settings, QString(), 0, 0, QString());
    frame.show();
    const CSuperSheetWnd* sheet = dynamic_cast<wirepane::NewsViewAccess*>(view)->sheetOf(0);
    QTextStream(stdout) << sheet->model()->index(0, sheet->column(QStringLiteral("category"))).data().toString() << '\n';
}
END
compile "$work/topics.cpp" "$work/topics"
[ "$("$work/topics")" = Markets ] || { echo "the guide's host does not name its topics"; exit 1; }

# Every header, in a program that leaves the words of the toolkit alone; found through pkg-config.
mkdir "$work/headers"
(cd "$tree/include/wirepane" && find host -name '*.h' | sort | sed 's/.*/#include <&>/') >"$work/headers/host.cpp"
cat >>"$work/headers/host.cpp" <<'END'
#include <QTextStream>
int main() {
    QString error;
    const bool loaded = wirepane::loadNewsModule(QStringLiteral(MODULE), error) != nullptr;
    QTextStream(stderr) << error;
    return loaded ? 0 : 1;
}
END
compile "$work/headers/host.cpp" "$work/headers/host" -DQT_NO_KEYWORDS
"$work/headers/host"
[ -f "$(pkg-config --variable=translationsdir wirepane-host)/wirepane_en.qm" ] || { echo "no texts"; exit 1; }

# Components: those that there are, and a mistake that is named.
asks_for() { # components
    mkdir -p "$work/$1"
    printf '%s\n' 'cmake_minimum_required(VERSION 3.25)' 'project(Asking LANGUAGES CXX)' \
        "find_package(Wirepane 0.1 REQUIRED COMPONENTS $1)" >"$work/$1/CMakeLists.txt"
    configure "$work/$1"
}
asks_for "contract host conformance" || { cat "$work/configure.log"; exit 1; }
! asks_for "widgets" || { echo "there is a component that nobody knows"; exit 1; }
grep -q 'Wirepane has no component "widgets"' "$work/configure.log" || { cat "$work/configure.log"; exit 1; }
