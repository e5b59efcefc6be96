// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Taking in on the store's own thread, beside look-ups on this one.
#include "host/contract/clock.h"
#include "tests/backend/store/listener.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/backend/store/take_all.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTest>

#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr unsigned char service = 1;
constexpr int categories = 3;
const CSymbolInfo symbol{16, u"2330"_s};

using Titles = std::map<std::pair<std::int64_t, std::int32_t>, QString>;  // by time and number

// A list as views keep it: what was read, then what is told and was not in it when it was read.
struct KeptList {
    std::int64_t position = 0;
    Titles rows;
    bool isRead = false;
};

// Keeps a list of a day, a category and a symbol, each read anew at any moment.
class Reader : public NewsReceiver, public GoneHeadlineReceiver {
public:
    explicit Reader(EmbeddedBackEnd& store) : backEnd(store) {}

    void read(std::size_t which) {
        KeptList& list = lists.at(which);
        list = {backEnd.readPosition(), {}, true};
        std::vector<CHeadlineTable> table;
        if (which == 0)
            backEnd.BKQNEWS_iGetHeadlineTable(service, table, 0, u"20260302"_s);
        else if (which == 1)
            backEnd.BKQNEWS_iGetHeadlineTable(service, table, 1, u"1"_s);
        else
            backEnd.BKQNEWS_iGetHeadlineTable(table, service, {symbol.market, symbol.code});
        std::vector<CHeadline> headlines;
        EXPECT_EQ(backEnd.BKQNEWS_iGetHeadline(service, headlines, table), int(table.size()));
        for (const CHeadline& headline : headlines)
            list.rows[{headline.time, headline.sequence}] = headline.title;
        EXPECT_EQ(list.rows.size(), table.size()) << "no row twice";
    }
    void RecvNewHeadLine(const CHeadline* headline, const QString& category, const QString& code) override {
        const bool belongs[] = {true, category == u"1"_s, code == symbol.code};
        for (std::size_t which = 0; which < lists.size(); ++which) {
            KeptList& list = lists.at(which);
            if (!list.isRead || backEnd.positionTold() <= list.position)
                continue;
            if (belongs[which])
                list.rows[{headline->time, headline->sequence}] = headline->title;
            else
                list.rows.erase({headline->time, headline->sequence});
        }
        ++told;
    }
    void headlineReplaced(const CHeadline*, const QString&, const QString&) override {}
    void headlineGone(const HeadlineKey& key) override {
        for (KeptList& list : lists)
            list.rows.erase({key.time, key.sequence});
    }

    std::array<KeptList, 3> lists;
    int told = 0;

private:
    EmbeddedBackEnd& backEnd;
};

class StoreIntakeTest : public StoreFixture {
protected:
    StoreIntakeTest() { host_clock::startAt(at(23, 0)); }

    NewsItem randomItem() {
        const auto number = static_cast<int>(random() % 400);
        NewsItem item = newsItem(service, QString::number(number), at(9, static_cast<int>(random() % 60)),
                                 u"Title %1"_s.arg(++version));
        item.version = version;
        item.categoryId = static_cast<int>(random() % categories);
        if (random() % 2 == 0)
            item.related = {symbol};
        return item;
    }
    std::vector<NewsItem> randomItems(std::size_t most) {
        std::vector<NewsItem> items;
        for (auto left = random() % most; left > 0; --left)
            items.push_back(randomItem());
        return items;
    }
    // Also one that another piece of news of the batch replaces. Who finds the store busy tries again, as
    // sources do.
    static void takeInto(StoreWriter& into, const std::vector<NewsItem>& items) {
        int tries = 100;
        while (!into.begin() && --tries > 0) {
        }
        EXPECT_GT(tries, 0);
        for (const NewsItem& item : items)
            EXPECT_TRUE(into.take(item));
        EXPECT_TRUE(into.commit());
    }

    std::mt19937 random{20260302};
    int version = 0;
};

