// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What it costs to mark a whole day as read, on the interface thread and in all, what the marks take of
// memory, and what news costs that comes into a store whose news is marked.
#include "backend/store/embedded_back_end.h"
#include "bench/backend/big_store.h"
#include "bench/backend/news_samples.h"
#include "bench/backend/store_timing.h"
#include "host/contract/clock.h"

#include <QCoreApplication>
#include <QFile>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace wirepane {

using namespace wirepane::bench;

namespace {

std::vector<HeadlineKey> keysOfDay(EmbeddedBackEnd& backEnd) {
    std::vector<CHeadlineTable> table;
    for (unsigned char service = 1; service <= serviceCount; ++service)
        backEnd.BKQNEWS_iGetHeadlineTable(service, table, 0, newsDay.toString(u"yyyyMMdd"_s));
    std::vector<HeadlineKey> keys;
    for (const CHeadlineTable& entry : table)
        keys.push_back({entry.time, entry.sequence, entry.service});
    return keys;
}

// What an open store takes of memory once the mark of each row has been looked up, without the pages that
// SQLite has at hand: these have a limit, however much is marked.
double bytesOfOpened(const QString& path) {
    const auto used = [] {
        const struct mallinfo2 all = mallinfo2();
        return static_cast<double>(all.uordblks + all.hblkhd) - static_cast<double>(sqlite3_memory_used());
    };
    const double before = used();
    EmbeddedBackEnd backEnd(connectionsTo(path));
    for (const HeadlineKey& key : keysOfDay(backEnd))
        benchmark::DoNotOptimize(backEnd.markOf(key));
    return used() - before;
}

double takeBurst(EmbeddedBackEnd& backEnd, const std::vector<NewsItem>& items) {
    return secondsOf([&] {
        backEnd.run([&items](StoreWriter& writer) {
            bool good = static_cast<bool>(writer.begin());
            for (const NewsItem& item : items)
                good = good && writer.take(item);
            if (!good || !writer.commit())
                throw std::runtime_error("the news was not taken in");
        });
    });
}

void measureMarking(benchmark::State& state, EmbeddedBackEnd& backEnd) {
    std::vector<HeadlineKey> keys = keysOfDay(backEnd);
    const HeadlineKey last = keys.back();
    double longest = secondsOf([&] { backEnd.changeMarks(std::move(keys), {.state = ReadingState::Read}); });
    const double all = longest + secondsOf([&] {
                           while (backEnd.markOf(last).state != ReadingState::Read) {
                               const double turn = secondsOf([] { QCoreApplication::processEvents(); });
                               longest = std::max(longest, turn);
                           }
                           backEnd.run([](StoreWriter&) {});
                       });
    state.SetIterationTime(all);
    state.counters["longest_turn_ms"] = longest * 1e3;
}

void markWholeDay(benchmark::State& state) {
    std::vector<NewsItem> items = newsSamples(2000);
    for (NewsItem& item : items)
        item.identity += u":live"_s;  // none of the store's
    host_clock::startAt(items.back().time);
    const auto middle = items.begin() + 1000;
    for (auto unused : state) {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"marked.db"_s);
        QFile::copy(BigStore::of(static_cast<int>(state.range(0))).path(), path);
        const double unmarkedBytes = bytesOfOpened(path);
        {
            EmbeddedBackEnd backEnd(connectionsTo(path));
            const double unmarked = takeBurst(backEnd, {items.begin(), middle});
            measureMarking(state, backEnd);
            state.counters["burst_of_unmarked"] = takeBurst(backEnd, {middle, items.end()}) / unmarked;
        }
        state.counters["bytes_each"] =
            (bytesOfOpened(path) - unmarkedBytes) / static_cast<double>(state.range(0));
    }
}

}  // namespace

BENCHMARK(markWholeDay)
    ->Arg(1000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace wirepane
