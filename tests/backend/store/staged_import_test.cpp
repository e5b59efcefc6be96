// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/staged_import.h"

#include "backend/packed_text.h"
#include "backend/search/news_search.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "backend/store/stored_item.h"
#include "tests/backend/store/store_fixture.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <map>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace wirepane {

namespace {

constexpr StagedImport::Pace everyPause{.batch = 1000ms, .leastBatch = 0ms, .pause = 0ms};

// All that readers can see, but for numbers and ids, which depend on who came first.
constexpr const char* seenNews =
    "SELECT headlines.service, identity, version, headlines.time, title, text, "
    "(SELECT name FROM categories WHERE id = headlines.category AND space = 0), "
    "(SELECT group_concat(market || ':' || code) FROM shown_symbols WHERE headline = headlines.id) "
    "FROM headlines LEFT JOIN stories ON stories.headline = headlines.id ORDER BY 1, 2";
constexpr const char* seenLists =
    "SELECT id FROM services WHERE position > 0 UNION ALL SELECT service || '/' || name FROM "
    "service_categories "
    "JOIN categories ON categories.space = service_categories.space AND id = category "
    "UNION ALL SELECT market || '.' || code FROM symbols ORDER BY 1";

class StagedImportTest : public StoreFixture {
protected:
    StagedImportTest() {
        other = std::move(openStore(pathOf(u"other.db"_s)).value());
        otherWriter = std::make_unique<StoreWriter>(*other);
        importing = std::move(openStore(store->path()).value());
    }

    std::int64_t upTo(std::int64_t bound) {
        return static_cast<std::int64_t>(random() % std::uint64_t(bound));
    }
    NewsItem randomItem() {
        static int count = 0;
        // Half of it was there before.
        const QString identity = u"%1/%2"_s.arg(upTo(2) == 0 ? 0 : round).arg(upTo(40));
        NewsItem item =
            newsItem(upTo(4) == 0 ? 9 : 1, identity, at(9, int(upTo(50))), u"Title %1"_s.arg(++count));
        item.version = int(upTo(3));
        item.story = u"Story of %1"_s.arg(count);
        item.category = u"Topic-%1"_s.arg(upTo(9));
        if (upTo(3) == 0)
            item.related = {{16, QString::number(upTo(5))}, {0, u"X"_s}};
        return item;
    }
    StoreItem randomItemOfFile(int nonNews) {
        if (upTo(1000) < nonNews)
            return SymbolItem{16, QString::number(upTo(90)), u"Name %1"_s.arg(upTo(9)), 1};
        NewsItem item = randomItem();
        if (upTo(4) == 0)
            item.story = upTo(2) == 0 ? std::nullopt : std::optional(QString());
        if (upTo(40) == 0)
            item.title.clear();
        return item;
    }
    static std::map<Take, int> takeAll(ItemSink& sink, const std::vector<StoreItem>& items) {
        std::map<Take, int> outcomes;
        EXPECT_TRUE(sink.begin());
        for (const StoreItem& item : items)
            ++outcomes[sink.take(item).value().take];
        EXPECT_TRUE(sink.commit());
        return outcomes;
    }
    // As a file of much, with what others bring between its items.
    std::map<Take, int> stage(StagedImport& staged, const std::vector<StoreItem>& items, bool isLive) {
        std::map<Take, int> outcomes;
        const QStringList before = rows(seenNews);
        int lived = 0;
        EXPECT_TRUE(staged.beginMany());
        for (const StoreItem& item : items) {
            ++outcomes[staged.take(item).value().take];
            if (upTo(8) != 0)
                continue;
            staged.pause();
            if (isLive && ++lived > 0)
                live({randomItem(), randomItem()});
            else
                EXPECT_EQ(rows(seenNews), before) << "nothing of it shows";
        }
        EXPECT_TRUE(staged.commit());
        const LateOutcomes late = staged.takeLateOutcomes();
        EXPECT_EQ(int(late.putOff.size()), outcomes[Take::PutOff]);
        outcomes.erase(Take::PutOff);
        for (const TakeOutcome& outcome : late.putOff)
            ++outcomes[outcome.take];
        outcomes[Take::TakenIn] -= int(late.overtaken);
        outcomes[Take::AlreadyThere] += int(late.overtaken);
        std::erase_if(outcomes, [](const auto& entry) { return entry.second == 0; });
        return outcomes;
    }
    // A process of its own; it says when all is staged.
    [[noreturn]] static void importAll(const QString& path, const std::vector<StoreItem>& items,
                                       const StagedImport::Pace& pace, int told) {
        const auto store = openStore(path);
        StagedImport staged(*store.value(), pace);
        if (!staged.beginMany())
            _exit(1);
        for (const StoreItem& item : items) {
            if (!staged.take(item))
                _exit(1);
        }
        if (write(told, "", 1) != 1 || !staged.commit())
            _exit(1);
        _exit(0);
    }
    void live(const std::vector<StoreItem>& items) {
        takeAll(*writer, items);
        takeAll(*otherWriter, items);
    }
    QStringList faults() const {
        const Result<QStringList> checked = StoreChecker(store->path()).check();
        return checked ? checked.value() : QStringList{sentence(checked.error())};
    }
    std::size_t found(const QString& word) {
        CSearch condition;
        condition.keywords = {word};
        return NewsSearch(*store).find(1, condition).value().size();
    }

