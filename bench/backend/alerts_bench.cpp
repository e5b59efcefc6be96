// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What alert rules cost: each headline that has come is read and tried with all of them, on a thread of its
// own.
#include "backend/alerts/alert_worker.h"
#include "backend/store/store_writer.h"
#include "bench/backend/alert_rules.h"
#include "bench/backend/news_samples.h"
#include "bench/backend/search_store.h"
#include "bench/backend/store_timing.h"
#include "bench/support/run_benchmarks.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <semaphore>

using namespace Qt::StringLiterals;

namespace wirepane {

using namespace wirepane::bench;

namespace {

constexpr int headlines = 20'000;

void fill(Database& store) {
    StoreWriter writer(store);
    bool good = static_cast<bool>(writer.begin());
    for (const NewsItem& item : newsSamples(headlines))
        good = good && writer.take(item);
    good = good && writer.commit() && store.execute("INSERT INTO alert_state VALUES(1, 0, 0)");
    if (!good)
        throw std::runtime_error("the news was not taken in");
}

// us_a_headline: of the worker's thread, the reading of the headline among it.
void lookAtWhatCame(benchmark::State& state) {
    const QTemporaryDir folder;
    const auto store = opened(folder.filePath(u"s.db"_s));
    fill(*store);
    const std::vector<AlertRule> rules = rulesOf(state.range(0));
    std::vector<double> seconds;
    for (auto unused : state) {
        std::binary_semaphore isReady(0);
        std::binary_semaphore isDone(0);
        bool isFirst = true;
        AlertWorker worker(store->path(), [&](AlertFindings&& found) {
            if (std::exchange(isFirst, false))
                isReady.release();
            else if (found.position >= headlines)
                isDone.release();
        });
        worker.setRules(rules);
        isReady.acquire();
        seconds.push_back(secondsOf([&] {
            worker.look({});
            isDone.acquire();
        }));
        state.SetIterationTime(seconds.back());
    }
    state.counters["us_a_headline"] = median(seconds) / headlines * 1e6;
}

// ns_a_character: of a story that has come, with rules that look at stories.
void tryStory(benchmark::State& state) {
    const QTemporaryDir folder;
    const auto store = opened(folder.filePath(u"s.db"_s));
    std::vector<AlertRule> rules = rulesOf(state.range(0));
    for (AlertRule& rule : rules)
        rule.query = u"story:(%1)"_s.arg(rule.query);
    QueryPlanner planner(*store);
    const AlertMatcher matcher(rules, planner, {});
    const bool isChinese = state.range(1) != 0;
    CHeadline headline;
    headline.title = u"Results of the year"_s;
    QString story;
    for (int i = 0; story.size() < 20'000; ++i)
        story += isChinese ? chineseStory(i) : englishStory(i);
    std::vector<double> seconds;
    std::size_t wanted = 0;
    for (auto unused : state) {
        seconds.push_back(secondsOf([&] {
            matcher.matchStory(headline, story, [&](std::size_t, const QStringList&) { ++wanted; });
        }));
        state.SetIterationTime(seconds.back());
    }
    state.counters["ns_a_character"] = median(seconds) / double(story.size()) * 1e9;
    state.counters["wanted"] = double(wanted) / double(seconds.size());
}

}  // namespace

BENCHMARK(tryStory)
    ->ArgsProduct({{1000}, {0, 1}})
    ->ArgNames({"rules", "zh"})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(lookAtWhatCame)->Arg(2)->Arg(1000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QCoreApplication>(argc, argv);
}
