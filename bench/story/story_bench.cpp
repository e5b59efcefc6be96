// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a long story costs: showing it in the pane, with and without marked keywords, and looking for twenty
// keywords. Each case is run at 1,000 to 1,000,000 characters in paragraphs of 10,000, every other one in
// Chinese. "vs_10000" is its time as a multiple of the one at 10,000; "pause_ms" is the longest time that the
// interface was held up at one go.
#include "bench/story/one_story.h"
#include "bench/support/run_benchmarks.h"
#include "bench/support/watched_application.h"
#include "host/contract/cfg_io.h"
#include "story/keyword_match.h"
#include "story/news_story_view.h"

#include <benchmark/benchmark.h>
#include <map>
#include <string>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

QString paragraph(const QString& sentence) {
    constexpr qsizetype length = 10'000;
    return sentence.repeated(length / sentence.size() + 1).first(length);
}

QString storyInWireForm(std::int64_t length) {
    const QString english = paragraph(u"Shares of shipping lines firm as freight rates recover. "_s);
    const QString chinese = paragraph(u"航運股因運價回升走強，市場人士表示後市看好。"_s);
    QString wire;
    while (wire.size() < length)
        wire += english + u"@@@@"_s + chinese + u"@@@@"_s;
    return wire.first(length) + u" the last word"_s;
}

void tellRatio(benchmark::State& state, const std::string& name, double secondsPerRun) {
    static std::map<std::string, double> base;
    if (state.range(0) == 10'000)
        base[name] = secondsPerRun;
    if (base.count(name) != 0)
        state.counters["vs_10000"] = secondsPerRun / base[name];
}

// Twenty keywords; only the first, "the last word", stands in the story.
std::vector<QString> twentyKeywords() {
    std::vector<QString> keywords{u"THE LAST WORD"_s};
    while (keywords.size() < 20)
        keywords.push_back(u"shipping 運價 %1"_s.arg(keywords.size()));
    return keywords;
}

void show(benchmark::State& state, const std::string& name, const CSearch& condition) {
    auto& application = static_cast<WatchedApplication&>(*QApplication::instance());
    OneStory news(storyInWireForm(state.range(0)));
    QWidget window;
    window.resize(640, 480);
    MemoryCfgIO settings;
    NewsStoryView pane(&window);
    pane.resize(window.size());
    pane.vSetNewsParent(&news);
    pane.OnInitialUpdate();
    pane.InitialViewInfo(&settings, {}, 0, 0, {});
    window.show();
    QApplication::processEvents();

    double seconds = 0;
    application.longest = 0;
    for (auto unused : state) {
        const auto from = BenchClock::now();
        pane.vSetStoryData(0, 0, condition);
        application.longest = std::max(application.longest, secondsSince(from));
        QApplication::processEvents();
        seconds += secondsSince(from);
    }
    state.counters["pause_ms"] = application.longest * 1000;
    tellRatio(state, name, seconds / static_cast<double>(state.iterations()));
}

void showStory(benchmark::State& state) {
    show(state, "show", {});
}

void showMarkedStory(benchmark::State& state) {
    CSearch condition;
    condition.keywords = twentyKeywords();
    condition.keywordSearch = true;
    show(state, "showMarked", condition);
}

void findTwentyKeywords(benchmark::State& state) {
    const QString text = storyInWireForm(state.range(0));
    const std::vector<QString> keywords = twentyKeywords();
    double seconds = 0;
    for (auto unused : state) {
        const auto from = BenchClock::now();
        benchmark::DoNotOptimize(lastKeywordMatch(text, keywords));
        seconds += secondsSince(from);
    }
    tellRatio(state, "find", seconds / static_cast<double>(state.iterations()));
}

}  // namespace

namespace wirepane {

BENCHMARK(showStory)->RangeMultiplier(10)->Range(1000, 1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(showMarkedStory)->RangeMultiplier(10)->Range(1000, 1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(findTwentyKeywords)->RangeMultiplier(10)->Range(1000, 1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<WatchedApplication>(argc, argv);
}
