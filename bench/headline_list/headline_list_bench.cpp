// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a headline list costs: merging the services' tables, filling a page, memory per headline. Each case is
// run at 1,000, 100,000 and 1,000,000 entries; "vs_1000" is its time as a multiple of the smallest one's.
#include "headline_list/headline_lists.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <map>
#include <string>

namespace {

constexpr int serviceCount = 8;
constexpr std::int64_t start = 1'770'000'000;

// Eight services of headlines in memory, each newest first.
class ArrayBackEnd : public BKQuoteInterface {
public:
    explicit ArrayBackEnd(int entries) : perService(entries / serviceCount) {}

    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>&) override { return false; }
    bool BKQNEWS_bGetFullNameByService(QString&, unsigned char) override { return false; }
    QString BKQNEWS_cszGetCurrDateByService(unsigned char) override { return {}; }
    int bIsConnect() override { return 1; }
    bool BKQNEWS_bGetStory(CStory&, const CHeadlineTable&) override { return false; }
    using BKQuoteInterface::BKQNEWS_iGetHeadlineTable;
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int,
                                  const QString&) override {
        for (int i = perService; i-- > 0;)
            table.push_back({start + i * serviceCount + service, i, service, 0, 0});
        return perService;
    }
    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override {
        int count = 0;
        for (const CHeadlineTable& entry : entries) {
            if (entry.service != service)
                continue;
            headlines.push_back({service, entry.time, entry.sequence, title, 0, 1, 0});
            ++count;
        }
        return count;
    }

private:
    const int perService;
    const QString title = QStringLiteral("Shares of shipping lines firm as freight rates recover");
};

class Owner : public ListOwner {
public:
    Owner() {
        for (int i = 0; i < serviceCount; ++i)
            services.push_back({static_cast<unsigned char>(i + 1), true, 0, false});
    }
    const std::vector<ServiceEntry>& vGetServices() const override { return services; }
    int GetNewsType() const override { return 0; }
    QString cszTransferCatIDToCatName(int) const override { return QStringLiteral("Markets"); }
    int GetCategoryColor(const QString&, QColor&, QColor&) const override { return 0; }
    void vCategoryStateAfterWriting() override {}

private:
    std::vector<ServiceEntry> services;
};

// A list of `entries` headlines with its grid on screen.
struct Fixture {
    explicit Fixture(int entries) : backEnd(entries) {
        window.resize(800, 700);
        lists[ListIndex::All].vSetGrid(CreateHeadlineSheet(&window, window.rect(), 0, backEnd));
        window.show();
    }
    void open() { lists.bRebuildAllNews({}); }

    QWidget window;
    ArrayBackEnd backEnd;
    Owner owner;
    HeadlineLists lists{backEnd, owner};
};

void tellRatio(benchmark::State& state, const std::string& name, double secondsPerRun) {
    static std::map<std::string, double> smallest;
    if (state.range(0) == 1000)
        smallest[name] = secondsPerRun;
    if (smallest.count(name) != 0)
        state.counters["vs_1000"] = secondsPerRun / smallest[name];
}

template <class Run>
void measure(benchmark::State& state, const std::string& name, Run run) {
    double seconds = 0;
    for (auto unused : state) {
        const auto from = std::chrono::steady_clock::now();
        run();
        seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
    }
    tellRatio(state, name, seconds / static_cast<double>(state.iterations()));
}

void mergeTables(benchmark::State& state) {
    TableRuns runs;
    ArrayBackEnd backEnd(static_cast<int>(state.range(0)));
    for (unsigned char service = 1; service <= serviceCount; ++service) {
        backEnd.BKQNEWS_iGetHeadlineTable(service, runs.entries, 0, {});
        runs.EndRun();
    }
    measure(state, "merge", [&] { benchmark::DoNotOptimize(SortedNewestFirst(runs)); });
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
        list.vForgetWrittenCells();
        list.vFillHeadline();
    });
}

// Bytes of one listed headline in table, key index and grid; a page of written cells is left out.
void memoryPerHeadline(benchmark::State& state) {
    for (auto unused : state) {
        Fixture fixture(static_cast<int>(state.range(0)));
        QApplication::processEvents();
        malloc_trim(0);
        const auto before = mallinfo2();
        fixture.open();
        QApplication::processEvents();
        fixture.lists[ListIndex::All].vForgetWrittenCells();
        malloc_trim(0);
        const auto after = mallinfo2();
        const auto used = [](const struct mallinfo2& info) {
            return static_cast<double>(info.uordblks + info.hblkhd);
        };
        state.counters["bytes"] = (used(after) - used(before)) / static_cast<double>(state.range(0));
    }
}

}  // namespace

BENCHMARK(mergeTables)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(openDay)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(refillVisibleRows)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(memoryPerHeadline)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(1);

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
