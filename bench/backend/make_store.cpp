// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Makes a store of millions of short stories to measure with: make_store FILE [STORIES [STORIES_A_DAY]].
// It holds the same rows as one that was taken in, written past the writer, in services 1 to 8. Ended halfway
// it goes on where it stood when it is started again.
#include "backend/database/statement.h"
#include "backend/store/day_bounds.h"
#include "bench/backend/search_store.h"
#include "bench/backend/store_timing.h"

#include <QCoreApplication>

#include <array>
#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

constexpr std::int64_t atOnce = 20'000;  // stories in a transaction
constexpr int storyBytes = 300;
constexpr int keptArrivals = 1'000'000;
const QDate lastDay(2026, 3, 2);

struct Wanted {
    std::int64_t stories = 10'000'000;
    std::int64_t aDay = 50'000;
};

// Words of a language's kind of frequency: few are common, many are rare.
class Words {
public:
    Words() {
        std::mt19937 random(1);
        for (QByteArray& word : english) {
            for (int letters = 2 + int(random() % 9); letters > 0; --letters)
                word += char('a' + random() % 26);
        }
        for (std::size_t i = 0; i < chinese.size(); ++i)
            chinese[i] = QString(QChar(char16_t(0x4e00 + i))).toUtf8();
    }

    QByteArray text(std::mt19937& random, int bytes, bool inChinese) const {
        QByteArray made;
        while (made.size() < bytes) {
            made += inChinese ? chinese[rank(random, chinese.size())] : english[rank(random, english.size())];
            if (random() % 12 == 0)
                made += inChinese ? "\xe3\x80\x82" : ".";
            if (!inChinese)
                made += ' ';
        }
        return made.trimmed();
    }

private:
    static std::size_t rank(std::mt19937& random, std::size_t count) {
        return std::size_t(std::uint64_t(random() % count) * (random() % count) / count);
    }

    std::array<QByteArray, 50'000> english;
    std::array<QByteArray, 4'000> chinese;
};

void check(bool good, Database& store) {
    if (!good)
        throw std::runtime_error(sentence(store.failure()).toStdString());
}

class Maker {
public:
    Maker(Database& database, const Wanted& size)
        : store(database),
          wanted(size),
          headline(database,
                   "INSERT INTO all_headlines(id, service, time, sequence, day, category, version, received, "
                   "identity, title) VALUES(?1, ?2, ?3, ?4, ?5, ?6, 0, ?3, ?7, ?8)"),
          story(database, "INSERT INTO stories VALUES(?, ?)"),
          related(database, "INSERT INTO related_symbols VALUES(?, 0, 1, ?, ?, ?, ?)"),
          search(database, "INSERT INTO news_search(rowid, title, story) VALUES(?, ?, ?)"),
          numbering(database, "REPLACE INTO numbering VALUES(?, ?, ?)"),
          arrival(database, "INSERT INTO arrivals(headline, only_story) VALUES(?, 0)") {}

    void run() {
        std::int64_t done = 0;
        check(store.readNumber("SELECT coalesce(max(id), 0) FROM headlines", done), store);
        while (done < wanted.stories) {
            const std::int64_t end = std::min(done + atOnce, wanted.stories);
            check(store.begin(), store);
            for (; done < end; ++done)
                add(done);
            check(store.commit(), store);
            std::printf("\r%lld of %lld", static_cast<long long>(done),
                        static_cast<long long>(wanted.stories));
            std::fflush(stdout);
        }
        std::printf("\n");
    }

private:
    void add(std::int64_t number) {
        std::mt19937 random{std::uint32_t(number)};
        const std::int64_t days = (wanted.stories + wanted.aDay - 1) / wanted.aDay;
        const QDate date = lastDay.addDays(number / wanted.aDay - days + 1);
        const DayBounds bounds = boundsOf(date);
        const std::int64_t place = number % wanted.aDay;
        const std::int64_t id = number + 1;
        const auto service = static_cast<int>(number % searchServices) + 1;
        const std::int64_t time = bounds.begin + place * (bounds.end - bounds.begin) / wanted.aDay;
        const std::int64_t sequence = place / searchServices + 1;
        const bool inChinese = number % 4 == 3;
        const QByteArray identity = "urn:bench:" + QByteArray::number(qlonglong(number));
        const QByteArray title = words.text(random, 60, inChinese);
        const QByteArray code = QByteArray::number(qlonglong(random() % 5000 + 1000));
        check(Query(headline, id, service, time, sequence, dayNumber(date), int(random() % 12) + 1,
                    QByteArrayView(identity), QByteArrayView(title))
                      .run() &&
                  Query(related, id, QByteArrayView(code), service, time, sequence).run() &&
                  Query(numbering, service, dayNumber(date), sequence).run(),
              store);
        addTexts(id, title, textOf(number, random, inChinese));
        if (number >= wanted.stories - keptArrivals)
            check(Query(arrival, id).run(), store);
    }

    QByteArray textOf(std::int64_t number, std::mt19937& random, bool inChinese) const {
        QByteArray text = words.text(random, storyBytes, inChinese);
        if (number % 4 == 0)
            text += ' ' + commonWord.toUtf8();
        if (number % (wanted.stories / rareStories) == 0)
            text += ' ' + rareWord.toUtf8();
        return text;
    }

    void addTexts(std::int64_t id, const QByteArray& title, const QByteArray& text) {
        check(Query(story, id, QByteArrayView(text)).run() &&
                  Query(search, id, QByteArrayView(title), QByteArrayView(text)).run(),
              store);
    }

    Database& store;
    Wanted wanted;
    Words words;
    Statement headline;
    Statement story;
    Statement related;
    Statement search;
    Statement numbering;
    Statement arrival;
};

int makeStore(const QStringList& arguments) {
    if (arguments.size() < 2 || arguments[1].startsWith(u'-')) {
        std::fputs("make_store FILE [STORIES [STORIES_A_DAY]]\n", stderr);
        return 1;
    }
    Wanted wanted;
    if (arguments.size() > 2)
        wanted.stories = std::max<std::int64_t>(rareStories, arguments[2].toLongLong());
    if (arguments.size() > 3)
        wanted.aDay = std::max<std::int64_t>(searchServices, arguments[3].toLongLong());
    const auto store = opened(arguments[1]);
    check(store->execute("PRAGMA synchronous = OFF; PRAGMA cache_size = -262144"), *store);
    Statement service(*store,
                      "INSERT OR IGNORE INTO services VALUES(?1, 'Service ' || ?1, 'S' || ?1, 20, 1)");
    for (int id = 1; id <= searchServices; ++id)
        check(Query(service, id).run(), *store);
    Maker(*store, wanted).run();
    return 0;
}

}  // namespace

}  // namespace wirepane::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        return wirepane::bench::makeStore(QCoreApplication::arguments());
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}
