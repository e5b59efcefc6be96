// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What it costs to put a day on screen from the store, beside what the database alone takes to read the same
// index.
#include "backend/store/embedded_back_end.h"
#include "bench/backend/big_store.h"
#include "bench/backend/store_timing.h"
#include "bench/headline_list/list_bench.h"
#include "bench/support/run_benchmarks.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace wirepane::bench {

namespace {

// The time and number of every headline of the day, and nothing made of them.
std::int64_t readIndex(Database& store) {
    const DayBounds bounds = boundsOf(newsDay);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(
        store.handle(),
        "SELECT time, sequence FROM all_headlines WHERE service = ? AND time >= ? AND time < ? "
        "ORDER BY time DESC, sequence DESC",
        -1, &statement, nullptr);
    std::int64_t sum = 0;
    for (int service = 1; service <= serviceCount; ++service) {
        sqlite3_bind_int(statement, 1, service);
        sqlite3_bind_int64(statement, 2, bounds.begin);
        sqlite3_bind_int64(statement, 3, bounds.end);
        while (sqlite3_step(statement) == SQLITE_ROW)
            sum += sqlite3_column_int64(statement, 0) + sqlite3_column_int(statement, 1);
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
    return sum;
}

// A list with its grid on screen, over a back end that was just opened.
struct OpenedDay {
    explicit OpenedDay(const QString& path) : backEnd(connectionsTo(path)) {
        window.resize(800, 700);
        lists[ListIndex::All].setGrid(createHeadlineSheet(&window, window.rect(), NewsType::Full, backEnd));
        window.show();
        QCoreApplication::processEvents();
    }
    // Until the first rows are painted.
    void open() {
        lists.rebuild(ListIndex::All, TableKind::ByDate, newsDay.toString(u"yyyyMMdd"_s));
        QCoreApplication::sendPostedEvents();
    }

    QWidget window;
    EmbeddedBackEnd backEnd;
    Owner owner;
    HeadlineLists lists{backEnd, owner};
};

// The day of eight services read, merged and its first rows painted, beside the bare read of the same index
// by a connection that was just opened. of_bare: the time as a multiple of the bare one's; again_of_bare: the
// second time, when the day is in memory.
void openDay(benchmark::State& state) {
    const BigStore& store = BigStore::of(static_cast<int>(state.range(0)));
    std::vector<double> first;
    std::vector<double> again;
    std::vector<double> bare;
    for (auto unused : state) {
        {
            const auto connection = opened(store.path());
            bare.push_back(secondsOf([&] { benchmark::DoNotOptimize(readIndex(*connection)); }));
        }
        OpenedDay day(store.path());
        first.push_back(secondsOf([&] { day.open(); }));
        again.push_back(secondsOf([&] { day.open(); }));
        state.SetIterationTime(first.back());
        if (day.lists[ListIndex::All].headlineTable().size() != state.range(0))
            throw std::runtime_error("the day is not whole");
    }
    state.counters["bare_ms"] = median(bare) * 1000;
    state.counters["of_bare"] = median(first) / median(bare);
    state.counters["again_of_bare"] = median(again) / median(bare);
}

}  // namespace

}  // namespace wirepane::bench

namespace wirepane {

using wirepane::bench::openDay;

BENCHMARK(openDay)->Arg(1000)->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QApplication>(argc, argv);
}