// Lists that are read at any moment between taking in and telling end as lists that are read now.
TEST_F(StoreIntakeTest, WhatIsReadWhileNewsIsTakenInIsNeitherToldAgainNorMissed) {
    EmbeddedBackEnd backEnd(connectionsTo(store->path()));
    Reader reader(backEnd);
    backEnd.attach(&reader);
    int asked = 0;
    int done = 0;
    for (int round = 0; round < 400; ++round) {
        const std::size_t most = random() % 50 == 0 ? 1500 : 20;
        const std::vector<NewsItem> items = randomItems(most);
        if (random() % 8 == 0) {
            takeInto(*writer, items);  // another program
            backEnd.checkForNews();
        } else {
            ++asked;
            backEnd.ask([items](StoreWriter& into) { takeInto(into, items); }, [&done] { ++done; });
        }
        for (auto left = random() % 4; left > 0; --left) {
            reader.read(random() % reader.lists.size());
            QCoreApplication::processEvents();
        }
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return done == asked && backEnd.isDelivered(); }, 20000));
    backEnd.checkForNews();
    EXPECT_TRUE(QTest::qWaitFor([&] { return backEnd.isDelivered(); }, 20000));
    Reader fresh(backEnd);
    for (std::size_t which = 0; which < fresh.lists.size(); ++which) {
        fresh.read(which);
        EXPECT_EQ(reader.lists.at(which).rows, fresh.lists.at(which).rows) << which;
    }
    EXPECT_GT(reader.told, 400);
    backEnd.detach(&reader);
}

// A reader that never lets go would make the log grow for good, whoever writes.
TEST_F(StoreIntakeTest, TheLogStaysShortWhileNewsComesWithoutAPause) {
    constexpr int pieces = 64;
    constexpr qint64 bytes = 1 << 20;
    const auto itemOf = [](int number) {
        NewsItem item = newsItem(service, QString::number(number), at(9, number % 60), u"T"_s);
        item.story = noise(bytes * 3 / 2, unsigned(number));
        return item;
    };
    const auto isShort = [this](int piecesInFile) {
        EXPECT_LT(QFileInfo(store->path() + u"-wal"_s).size(), pieces * bytes / 2);
        EXPECT_GT(QFileInfo(store->path()).size(), piecesInFile * bytes);
    };
    EmbeddedBackEnd backEnd(connectionsTo(store->path()));
    int done = 0;
    for (int i = 0; i < pieces; ++i)
        backEnd.ask([item = itemOf(i)](StoreWriter& into) { takeInto(into, {item}); }, [&done] { ++done; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return done == pieces; }, 60000));
    isShort(pieces / 2);
    for (int i = 0; i < pieces; ++i) {
        takeInto(*writer, {itemOf(pieces + i)});
        backEnd.checkForNews();
        backEnd.run({});
    }
    isShort(pieces * 3 / 2);
}

// While another program writes, or much is taken in, whoever looks up does not wait.
TEST_F(StoreIntakeTest, NobodyWaitsForAStoreThatIsBusy) {
    EmbeddedBackEnd backEnd(connectionsTo(store->path()));
    ASSERT_TRUE(takeAll<NewsItem>(backEnd, {newsItem(service, u"a"_s, at(9, 0), u"A"_s)}));
    ASSERT_TRUE(writer->begin());
    bool isDone = false;
    bool hasBegun = true;
    backEnd.ask([&hasBegun](StoreWriter& into) { hasBegun = bool(into.begin()); }, [&] { isDone = true; });
    Reader reader(backEnd);
    reader.read(0);
    EXPECT_EQ(reader.lists[0].rows.size(), 1U);
    EXPECT_FALSE(isDone);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
    EXPECT_FALSE(hasBegun);
    writer->rollback();
}

// Nobody waits for the end of a large file to end the program; nothing of it stays.
TEST_F(StoreIntakeTest, TheEndGivesUpWhatIsUnderWay) {
    std::atomic<int> taken = 0;
    {
        EmbeddedBackEnd backEnd(connectionsTo(store->path()));
        backEnd.ask(
            [&taken](StoreWriter& into) {
                ASSERT_TRUE(into.begin());
                while (into.take(newsItem(service, QString::number(taken), at(9, 0), u"T"_s)))
                    ++taken;
            },
            {});
        EXPECT_TRUE(QTest::qWaitFor([&taken] { return taken > 10; }));
    }
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{u"0"_s});
}

}  // namespace

}  // namespace wirepane
