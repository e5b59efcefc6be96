// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What it costs to try a title on 10, 100 and 1,000 queries of ten words each, every one with a phrase and an
// exclusion, and to make them ready. Few titles are wanted, so that no early hit ends the work.
#include "backend/search/title_query_set.h"
#include "backend/store/store_file.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

class Writer {
public:
    explicit Writer(bool isChinese) : chinese(isChinese) {}
    QString word() {
        QString result;
        for (int letters = chinese ? 2 + below(3) : 4 + below(5); letters > 0; --letters)
            result += QChar(static_cast<char16_t>(chinese ? 0x4E00 + below(2000) : 'a' + below(26)));
        return result;
    }
    QString known() { return pool[static_cast<std::size_t>(below(static_cast<int>(pool.size())))]; }
    QString query() {
        QStringList words;
        while (words.size() < 8)
            words += known();
        return u"(%1 | \"%2 %3\") -%4"_s.arg(words.join(u" | "_s), known(), known(), word());
    }
    QString title() {
        QString result = known();
        while (result.size() < 60)
            result += u' ' + word();
        return result;
    }
    void makePool() {
        for (int i = 0; i < 20'000; ++i)
            pool.push_back(word());
    }

private:
    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }
    const bool chinese;
    std::mt19937 random{7};
    std::vector<QString> pool;
};

struct Trial {
    Trial(bool chinese, std::int64_t count) : writer(chinese) {
        writer.makePool();
        while (static_cast<std::int64_t>(queries.size()) < count)
            queries.push_back(writer.query());
        for (int i = 0; i < 1000; ++i)
            headlines.emplace_back().title = writer.title();
    }
    std::shared_ptr<const TitleQuerySet> compile() {
        QueryPlanner planner(*store);
        return TitleQuerySet::make(queries, planner, {});
    }
    QTemporaryDir folder;
    std::unique_ptr<Database> store = std::move(openStore(folder.filePath(u"s.db"_s)).value());
    Writer writer;
    std::vector<QString> queries;
    std::vector<CHeadline> headlines;
};

void tryTitle(benchmark::State& state, bool chinese) {
    Trial trial(chinese, state.range(0));
    const auto set = trial.compile();
    std::size_t next = 0;
    std::int64_t wanted = 0;
    for (auto unused : state) {
        set->findWanting(trial.headlines[next], 1, [&](std::size_t) {
            ++wanted;
            return false;
        });
        next = next + 1 == trial.headlines.size() ? 0 : next + 1;
    }
    state.counters["wanted"] = static_cast<double>(wanted) / static_cast<double>(state.iterations());
}

void makeReady(benchmark::State& state) {
    Trial trial(false, state.range(0));
    for (auto unused : state)
        benchmark::DoNotOptimize(trial.compile());
}

}  // namespace

BENCHMARK_CAPTURE(tryTitle, latin, false)->RangeMultiplier(10)->Range(10, 1000);
BENCHMARK_CAPTURE(tryTitle, chinese, true)->RangeMultiplier(10)->Range(10, 1000);
BENCHMARK(makeReady)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace wirepane::bench
