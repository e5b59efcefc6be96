// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "bench/backend/search_store.h"

#include "backend/database/statement.h"
#include "bench/backend/store_timing.h"

#include <map>
#include <random>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

constexpr int englishWords = 200;
constexpr int chineseCharacters = 400;  // 1,200 bytes
constexpr int yearOfSeconds = 31'536'000;
constexpr std::int64_t begin = 1'740'000'000;

// Frequent ones are few, rare ones are many.
int rank(std::mt19937& random, int count) {
    return int(std::uint64_t(random() % unsigned(count)) * (random() % unsigned(count)) / unsigned(count));
}

void check(bool good, Database& store) {
    if (!good)
        throw std::runtime_error(sentence(store.failure()).toStdString());
}

QString storyOf(int number, int stories) {
    QString story = number % 2 == 0 ? englishStory(number) : chineseStory(number);
    if (number % 4 < 1)
        story += u" "_s + commonWord.toString();
    if (number % (stories / rareStories) == 0)
        story += u" "_s + rareWord.toString();
    return story;
}

}  // namespace

QString englishStory(int number) {
    std::mt19937 random{unsigned(number)};
    QString text;
    for (int i = 0; i < englishWords; ++i) {
        text += u"w%1"_s.arg(rank(random, 5000), 3, 36, QChar(u'a'));
        text += i % 12 == 11 ? u". "_s : i % 50 == 49 ? u"@@@@"_s : u" "_s;
    }
    return text;
}

QString chineseStory(int number) {
    std::mt19937 random{unsigned(number)};
    QString text;
    for (int i = 0; i < chineseCharacters; ++i) {
        text += QChar(char16_t(0x4e00 + rank(random, 4000)));
        if (i % 11 == 10)
            text += i % 22 == 21 ? u'。' : u'，';
    }
    return text;
}

SearchStore::SearchStore(int stories, Coming coming) : file(folder.filePath(u"search.db"_s)) {
    const auto store = opened(file);
    check(store->execute(
              "PRAGMA synchronous = OFF; PRAGMA cache_size = -262144; PRAGMA journal_mode = OFF; BEGIN"),
          *store);
    Statement service(*store, "INSERT OR IGNORE INTO services VALUES(?, 'Service', 'S', 20, 1)");
    for (int i = 1; i <= searchServices; ++i)
        check(Query(service, i).run(), *store);
    Statement headline(
        *store,
        "INSERT INTO all_headlines(id, service, time, sequence, day, category, version, received, identity, "
        "title) VALUES(?1, ?2, ?3, ?1, 20260302, 1, 0, 0, ?1, ?4)");
    Statement text(*store, "INSERT INTO stories VALUES(?, ?)");
    Statement search(*store, "INSERT INTO news_search(rowid, title, story) VALUES(?, ?, ?)");
    std::int64_t bytes = 0;
    for (int i = 0; i < stories; ++i) {
        const std::int64_t place = coming == Coming::AsPublished ? i : std::int64_t(i) * 7919 % stories;
        const std::int64_t time = begin + place * yearOfSeconds / stories;
        const QString story = storyOf(i, stories);
        const QString title = story.left(40);
        bytes += title.toUtf8().size() + story.toUtf8().size();
        check(Query(headline, i + 1, i % searchServices + 1, time, title).run() &&
                  Query(text, i + 1, story).run() &&
                  Query(search, i + 1, title, QString(story).replace("@@@@"_L1, "\n"_L1)).run(),
              *store);
    }
    check(store->execute("COMMIT; PRAGMA journal_mode = WAL"), *store);
    std::int64_t index = 0;
    check(store->readNumber("SELECT sum(length(block)) FROM news_search_data", index), *store);
    share = double(index) / double(bytes);
}

const SearchStore& SearchStore::of(int stories, Coming coming) {
    static std::map<std::pair<int, Coming>, std::unique_ptr<SearchStore>> made;
    std::unique_ptr<SearchStore>& store = made[{stories, coming}];
    if (!store)
        store = std::make_unique<SearchStore>(stories, coming);
    return *store;
}

}  // namespace wirepane::bench
