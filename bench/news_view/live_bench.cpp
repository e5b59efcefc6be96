// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What live news costs with a whole view open: pushes through RecvNewHeadLine beside bare insertions into a
// table, and how long a key waits for its answer while 50,000 headlines arrive in a second.
#include "bench/headline_list/list_bench.h"
#include "bench/news_view/key_watch.h"
#include "bench/support/run_benchmarks.h"
#include "headline_list/list_index.h"
#include "host/contract/cfg_io.h"
#include "host/controls/super_sheet_wnd.h"
#include "news_view/trv_news_ctrl_view.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>

using namespace wirepane;
using namespace wirepane::bench;

namespace {

class LiveBackEnd : public ArrayBackEnd {
public:
    explicit LiveBackEnd(int entries) : ArrayBackEnd(entries) { setBKInterface(this); }
    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) override {
        services.clear();
        for (int i = 1; i <= serviceCount; ++i)
            services.push_back(static_cast<unsigned char>(i));
        return true;
    }
    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override {
        story = {entry.time, QString(2000, QLatin1Char('x')), entry};
        return true;
    }
};

// A view with its story pane over a day of `entries` headlines, all of them read.
struct LiveView {
    explicit LiveView(int entries) : backEnd(entries) {
        view.resize(1000, 700);
        view.OnInitialUpdate();
        view.InitialViewInfo(&settings, QStringLiteral("main"), 0, 0, {});
        view.show();
        QApplication::processEvents();
    }

    void push() {
        ++pushed;
        const CHeadline headline{static_cast<unsigned char>(1 + pushed % serviceCount),
                                 start + 100'000'000 + pushed,
                                 10'000'000 + pushed,
                                 QStringLiteral("Pushed headline %1").arg(pushed),
                                 0,
                                 1,
                                 0};
        view.RecvNewHeadLine(&headline, QStringLiteral("1"), {});
    }

    LiveBackEnd backEnd;
    MemoryCfgIO settings;
    TRVNewsCtrlView view;
    int pushed = 0;
};

// A thousand pushes to a turn of the event loop.
void pushThroughTheView(benchmark::State& state) {
    LiveView live(static_cast<int>(state.range(0)));
    measure(state, "view", [&] {
        for (int i = 0; i < 1000; ++i)
            live.push();
        QApplication::processEvents();
    });
    state.counters["pushes"] =
        benchmark::Counter(1000.0 * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void insertIntoABareTable(benchmark::State& state) {
    TableRuns runs(1);
    ArrayBackEnd backEnd(static_cast<int>(state.range(0)) * serviceCount);
    backEnd.BKQNEWS_iGetHeadlineTable(1, runs.front(), 0, {});
    HeadlineTable table;
    table.assign(runs);
    table.buildIndex();
    int inserted = 0;
    measure(state, "table", [&] {
        for (int i = 0; i < 1000; ++i) {
            ++inserted;
            table.insert(0, {start + 100'000'000 + inserted, 10'000'000 + inserted, 1, 0, 0});
        }
    });
    state.counters["insertions"] =
        benchmark::Counter(1000.0 * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

// Headlines come as the clock says, a millisecond's worth at a time; keys come from another thread.
void keysDuringABurst(benchmark::State& state) {
    constexpr int burst = 50'000;
    for (auto unused : state) {
        LiveView live(static_cast<int>(state.range(0)));
        KeyWatch watch(*live.view.sheetOf(0));
        const auto from = Clock::now();
        QTimer feed;
        QObject::connect(&feed, &QTimer::timeout, &feed, [&] {
            const int due = std::min(burst, static_cast<int>(secondsSince(from) * burst));
            while (live.pushed < due)
                live.push();
        });
        feed.setTimerType(Qt::PreciseTimer);
        feed.start(1);
        {
            const Typing user(watch);
            while (live.pushed < burst)
                QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
        const double seconds = secondsSince(from);
        QApplication::processEvents();
        countWaits(state, watch.takeWaits());
        state.counters["seconds"] = seconds;
    }
}

}  // namespace

namespace wirepane {

BENCHMARK(pushThroughTheView)
    ->Arg(1000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(insertIntoABareTable)
    ->Arg(1000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(keysDuringABurst)
    ->Arg(1000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QApplication>(argc, argv);
}
