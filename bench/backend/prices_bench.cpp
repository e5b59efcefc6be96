// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the prices of minutes take of a store, and what rows cost that show what prices have done since their
// headlines.
#include "backend/store/embedded_back_end.h"
#include "backend/store/packed_prices.h"
#include "bench/backend/store_timing.h"
#include "host/contract/clock.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cmath>
#include <random>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace wirepane {

using namespace wirepane::bench;

namespace {

constexpr int minutes = 270;
constexpr std::int64_t firstDay = 20'000;

struct Market {
    int symbols;
    int days;
};

std::int64_t opening(int day) {
    return (firstDay + day) * secondsOfDay + 90 * secondsOfMinute;
}

// A day as quotes bring it: each symbol in each minute at a price some ticks from the one before.
void fillDay(PriceBook& book, int day, int symbols, std::mt19937& random) {
    for (int symbol = 0; symbol < symbols; ++symbol) {
        const double tick = symbol % 3 == 0 ? 0.001 : symbol % 3 == 1 ? 0.01 : 0.2;
        std::int64_t ticks = 1000 + symbol % 5000;
        for (int minute = 0; minute < minutes; ++minute) {
            ticks = std::max<std::int64_t>(1, ticks + static_cast<std::int64_t>(random() % 11) - 5);
            const double price = std::round(static_cast<double>(ticks) * tick * 1000) / 1000;
            if (!book.add({22, QString::number(symbol)}, {opening(day) + minute * secondsOfMinute, price}))
                throw std::runtime_error("a price was not taken in");
        }
    }
}

// Writes nothing but prices, so that the growth of the file is theirs.
double fill(const QString& path, const Market& market) {
    const auto store = opened(path);
    const qint64 before = QFileInfo(path).size();
    PriceBook book(*store);
    std::mt19937 random(23);
    for (int day = 0; day < market.days; ++day) {
        store->begin();
        fillDay(book, day, market.symbols, random);
        store->commit();
    }
    store->execute("PRAGMA wal_checkpoint(TRUNCATE)");
    return static_cast<double>(QFileInfo(path).size() - before);
}

// `range(0)`: how many days ago the headlines of the rows came.
void rowsWithPrices(benchmark::State& state) {
    constexpr int rows = 60;
    const Market market{rows, static_cast<int>(state.range(0)) + 1};
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"prices.wirepane"_s);
    const double bytes = fill(path, market);
    EmbeddedBackEnd backEnd(connectionsTo(path));
    host_clock::startAt(opening(market.days - 1) + minutes * secondsOfMinute);
    std::vector<HeadlineKey> keys;
    for (int row = 0; row < rows; ++row) {
        NewsItem item;
        item.service = 1;
        item.identity = QString::number(row);
        item.title = u"Title"_s;
        item.time = opening(0) + 100 * secondsOfMinute + row;
        item.sequence = row + 1;
        item.related = {{22, QString::number(row)}};
        if (!backEnd.takeIn(item) || !backEnd.takeIn(QuoteItem{22, QString::number(row), 5, 0, 1}))
            throw std::runtime_error("the news was not taken in");
        keys.push_back({item.time, row + 1, 1});
    }
    for (auto _ : state) {
        state.PauseTiming();
        backEnd.forgetNews();
        state.ResumeTiming();
        for (const HeadlineKey& key : keys) {
            if (!backEnd.priceSince(key))
                throw std::runtime_error("no price is known");
        }
    }
    state.counters["bytes_per_symbol_and_day"] = bytes / market.symbols / market.days;
}
BENCHMARK(rowsWithPrices)->Name("PriceRows/unseen")->Arg(0)->Arg(249)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace wirepane
