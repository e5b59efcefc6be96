// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a story of 4 MB (in UTF-8) costs the reader, plain and typeset, of every shape that a text can have:
// its first screen
// ("first"), a jump to its end while the rest is still coming ("end"), until all of it has come ("whole"), a
// change of the pane's width at its end ("resize"), selecting and copying all of it ("copy"), showing it
// again with a mark on its last words ("mark"). "..._ms" is how long it took until the window stood still,
// "..._wait_ms" the longest time that a key would have waited meanwhile.
#include "bench/story/one_story.h"
#include "bench/support/run_benchmarks.h"
#include "bench/support/watched_application.h"
#include "host/contract/cfg_io.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/window_id.h"
#include "story/news_story_view.h"
#include "story/story_ids.h"
#include "story/story_text.h"

#include <QScrollBar>

#include <benchmark/benchmark.h>
#include <functional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString filled(const QString& unit, qsizetype bytes) {
    return unit.repeated(bytes / unit.toUtf8().size() + 1);
}

QString storyOf(int shape, qsizetype bytes) {
    const QString english = u"Shares of shipping lines firm as freight rates recover. "_s;
    const QString chinese = u"航運股因運價回升走強，市場人士表示後市看好。"_s;
    const QString end = u"@@@@the last word"_s;
    switch (shape) {
        case 0:
            return filled(english.repeated(11) + u"@@@@"_s, bytes) + end;
        case 1:
            return filled(chinese.repeated(20) + u"@@@@"_s, bytes) + end;
        case 2:
            return filled(u"x"_s, bytes) + end;
        case 3:
            return filled(u"12345 67890 abcd ef.@@@@"_s, bytes) + end;
        case 4:
            return filled(english, bytes) + end;
        case 6:
            return filled(u"Revenue            5.92     5.31     4.68@@@@"_s, bytes) + end;
        case 7:
            return filled(u"營業收入         5.92     5.31     4.68@@@@"_s, bytes) + end;
        default:
            return filled(chinese, bytes) + end;
    }
}

constexpr const char* shapeNames[] = {"paragraphs",  "chinese",         "no blank",
                                      "short lines", "one line",        "one line of chinese",
                                      "table",       "table of chinese"};

class Pane {
public:
    Pane(OneStory& news, bool typeset) : view(&window) {
        window.resize(900, 700);
        view.resize(window.size());
        view.vSetNewsParent(&news);
        view.setStorySetting({typeset});
        view.OnInitialUpdate();
        view.InitialViewInfo(&settings, {}, 0, 0, {});
        window.show();
        QApplication::processEvents();
    }
    MyRichEdit& edit() { return *static_cast<MyRichEdit*>(dlgItem(&view, story_ids::storyText)); }

    QWidget window;
    MemoryCfgIO settings;
    NewsStoryView view;
};

// Milliseconds, and in `wait` the longest event of them.
double timed(double& wait, const std::function<void()>& act, const std::function<bool()>& done) {
    auto& application = static_cast<WatchedApplication&>(*QApplication::instance());
    const auto from = BenchClock::now();
    application.longest = 0;
    act();
    const double call = secondsSince(from);
    do
        QApplication::processEvents();
    while (!done());
    wait = std::max(application.longest, call) * 1000;
    return secondsSince(from) * 1000;
}

void longStory(benchmark::State& state) {
    const auto shape = static_cast<int>(state.range(0));
    OneStory news(storyOf(shape, state.range(1)));
    const bool typeset = state.range(2) != 0;
    state.SetLabel(std::string(shapeNames[shape]) + (typeset ? ", typeset" : ""));
    const auto painted = [] { return true; };
    double wait = 0;
    for (auto unused : state) {
        Pane pane(news, typeset);
        MyRichEdit& edit = pane.edit();
        const auto whole = [&] {
            return edit.document()->characterCount() > edit.shownText().size() - dateLineCharacters;
        };
        const auto tell = [&](const std::string& name, const std::function<void()>& act, const auto& done) {
            state.counters[name + "_ms"] = timed(wait, act, done);
            state.counters[name + "_wait_ms"] = wait;
        };
        tell(
            "first",
            [&] {
                pane.view.vSetStoryData(0, 0);
                edit.viewport()->repaint();
            },
            painted);
        tell(
            "end", [&] { edit.verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum); },
            [&] { return edit.verticalScrollBar()->value() == edit.verticalScrollBar()->maximum(); });
        tell(
            "whole", [] {}, whole);
        tell(
            "resize",
            [&] {
                pane.view.resize(600, 700);
                edit.viewport()->repaint();
            },
            painted);
        tell(
            "copy",
            [&] {
                edit.selectAll();
                edit.copy();
            },
            painted);
        CSearch condition;
        condition.keywords = {u"the last word"_s};
        condition.keywordSearch = true;
        tell(
            "mark",
            [&] {
                pane.view.vSetStoryData(0, 0, condition);
                edit.viewport()->repaint();
            },
            painted);
    }
}

}  // namespace

BENCHMARK(longStory)
    ->ArgsProduct({{0, 1, 2, 3, 4, 5, 6, 7}, {1000, 4 << 20}, {0, 1}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<wirepane::WatchedApplication>(argc, argv);
}
