// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the search costs: taking in with its index, beside the library's own splitter of words; and searches
// in a large store, beside the bare query of the index.
#include "backend/database/statement.h"
#include "backend/search/search_dispatcher.h"
#include "backend/store/store_writer.h"
#include "bench/backend/search_store.h"
#include "bench/backend/store_timing.h"
#include "bench/support/run_benchmarks.h"
#include "host/contract/search_choices.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <map>
#include <memory>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

constexpr int kind = 3;
constexpr std::size_t mostOfFirst = 200;

std::vector<NewsItem> items(bool chinese, int count) {
    std::vector<NewsItem> made;
    for (int i = 0; i < count; ++i) {
        NewsItem item;
        item.identity = QString::number(i);
        item.time = 1'772'400'000 + i;
        item.story = chinese ? chineseStory(i) : englishStory(i);
        item.title = item.story->left(40);
        made.push_back(item);
    }
    return made;
}

double secondsToTakeIn(const std::vector<NewsItem>& news, bool plain) {
    QTemporaryDir folder;
    const auto store = opened(folder.filePath(u"s.db"_s));
    if (plain)
        store->execute(
            "DROP TABLE news_search; CREATE VIRTUAL TABLE news_search USING fts5(title, story, "
            "content='news_text', content_rowid='id', tokenize='unicode61')");
    StoreWriter writer(*store);
    return secondsOf([&] {
        bool good = static_cast<bool>(writer.begin());
        for (const NewsItem& item : news)
            good = good && writer.take(item);
        if (!good || !writer.commit())
            throw std::runtime_error("the news was not taken in");
    });
}

