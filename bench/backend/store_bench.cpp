// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the store costs: taking news in, looking visible rows up. The counters say what each is
// compared with; a ratio of 1 is as good as the bare database.
#include "backend/store/embedded_back_end.h"
#include "bench/backend/big_store.h"
#include "bench/backend/news_samples.h"
#include "bench/backend/plain_inserts.h"
#include "bench/backend/store_timing.h"
#include "bench/support/run_benchmarks.h"
#include "host/contract/clock.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <random>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace wirepane::bench {

namespace {

void takeAllIn(StoreWriter& writer, const std::vector<NewsItem>& items) {
    bool good = static_cast<bool>(writer.begin());
    for (const NewsItem& item : items) {
        const Result<TakeOutcome> outcome = writer.take(item);
        good = good && outcome && outcome.value().take == Take::TakenIn;
    }
    if (!good || !writer.commit())
        throw std::runtime_error("the news was not taken in");
}

// One file of news into an empty store, beside plain inserts of the same rows. of_plain: the rate as a share
// of the plain one's.
void takeIn(benchmark::State& state) {
    const std::vector<NewsItem> items = newsSamples(static_cast<int>(state.range(0)));
    const PlainInserts plain(items);
    std::vector<double> own;
    std::vector<double> bare;
    for (auto unused : state) {
        QTemporaryDir folder;
        const auto store = opened(folder.filePath(u"own.db"_s));
        StoreWriter writer(*store);
        own.push_back(secondsOf([&] { takeAllIn(writer, items); }));
        state.SetIterationTime(own.back());
        const auto other = opened(folder.filePath(u"plain.db"_s));
        bare.push_back(secondsOf([&] { plain.run(*other); }));
    }
    state.counters["items_per_s"] = static_cast<double>(items.size()) / median(own);
    state.counters["of_plain"] = median(bare) / median(own);
}

// Counts what it is told.
class Counter : public NewsReceiver {
public:
    void RecvNewHeadLine(const CHeadline*, const QString&, const QString&) override { ++headlines; }
    std::size_t headlines = 0;
};

// A burst of live news until a view has been told of all of it: in one transaction. vs_single: the rate as a
// multiple of that of one transaction an item.
void takeBurstIn(benchmark::State& state) {
    constexpr std::size_t singles = 200;
    const std::vector<NewsItem> items = newsSamples(static_cast<int>(state.range(0)));
    // Only news of the day is told headline by headline.
    host_clock::startAt(items.back().time);
    std::vector<double> batched;
    std::vector<double> single;
    for (auto unused : state) {
        QTemporaryDir folder;
        EmbeddedBackEnd backEnd(connectionsTo(folder.filePath(u"burst.db"_s)));
        Counter view;
        backEnd.attach(&view);
        batched.push_back(secondsOf([&] {
            backEnd.run([&items](StoreWriter& writer) { takeAllIn(writer, items); });
            while (!backEnd.isDelivered())
                QCoreApplication::processEvents();
            if (view.headlines != items.size())
                throw std::runtime_error("the burst was not told whole");
        }));
        state.SetIterationTime(batched.back());
        EmbeddedBackEnd other(connectionsTo(folder.filePath(u"single.db"_s)));
        other.attach(&view);
        single.push_back(secondsOf([&] {
            for (std::size_t i = 0; i < singles; ++i)
                benchmark::DoNotOptimize(other.takeIn(items[i]));
        }));
        backEnd.detach(&view);
        other.detach(&view);
    }
    const double rate = static_cast<double>(items.size()) / median(batched);
    state.counters["items_per_s"] = rate;
    state.counters["vs_single"] = rate / (static_cast<double>(singles) / median(single));
}

std::vector<CHeadlineTable> readTables(EmbeddedBackEnd& backEnd) {
    std::vector<CHeadlineTable> table;
    for (unsigned char service = 1; service <= serviceCount; ++service)
        backEnd.BKQNEWS_iGetHeadlineTable(service, table, 0, newsDay.toString(u"yyyyMMdd"_s));
    return table;
}

// The headlines of 40 rows anywhere in the day, none of them looked up before. vs_1000: the time as a
// multiple of that in a store of 1,000.
void lookUpVisibleRows(benchmark::State& state) {
    static double smallest = 0;
    constexpr std::size_t visible = 40;
    EmbeddedBackEnd backEnd(connectionsTo(BigStore::of(static_cast<int>(state.range(0))).path()));
    const std::vector<CHeadlineTable> table = readTables(backEnd);
    const auto store = opened(BigStore::of(static_cast<int>(state.range(0))).path());
    StoreReader reader(*store);
    HeadlineCache cache(reader);
    std::mt19937 random(3);
    std::vector<double> times;
    for (auto unused : state) {
        const std::size_t row = random() % (table.size() - visible);
        cache.clear();
        times.push_back(secondsOf([&] {
            for (std::size_t i = row; i < row + visible; ++i)
                benchmark::DoNotOptimize(cache.find(keyOf(table[i])));
        }));
        state.SetIterationTime(times.back());
    }
    if (state.range(0) == 1000)
        smallest = median(times);
    if (smallest > 0)
        state.counters["vs_1000"] = median(times) / smallest;
}

}  // namespace

}  // namespace wirepane::bench

namespace wirepane {

using wirepane::bench::lookUpVisibleRows;
using wirepane::bench::takeBurstIn;
using wirepane::bench::takeIn;

BENCHMARK(takeBurstIn)->Arg(1000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(takeIn)->Arg(1000)->Arg(20'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpVisibleRows)->Arg(1000)->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QCoreApplication>(argc, argv);
}
