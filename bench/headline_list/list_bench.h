// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

// What the benchmarks of the headline lists share: eight services in memory, a list with its grid on screen,
// and the comparison with the smallest case.
#include "bench/support/bench_clock.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/headline_table.h"
#include "headline_list/list_owner.h"
#include "headline_list/service_entry.h"
#include "headline_list/table_reading.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/view_kinds.h"

#include <QWidget>

#include <array>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace wirepane {

inline constexpr int serviceCount = 8;
inline constexpr std::int64_t start = 1'770'000'000;

// Eight services of headlines in memory, each newest first. Whose turn it is, is drawn: where services take
// turns in order, a processor foresees every comparison of a merge, which no day of news lets it do.
class ArrayBackEnd : public BKQuoteInterface {
public:
    explicit ArrayBackEnd(int entries, std::uint32_t seed = 7) {
        std::mt19937 random(seed);
        for (int i = entries; i-- > 0;) {
            const auto service = static_cast<unsigned char>(1 + random() % serviceCount);
            tables[service - 1U].push_back({start + i, i, service, 0, 0});
        }
    }

    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>&) override { return false; }
    bool BKQNEWS_bGetFullNameByService(QString&, unsigned char) override { return false; }
    QString BKQNEWS_cszGetCurrDateByService(unsigned char) override { return {}; }
    int bIsConnect() override { return 1; }
    bool BKQNEWS_bGetStory(CStory&, const CHeadlineTable&) override { return false; }
    using BKQuoteInterface::BKQNEWS_iGetHeadlineTable;
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int,
                                  const QString&) override {
        const std::vector<CHeadlineTable>& stored = tables.at(service - 1U);
        table.insert(table.end(), stored.begin(), stored.end());
        return static_cast<int>(stored.size());
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
    std::array<std::vector<CHeadlineTable>, serviceCount> tables;
    const QString title = QStringLiteral("Shares of shipping lines firm as freight rates recover");
};

class Owner : public ListOwner {
public:
    Owner() {
        for (int i = 0; i < serviceCount; ++i)
            services.push_back({static_cast<unsigned char>(i + 1), true, 0, false});
    }
    const std::vector<ServiceEntry>& allServices() const override { return services; }
    NewsType GetNewsType() const override { return NewsType::Full; }
    QString categoryNameOf(unsigned char, int) override { return QStringLiteral("Markets"); }
    int categoryColourOf(unsigned char, const QString&, QColor&, QColor&) override { return 0; }
    void categoryStateAfterWriting() override {}
    void rowsReplaced(ListIndex) override {}

private:
    std::vector<ServiceEntry> services;
};

// A list of `entries` headlines with its grid on screen.
struct Fixture {
    explicit Fixture(int entries) : backEnd(entries) {
        window.resize(800, 700);
        lists[ListIndex::All].setGrid(createHeadlineSheet(&window, window.rect(), NewsType::Full, backEnd));
        window.show();
    }
    void open() { lists.rebuild(ListIndex::All, TableKind::ByDate, {}); }

    QWidget window;
    ArrayBackEnd backEnd;
    Owner owner;
    HeadlineLists lists{backEnd, owner};
};

// Tells the time as a multiple of that of the case of size `least`.
inline void tellRatio(benchmark::State& state, const std::string& name, double secondsPerRun,
                      std::int64_t least = 1000) {
    static std::map<std::string, double> smallest;
    if (state.range(0) == least)
        smallest[name] = secondsPerRun;
    if (smallest.count(name) != 0)
        state.counters["vs_" + std::to_string(least)] = secondsPerRun / smallest[name];
}

template <class Run>
void measure(benchmark::State& state, const std::string& name, Run run) {
    double seconds = 0;
    for (auto unused : state) {
        const auto from = BenchClock::now();
        run();
        seconds += secondsSince(from);
    }
    tellRatio(state, name, seconds / static_cast<double>(state.iterations()));
}

// Bytes in use on the heap.
inline double usedMemory() {
    malloc_trim(0);
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

}  // namespace wirepane