    std::unique_ptr<Database> other;  // where all is taken in at once
    std::unique_ptr<StoreWriter> otherWriter;
    std::unique_ptr<Database> importing;
    std::mt19937_64 random{20260302};
    int round = 0;
};

// What others bring meanwhile stands before the file; what becomes of the file is the same.
TEST_F(StagedImportTest, ItEndsAsInOneTransactionWhateverOthersBringMeanwhile) {
    StagedImport staged(*importing, everyPause);
    for (round = 0; round < 24; ++round) {
        const bool isLive = round % 3 != 0;
        std::vector<StoreItem> items{randomItem()};
        for (auto left = upTo(90); left > 0; --left)
            items.push_back(randomItemOfFile(round % 4 == 0 ? 30 : 0));
        const auto outcomes = stage(staged, items, isLive);
        const auto expected = takeAll(*otherWriter, items);
        if (!isLive) {
            EXPECT_EQ(outcomes, expected) << round;
        }
        for (const char* const seen : {seenNews, seenLists})
            EXPECT_EQ(rows(seen).join(u'\n').toStdString(), rowsOf(*other, seen).join(u'\n').toStdString())
                << round;
        // Also when it is changed or replaced before it is in the index.
        live({randomItem(), randomItem()});
        EXPECT_EQ(faults(), QStringList{}) << round;
        while (round % 2 == 0 && staged.indexSome().value()) {
        }
        EXPECT_EQ(faults(), QStringList{}) << round;
        if (round % 2 == 0) {
            EXPECT_FALSE(needsUpkeep(*store)) << round;
        }
    }
    EXPECT_FALSE(QFile::exists(store->path() + u"-import"_s));
}

TEST_F(StagedImportTest, WhatIsGivenUpLeavesNothing) {
    takeNews(newsItem(1, u"0/1"_s, at(9, 0), u"Before"_s));
    const auto seen = [this] { return rows(seenNews) + rows(seenLists); };
    const QStringList before = seen();
    const auto beginOne = [this](StagedImport& staged) {
        ASSERT_TRUE(staged.beginMany());
        for (int i = 0; i < 700; ++i) {
            NewsItem item = randomItem();
            item.identity = u"g%1"_s.arg(i);
            ASSERT_TRUE(staged.take(item));
            if (i % 100 == 0)
                staged.pause();
        }
        staged.pause();
    };
    {
        StagedImport staged(*importing, everyPause);
        beginOne(staged);
        EXPECT_EQ(seen(), before);
        EXPECT_EQ(faults(), QStringList{});
        staged.rollback();
        EXPECT_EQ(rows("SELECT count(*) FROM all_headlines"), QStringList{u"1"_s});
        EXPECT_FALSE(needsUpkeep(*store));
        beginOne(staged);
    }
    EXPECT_EQ(rows("SELECT count(*) FROM all_headlines"), QStringList{u"1"_s});
    EXPECT_EQ(rows("SELECT count(*) FROM categories WHERE name LIKE 'Topic%'"), QStringList{u"0"_s});
    EXPECT_EQ(seen(), before);
}

// Killed before its news is shown it leaves nothing, killed later all of it, by whoever comes next.
TEST_F(StagedImportTest, AKillLeavesAllOfItOrNothing) {
    const auto seen = [this] { return (rows(seenNews) + rows(seenLists)).join(u'\n').toStdString(); };
    constexpr StagedImport::Pace oneChangeAtOnce{
        .batch = 1000ms, .indexBatch = 0ms, .indexBatchBesideOthers = 0ms, .leastBatch = 0ms, .pause = 0ms};
    int nothing = 0;
    int midway = 0;
    for (round = 1; round < 60 && (nothing < 3 || midway < 3); ++round) {
        std::vector<StoreItem> items;
        for (int i = 0; i < 60; ++i)
            items.emplace_back(randomItem());
        live({items.begin(), items.begin() + 30});
        for (StoreItem& item : items) {
            auto& news = std::get<NewsItem>(item);
            news.version += 3;
            news.title += u" again"_s;
        }
        const std::string before = seen();
        const QString path = store->path();
        importing.reset();
        writer.reset();
        store.reset();
        int staged[2];
        ASSERT_EQ(pipe(staged), 0);
        const pid_t worker = fork();
        if (worker == 0)
            importAll(path, items, oneChangeAtOnce, staged[1]);
        close(staged[1]);
        char byte = 0;
        ASSERT_EQ(read(staged[0], &byte, 1), 1);
        close(staged[0]);
        usleep(unsigned(upTo(6000)));
        kill(worker, SIGKILL);
        waitpid(worker, nullptr, 0);
        store = std::move(openStore(path).value());
        writer = std::make_unique<StoreWriter>(*store);
        importing = std::move(openStore(path).value());
        const auto due = dueChanges(*store).value();
        midway += due > 0 ? 1 : 0;
        EXPECT_EQ(faults(), QStringList{}) << round;
        StagedImport next(*importing, everyPause);
        ASSERT_TRUE(next.beginMany());
        next.rollback();
        if (seen() == before) {
            ++nothing;
            EXPECT_EQ(due, 0);
        } else {
            takeAll(*otherWriter, items);
            const QStringList whole = rowsOf(*other, seenNews) + rowsOf(*other, seenLists);
            EXPECT_EQ(seen(), whole.join(u'\n').toStdString()) << round;
        }
        while (next.indexSome().value()) {
        }
        EXPECT_FALSE(needsUpkeep(*store)) << round;
        EXPECT_EQ(faults(), QStringList{}) << round;
    }
    EXPECT_GE(nothing, 3);
    EXPECT_GE(midway, 3);
}

TEST_F(StagedImportTest, AnItemWaitsAsItIs) {
    NewsItem news = std::get<NewsItem>(StoreItem(randomItem()));
    news.story = u"漲停 "_s.repeated(400);
    news.packedStory = {*news.story, packedText(news.story->toUtf8())};
    news.withdrawn = u"wrong"_s;
    news.sequence = 7;
    news.link = u"https://example.org/1"_s;
    const auto back = itemOf(bytesOf(news));
    ASSERT_TRUE(back);
    const auto& same = std::get<NewsItem>(*back);
    EXPECT_EQ(same.story, news.story);
    EXPECT_TRUE(same.packedStory.isOf(*same.story));
    EXPECT_EQ(same.packedStory.bytes, news.packedStory.bytes);
    EXPECT_EQ(bytesOf(*back), bytesOf(news));
    for (const StoreItem& item : {StoreItem(SymbolItem{16, u"23"_s, u"台積電"_s, 1, u"TSMC"_s}),
                                  StoreItem(CategoryItem{1, 4, u"Bonds"_s, u"#ff0000"_s}),
                                  StoreItem(QuoteItem{16, u"23"_s, 1.5, -0.5, 900})})
        EXPECT_EQ(bytesOf(itemOf(bytesOf(item)).value()), bytesOf(item));
    // What is cut off or changed is no item, or another one; it crashes nothing.
    const QByteArray bytes = bytesOf(news);
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(itemOf(bytes.first(length))) << length;
    for (int i = 0; i < 2000; ++i) {
        QByteArray changed = bytes;
        changed[upTo(bytes.size())] = char(upTo(256));
        itemOf(changed);
    }
}

TEST_F(StagedImportTest, OneImportAtATimeTakesMuch) {
    StagedImport first(*store);
    StagedImport second(*importing);
    ASSERT_TRUE(first.beginMany());
    int waited = 0;
    second.onWaiting([&waited, &first] {
        if (++waited == 2)
            first.rollback();
        return true;
    });
    EXPECT_TRUE(second.beginMany());
    EXPECT_EQ(waited, 2);
    first.onWaiting([] { return false; });
    const Done refused = first.beginMany();
    ASSERT_FALSE(refused);
    second.rollback();
    EXPECT_TRUE(first.beginMany());
}

TEST_F(StagedImportTest, WhoWaitsForATurnGetsIt) {
    StagedImport staged(*importing, {.batch = 1h, .leastBatch = 0ms});
    ASSERT_TRUE(staged.beginMany());
    ASSERT_TRUE(staged.take(randomItem()));
    std::atomic<bool> isOver = false;
    std::thread live([this, &isOver] {
        EXPECT_TRUE(writer->begin());
        writer->rollback();
        isOver = true;
    });
    while (!isOver)
        EXPECT_TRUE(staged.take(randomItem()));
    live.join();
}

// Searches find it by and by.
TEST_F(StagedImportTest, TheIndexFollowsInOrder) {
    StagedImport staged(*importing, everyPause);
    ASSERT_TRUE(staged.beginMany());
    for (int i = 0; i < 3000; ++i) {
        NewsItem item = newsItem(1, QString::number(i), at(9, i % 60), u"Copper %1"_s.arg(i));
        item.story = u"Story "_s.repeated(200);
        ASSERT_TRUE(staged.take(item));
    }
    ASSERT_TRUE(staged.commit());
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{u"3000"_s});
    std::vector<std::size_t> finds{found(u"copper"_s)};
    std::vector<std::int64_t> left{unindexedHeadlines(*store).value()};
    while (staged.indexSome().value()) {
        finds.push_back(found(u"copper"_s));
        left.push_back(unindexedHeadlines(*store).value());
        EXPECT_EQ(std::int64_t(finds.back()) + left.back(), 3000);
    }
    EXPECT_EQ(finds.front(), 0U);
    EXPECT_TRUE(std::is_sorted(finds.begin(), finds.end()));
    EXPECT_EQ(finds.back(), 3000U);
    EXPECT_EQ(faults(), QStringList{});
}

}  // namespace

}  // namespace wirepane
