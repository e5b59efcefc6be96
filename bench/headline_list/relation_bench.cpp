// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What it costs to try a headline on 10, 100, 1,000 and 10,000 key sets of ten words each; "vs_10" is the
// time as a multiple of that with ten. Titles of 60 letters that no key set wants, so that no early hit ends
// the work, which is the costly case.
#include "bench/headline_list/list_bench.h"
#include "headline_list/relation_matcher.h"

#include <algorithm>
#include <random>

namespace wirepane {

namespace {

constexpr std::size_t wordsPerSet = 10;
constexpr int titleCount = 200;
constexpr int titleLength = 60;

class Writer {
public:
    explicit Writer(bool isChinese) : chinese(isChinese) {}
    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }
    QString word() { return letters(chinese ? 2 + below(3) : 4 + below(5), chinese ? 2000 : 26); }
    QString letters(int count, int alphabet) {
        QString result;
        while (result.size() < count)
            result += QChar(static_cast<char16_t>((chinese ? 0x4E00 : 'A') + below(alphabet)));
        return result;
    }
    QString title(const std::vector<QString>& holding) {
        QString result;
        for (const QString& one : holding)
            result += one + QLatin1Char(' ');
        return result +
               letters(std::max(0, titleLength - static_cast<int>(result.size())), chinese ? 2000 : 26);
    }

private:
    const bool chinese;
    std::mt19937 random{7};
};

struct Trial {
    std::vector<CNewsKey> keySets;
    std::vector<CHeadline> headlines;
};

// Every key set has words of its own. Words begin as titles do, none stands in one.
Trial absentWords(int sets, bool chinese) {
    Writer writer(chinese);
    Trial trial;
    for (int i = 0; i < sets; ++i) {
        CNewsKey& keySet = trial.keySets.emplace_back(1 + i % 2, std::vector{CNewsKey::everyNewsType},
                                                      std::vector<QString>());
        while (keySet.keywords.size() < wordsPerSet)
            keySet.keywords.push_back(writer.word() + QLatin1Char('#'));
    }
    for (int i = 0; i < titleCount; ++i)
        trial.headlines.emplace_back().title = writer.title({});
    return trial;
}

// Every key set draws its words from the same 200, and wants them all; every title holds five of them.
Trial sharedWords(int sets, bool chinese, std::size_t wordsOfSet = wordsPerSet) {
    Writer writer(chinese);
    std::vector<QString> pool(200);
    std::generate(pool.begin(), pool.end(), [&] { return writer.word(); });
    const auto one = [&] {
        return pool[static_cast<std::size_t>(writer.below(static_cast<int>(pool.size())))];
    };
    Trial trial;
    for (int i = 0; i < sets; ++i) {
        CNewsKey& keySet =
            trial.keySets.emplace_back(1, std::vector{CNewsKey::everyNewsType}, std::vector<QString>());
        while (keySet.keywords.size() < wordsOfSet)
            keySet.keywords.push_back(one());
    }
    for (int i = 0; i < titleCount; ++i)
        trial.headlines.emplace_back().title = writer.title({one(), one(), one(), one(), one()});
    return trial;
}

void measureTrial(benchmark::State& state, const char* name, const Trial& trial) {
    const RelationMatcher matcher(trial.keySets);
    const QString symbol = QStringLiteral("2330");
    std::size_t next = 0;
    int wanted = 0;
    const auto from = BenchClock::now();
    for (auto unused : state) {
        wanted += matcher.CheckIsRelationSearch(trial.headlines[next], 1, symbol) ? 1 : 0;
        next = next + 1 == trial.headlines.size() ? 0 : next + 1;
    }
    const double seconds = secondsSince(from);
    const double perHeadline = seconds / static_cast<double>(state.iterations());
    state.counters["us"] = perHeadline * 1e6;
    tellRatio(state, name, perHeadline, 10);
    state.counters["wanted"] = wanted;
}

void absentLatin(benchmark::State& state) {
    measureTrial(state, "absent latin", absentWords(static_cast<int>(state.range(0)), false));
}

void absentChinese(benchmark::State& state) {
    measureTrial(state, "absent chinese", absentWords(static_cast<int>(state.range(0)), true));
}

void sharedLatin(benchmark::State& state) {
    measureTrial(state, "shared latin", sharedWords(static_cast<int>(state.range(0)), false));
}

void sharedChinese(benchmark::State& state) {
    measureTrial(state, "shared chinese", sharedWords(static_cast<int>(state.range(0)), true));
}

// Few enough words that a title may hold them all: some are wanted.
void sharedByThrees(benchmark::State& state) {
    measureTrial(state, "threes", sharedWords(static_cast<int>(state.range(0)), false, 3));
}

void compileKeySets(benchmark::State& state) {
    const Trial trial = absentWords(static_cast<int>(state.range(0)), false);
    for (auto unused : state)
        benchmark::DoNotOptimize(RelationMatcher(trial.keySets));
}

}  // namespace

BENCHMARK(absentLatin)->RangeMultiplier(10)->Range(10, 10'000);
BENCHMARK(absentChinese)->RangeMultiplier(10)->Range(10, 10'000);
BENCHMARK(sharedLatin)->RangeMultiplier(10)->Range(10, 10'000);
BENCHMARK(sharedChinese)->RangeMultiplier(10)->Range(10, 10'000);
BENCHMARK(sharedByThrees)->RangeMultiplier(10)->Range(10, 10'000);
BENCHMARK(compileKeySets)->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMillisecond);

}  // namespace wirepane
