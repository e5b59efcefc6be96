// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a headline list costs: merging the services' tables, filling a page, memory per headline. Each case is
// run at 1,000, 100,000 and 1,000,000 entries; "vs_1000" is its time as a multiple of the smallest one's.
#include "bench/headline_list/list_bench.h"
#include "bench/support/run_benchmarks.h"

#include <QApplication>

#include <algorithm>

using namespace wirepane;

namespace {

// Short days in turn, so many that nothing learns their order by heart.
void mergeTables(benchmark::State& state) {
    const int entries = static_cast<int>(state.range(0));
    std::vector<TableRuns> days(static_cast<std::size_t>(std::max(1, 100'000 / entries)));
    std::uint32_t seed = 0;
    for (TableRuns& runs : days) {
        ArrayBackEnd backEnd(entries, ++seed);
        for (unsigned char service = 1; service <= serviceCount; ++service)
            backEnd.BKQNEWS_iGetHeadlineTable(service, runs.emplace_back(), 0, {});
    }
    std::size_t next = 0;
    measure(state, "merge", [&] {
        benchmark::DoNotOptimize(sortedNewestFirst(days[next]));
        next = next + 1 == days.size() ? 0 : next + 1;
    });
}

void openDay(benchmark::State& state) {
    Fixture fixture(static_cast<int>(state.range(0)));
    measure(state, "open", [&] { fixture.open(); });
}

void refillVisibleRows(benchmark::State& state) {
    Fixture fixture(static_cast<int>(state.range(0)));
    fixture.open();
    HeadlineList& list = fixture.lists[ListIndex::All];
    measure(state, "refill", [&] {
        list.forgetWrittenCells();
        list.vFillHeadline();
    });
}

// Bytes of one listed headline in table, key index and grid; a page of written cells is left out, and what
// the first list of a program loads once (faces, glyphs).
void memoryPerHeadline(benchmark::State& state) {
    Fixture first(100);
    first.open();
    QApplication::processEvents();
    for (auto unused : state) {
        Fixture fixture(static_cast<int>(state.range(0)));
        QApplication::processEvents();
        const double before = usedMemory();
        fixture.open();
        QApplication::processEvents();
        fixture.lists[ListIndex::All].forgetWrittenCells();
        state.counters["bytes"] = (usedMemory() - before) / static_cast<double>(state.range(0));
    }
}

}  // namespace

namespace wirepane {

BENCHMARK(mergeTables)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(openDay)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(refillVisibleRows)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(memoryPerHeadline)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(1);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QApplication>(argc, argv);
}
