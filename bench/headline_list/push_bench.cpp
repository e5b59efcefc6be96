// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What pushed headlines cost in lists of 1,000, 100,000 and 1,000,000 entries: one at the top, one that is
// sent again, one that comes late, bursts with the grid on screen, and memory after a day of pushes.
#include "bench/headline_list/list_bench.h"
#include "host/contract/cfg_io.h"
#include "host/contract/view_options.h"

#include <QApplication>

#include <algorithm>
#include <limits>

namespace wirepane {

namespace {

CHeadline newestHeadline() {
    static int count = 0;
    ++count;
    const auto service = static_cast<unsigned char>(1 + count % serviceCount);
    return {service,
            start + 100'000'000 + count,
            10'000'000 + count,
            QStringLiteral("Pushed headline %1").arg(count),
            0,
            1,
            0};
}

// Times pushes in rounds, opens the list anew before each so that it keeps its size, and tells the quietest
// round's mean. The first pushes of a round are not timed: opening a long list leaves the caches cold, which
// says nothing of a push.
template <class Push>
void measurePushes(benchmark::State& state, const std::string& name, Push push) {
    Fixture fixture(static_cast<int>(state.range(0)));
    HeadlineList& list = fixture.lists[ListIndex::All];
    constexpr int untimed = 50;
    constexpr int perRound = 100;
    double quietest = std::numeric_limits<double>::max();
    for (auto unused : state) {
        fixture.open();
        QApplication::processEvents();
        for (int i = 0; i < untimed; ++i) {
            list.vProcessNewHeadline(push.next(list), false);
            QApplication::processEvents();
        }
        double seconds = 0;
        for (int i = 0; i < perRound; ++i) {
            const CHeadline headline = push.next(list);
            const auto from = BenchClock::now();
            list.vProcessNewHeadline(headline, false);
            if (push.turn)
                QApplication::processEvents();
            seconds += secondsSince(from);
        }
        quietest = std::min(quietest, seconds / perRound);
    }
    state.counters["us"] = quietest * 1e6;
    tellRatio(state, name, quietest);
}

struct PushNewest {
    bool turn = false;
    CHeadline next(const HeadlineList&) { return newestHeadline(); }
};

struct PushOfRow {
    int row;     // negative: that in the middle of the list
    bool again;  // the headline of the row itself; else a new one of its time
    bool turn = false;
    CHeadline next(const HeadlineList& list) const {
        CHeadline headline = newestHeadline();
        const CHeadlineTable& entry =
            list.headlineTable().at(row >= 0 ? row : list.headlineTable().size() / 2);
        headline.time = entry.time;
        if (again) {
            headline.service = entry.service;
            headline.sequence = entry.sequence;
        }
        return headline;
    }
};

void pushOne(benchmark::State& state) {
    measurePushes(state, "push", PushNewest{});
}

void pushOneAndPaint(benchmark::State& state) {
    measurePushes(state, "paint", PushNewest{true});
}

// Each stands below those of its time: 20 to 120 rows from the top.
void pushLateNearTheTop(benchmark::State& state) {
    measurePushes(state, "late", PushOfRow{20, false});
}

void sendRowTwentyAgain(benchmark::State& state) {
    measurePushes(state, "again", PushOfRow{20, true});
}

void pushLateFarDown(benchmark::State& state) {
    measurePushes(state, "late far down", PushOfRow{-1, false});
}

void sendAgainFarDown(benchmark::State& state) {
    measurePushes(state, "again far down", PushOfRow{-1, true});
}

void sendRowTwentyAgainAndPaint(benchmark::State& state) {
    measurePushes(state, "again and paint", PushOfRow{20, true, true});
}

// A thousand pushes to a turn of the event loop, in which the grid takes them up and paints.
void measureBurst(benchmark::State& state, const std::string& name, int foldBeyond) {
    Fixture fixture(static_cast<int>(state.range(0)));
    fixture.open();
    HeadlineList& list = fixture.lists[ListIndex::All];
    MemoryCfgIO stored;
    stored.setViewInfo({}, QStringLiteral("FoldBursts"), foldBeyond);
    list.setOptions(ViewOptions::read(stored, {}));
    std::int64_t pushed = 0;
    measure(state, name, [&] {
        for (int i = 0; i < 1000; ++i)
            list.vProcessNewHeadline(newestHeadline(), false);
        QApplication::processEvents();
        pushed += 1000;
    });
    state.counters["pushes"] = benchmark::Counter(static_cast<double>(pushed), benchmark::Counter::kIsRate);
}

void burst(benchmark::State& state) {
    measureBurst(state, "burst", 0);
}

// Nearly all of them fold.
void foldedBurst(benchmark::State& state) {
    measureBurst(state, "folded burst", 30);
}

// Bytes of one pushed headline, all in all: table, indexes, grid, written cells. `showDate` is not the list's
// own form of time in the second case, so that it has to be remembered.
void memoryPerPushedHeadline(benchmark::State& state) {
    for (auto unused : state) {
        Fixture fixture(0);
        fixture.open();
        QApplication::processEvents();
        const double before = usedMemory();
        for (int i = 0; i < state.range(0); ++i) {
            fixture.lists[ListIndex::All].vProcessNewHeadline(newestHeadline(), state.range(1) != 0);
            if (i % 1000 == 0)
                QApplication::processEvents();
        }
        QApplication::processEvents();
        state.counters["bytes"] = (usedMemory() - before) / static_cast<double>(state.range(0));
    }
}

}  // namespace

BENCHMARK(pushOne)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(10);
BENCHMARK(pushOneAndPaint)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(10);
BENCHMARK(pushLateNearTheTop)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(10);
BENCHMARK(sendRowTwentyAgain)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(10);
BENCHMARK(pushLateFarDown)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(10);
BENCHMARK(sendAgainFarDown)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(10);
BENCHMARK(sendRowTwentyAgainAndPaint)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(10);
BENCHMARK(burst)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(foldedBurst)
    ->Arg(1000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(memoryPerPushedHeadline)
    ->Args({1000, 0})
    ->Args({100'000, 0})
    ->Args({100'000, 1})
    ->Args({1'000'000, 0})
    ->Iterations(1);

}  // namespace wirepane