// of_unicode61: the rate of taking in as a share of that with the library's own splitter.
void takeInIndexed(benchmark::State& state) {
    const std::vector<NewsItem> news = items(state.range(0) == 1, 10'000);
    std::vector<double> own;
    std::vector<double> plain;
    for (auto unused : state) {
        own.push_back(secondsToTakeIn(news, false));
        plain.push_back(secondsToTakeIn(news, true));
        state.SetIterationTime(own.back());
    }
    state.counters["items_per_s"] = double(news.size()) / median(own);
    state.counters["of_unicode61"] = median(plain) / median(own);
}

CSearch conditionOf(QStringView word) {
    CSearch condition;
    condition.keywords = {word.toString()};
    condition.scope = 2;
    return condition;
}

// Sends a search in all services, and asks for the newest of them beside it, as a view does; waits for the
// answers. Seconds until the first rows and until the last.
struct Answers {
    explicit Answers(const QString& path) : desk(path, [this](const CSearch&, unsigned char) { ++count; }) {
        std::iota(services.begin(), services.end(), 1);
    }

    std::pair<double, double> search(QStringView word) { return search(conditionOf(word)); }
    std::pair<double, double> search(const CSearch& condition) {
        count = 0;
        std::optional<double> first;
        const auto from = BenchClock::now();
        const auto asked = desk.askNewest({condition, services, NewsSearch::Newest{mostOfFirst}},
                                          [&](auto&&, bool) { first = first.value_or(secondsSince(from)); });
        const double all = secondsOf([&] {
            for (const unsigned char service : services)
                desk.ask(service, kind, condition);
            while (count < searchServices)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
        return {first.value_or(all), all};
    }
    std::size_t found() const {
        std::size_t entries = 0;
        for (int service = 1; service <= searchServices; ++service)
            entries += desk.table(static_cast<unsigned char>(service), kind).size();
        return entries;
    }

    std::vector<unsigned char> services = std::vector<unsigned char>(searchServices);
    int count = 0;
    SearchDispatcher desk;
};

// What is asked, and the same in the index's own language.
struct Question {
    CSearch condition;
    QString match;
};

Question query(const QString& text, const QString& match) {
    CSearch condition = conditionOf(text);
    condition.language = SearchLanguage::Query;
    return {condition, match};
}

// Words of a language, as some stories of a store have them.
struct Words {
    QString common;        // in about a quarter of all stories
    QStringList frequent;  // three of the most frequent, but not the first
    QString rare;          // in few stories
    QString phrase;        // four characters, or three words, of one story
};

bool isChinese(const QString& text) {
    return !text.isEmpty() && text.front().unicode() >= 0x3400;
}

Words wordsOf(Database& store, bool inChinese) {
    constexpr int sampled = 400;  // stories
    Words words;
    std::map<QString, int> counts;
    Statement statement(store, "SELECT story FROM news_text WHERE id = ?");
    const QRegularExpression between(inChinese ? u""_s : u"[^\\w]+"_s,
                                     QRegularExpression::UseUnicodePropertiesOption);
    for (int id = 1; id <= sampled; ++id) {
        Query row(statement, id);
        const QString story = row.next() ? row.text(0) : QString();
        QStringList all = story.split(between, Qt::SkipEmptyParts);
        if (isChinese(story) != inChinese)
            continue;
        all.removeIf([&](const QString& word) { return isChinese(word) != inChinese; });
        words.phrase = inChinese ? story.left(4) : all.sliced(0, 3).join(u' ');
        for (const QString& word : QSet<QString>(all.begin(), all.end()))
            ++counts[word];
    }
    std::vector<std::pair<int, QString>> order;
    for (const auto& [word, count] : counts)
        order.emplace_back(count, word);
    std::ranges::sort(order);
    words.rare = order.front().second;
    words.common = std::ranges::min_element(order, {}, [](const auto& each) {
                       return std::abs(each.first - sampled / 4);
                   })->second;
    for (auto each = order.rbegin() + 1; each != order.rbegin() + 4; ++each)
        words.frequent += each->second;
    return words;
}

enum class Asked { RareWord, CommonWord, ThreeWordsButOne, Phrase };

Question questionOf(Database& store, Asked asked, bool inChinese) {
    const Words words = wordsOf(store, inChinese);
    switch (asked) {
        case Asked::RareWord:
            return inChinese ? query(words.rare, words.rare)
                             : query(rareWord.toString(), rareWord.toString());
        case Asked::CommonWord:
            return inChinese ? query(words.common, words.common)
                             : query(commonWord.toString(), commonWord.toString());
        case Asked::ThreeWordsButOne:
            return query(words.frequent.join(u' ') + u" -copper"_s,
                         words.frequent.join(u" AND "_s) + u" NOT copper"_s);
        case Asked::Phrase:
            break;
    }
    return query(u'"' + words.phrase + u'"', u'"' + words.phrase + u'"');
}

double secondsOfBareQuery(Database& store, const QString& match) {
    Statement statement(store, "SELECT rowid FROM news_search WHERE news_search MATCH ?");
    return secondsOf([&] {
        std::int64_t sum = 0;
        Query query(statement, match);
        while (query.next())
            sum += query.number(0);
        benchmark::DoNotOptimize(sum);
    });
}

// all_of_bare: the time until all keys are answered, as a multiple of the bare query's.
void searchFor(benchmark::State& state, const QString& path, Asked asked, bool inChinese) {
    const auto store =
        opened(path.isEmpty() ? SearchStore::of(int(state.range(0)), Coming::AsPublished).path() : path);
    Answers answers(store->path());
    answers.search(commonWord);  // the keys are in memory from then on
    const Question question = questionOf(*store, asked, inChinese);
    std::vector<double> firsts;
    std::vector<double> alls;
    std::vector<double> bare;
    for (auto unused : state) {
        answers.search(u"nothing");  // the last condition is remembered
        const auto [first, all] = answers.search(question.condition);
        firsts.push_back(first);
        alls.push_back(all);
        bare.push_back(secondsOfBareQuery(*store, question.match));
        state.SetIterationTime(all);
    }
    state.counters["found"] = double(answers.found());
    state.counters["first_ms"] = median(firsts) * 1000;
    state.counters["all_ms"] = median(alls) * 1000;
    state.counters["bare_ms"] = median(bare) * 1000;
    state.counters["first_of_bare"] = median(firsts) / median(bare);
    state.counters["all_of_bare"] = median(alls) / median(bare);
}

// In stores of their own; and in one that was made before, where the environment names it.
void registerSearches() {
    struct Named {
        Asked asked;
        const char* name;
    };
    constexpr Named all[] = {{Asked::RareWord, "rare"},
                             {Asked::CommonWord, "common"},
                             {Asked::ThreeWordsButOne, "three_but_one"},
                             {Asked::Phrase, "phrase"}};
    const QString given = qEnvironmentVariable("WIREPANE_SEARCH_STORE");
    for (const Named& named : all) {
        for (const bool inChinese : {false, true}) {
            const std::string called = std::string("searchFor/") + named.name + (inChinese ? "/zh" : "/en");
            const auto add = [&](const QString& path, const std::string& suffix) {
                return benchmark::RegisterBenchmark((called + suffix).c_str(), searchFor, path, named.asked,
                                                    inChinese)
                    ->Iterations(20)
                    ->UseManualTime()
                    ->Unit(benchmark::kMillisecond);
            };
            add({}, {})->Arg(1000)->Arg(1'000'000);
            if (!given.isEmpty())
                add(given, "/given");
        }
    }
}

// What the user types, key by key: a word of a story, or three of its Chinese characters.
QStringList typedKeys(int number) {
    const bool isChinese = number % 2 == 1;
    const QString story = isChinese ? chineseStory(number) : englishStory(number);
    const QString word = isChinese ? story.left(3) : story.section(u' ', number % 7, number % 7).left(4);
    QStringList keys;
    for (int length = 1; length <= word.size(); ++length)
        keys += word.left(length) + (!isChinese && length > 2 ? u"*"_s : QString());
    return keys;
}

// From a key to the first titles that are found of what has been typed; all_p99_ms: to the last.
void typing(benchmark::State& state) {
    const SearchStore& made =
        SearchStore::of(static_cast<int>(state.range(0)), static_cast<Coming>(state.range(1)));
    SearchDispatcher desk(made.path(), [](const CSearch&, unsigned char) {});
    std::vector<unsigned char> services(searchServices);
    std::iota(services.begin(), services.end(), 1);
    std::vector<double> waits;
    std::vector<double> ends;
    std::shared_ptr<const void> asked;
    int number = 0;
    for (auto unused : state) {
        const double together = secondsOf([&] {
            for (const QString& key : typedKeys(++number)) {
                CSearch condition = conditionOf(key);
                condition.language = SearchLanguage::Query;
                condition.scope = numberOf(SearchScope::Headlines);
                const auto from = BenchClock::now();
                std::optional<double> first;
                std::optional<double> end;
                asked.reset();
                asked = desk.askNewest({condition, services, NewsSearch::Newest{mostOfFirst}},
                                       [&](auto&&, bool isAll) {
                                           const double wait = secondsSince(from) * 1000;
                                           first = first.value_or(wait);
                                           if (isAll)
                                               end = wait;
                                       });
                while (!end)
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                waits.push_back(*first);
                ends.push_back(*end);
            }
        });
        state.SetIterationTime(together);
    }
    std::sort(waits.begin(), waits.end());
    std::sort(ends.begin(), ends.end());
    state.counters["all_p99_ms"] = ends[ends.size() * 99 / 100];
    state.counters["keys"] = double(waits.size());
    state.counters["p50_ms"] = waits[waits.size() / 2];
    state.counters["p99_ms"] = waits[waits.size() * 99 / 100];
    state.counters["most_ms"] = waits.back();
}

// How late an event comes that is posted every millisecond while searches run. p99_ms: of a hundred, the
// latest but one.
void inputDuringSearch(benchmark::State& state) {
    Answers answers(SearchStore::of(static_cast<int>(state.range(0))).path());
    std::vector<double> late;
    for (auto unused : state) {
        auto due = std::chrono::steady_clock::now() + std::chrono::milliseconds(1);
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            const auto now = BenchClock::now();
            late.push_back(std::chrono::duration<double, std::milli>(now - due).count());
            due = now + std::chrono::milliseconds(1);
        });
        timer.start(1);
        state.SetIterationTime(secondsOf([&] {
            for (int i = 0; i < 5; ++i) {
                answers.search(commonWord);
                answers.search(rareWord);
            }
        }));
    }
    std::sort(late.begin(), late.end());
    state.counters["events"] = double(late.size());
    state.counters["p99_ms"] = late.empty() ? 0 : late[late.size() * 99 / 100];
}

}  // namespace

}  // namespace wirepane::bench

using namespace wirepane::bench;
using namespace wirepane;

namespace wirepane {

BENCHMARK(takeInIndexed)
    ->ArgName("chinese")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(typing)
    ->ArgNames({"", "no_order"})
    ->Args({1000, 0})
    ->Args({1'000'000, 0})
    ->Args({1'000'000, 1})
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(inputDuringSearch)->Arg(1'000'000)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    registerSearches();
    return wirepane::runBenchmarks<QCoreApplication>(argc, argv);
}
