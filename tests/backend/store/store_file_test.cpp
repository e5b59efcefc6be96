// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_file.h"

#include "backend/database/migrations.h"
#include "backend/database/transaction.h"
#include "backend/store/schema.h"
#include "backend/store/store_checker.h"
#include "backend/words/search_tokenizer.h"
#include "tests/backend/store/store_fixture.h"

#include <QFile>

#include <array>
#include <barrier>
#include <random>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace wirepane {

namespace {

const StoreOptions impatient{.busyTimeout = 20ms};

// Makes a store what it would be, had only the first version of the schema ever been.
constexpr const char* toFirstVersion =
    "PRAGMA user_version = 1; DROP VIEW headlines; DROP VIEW shown_symbols; DROP TABLE import_blocks; "
    "DROP TABLE held_links; DROP TABLE set_aside; ALTER TABLE all_headlines RENAME TO headlines; "
    "DROP TABLE diary_head; DROP TABLE alerts; DROP TABLE alert_state; DROP TABLE day_prices; DROP TABLE "
    "held_changes; DROP TABLE "
    "due_changes; DROP TABLE marks; DROP TABLE "
    "marks_begin; DROP TABLE "
    "index_renewal; DROP TABLE versions; DROP TABLE "
    "withdrawals; DROP TABLE sources; DROP TABLE "
    "source_list; DROP TABLE "
    "source_states; DROP TABLE item_origins; "
    "ALTER TABLE symbols DROP COLUMN english_name; DROP TABLE retention; DROP TABLE quotes; DROP TABLE "
    "search_rules; DROP TABLE arrivals; DROP TABLE "
    "feed_positions; "
    "DROP TABLE news_search; CREATE VIRTUAL TABLE news_search USING fts5("
    "title, story, content='news_text', content_rowid='id', tokenize='unicode61');"
    "INSERT INTO news_search(news_search) VALUES('rebuild')";

class StoreFileTest : public StoreFixture {
protected:
    // Closes the store, so that its file holds everything.
    QString closedStore() {
        writer.reset();
        store.reset();
        return pathOf(u"news.db"_s);
    }
    void fill(int count) {
        ASSERT_TRUE(writer->begin());
        for (int i = 0; i < count; ++i) {
            NewsItem item = newsItem(1, QString::number(i), at(9, 0, i % 60), u"Headline %1"_s.arg(i));
            item.story = u"Story %1 of the day."_s.arg(i).repeated(20);
            item.related = {{16, QString::number(1000 + i % 7)}};
            ASSERT_TRUE(writer->takeNews(item));
        }
        ASSERT_TRUE(writer->commit());
    }
};

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

std::unique_ptr<Database> plainDatabase(const QString& path, const char* sql) {
    auto opened = Database::open(path, Database::Mode::Create, 20ms);
    EXPECT_TRUE(opened);
    EXPECT_TRUE(opened.value()->execute(sql)) << sentence(opened.value()->failure()).toStdString();
    return std::move(opened.value());
}

TEST_F(StoreFileTest, ANewStoreHasItsServicesAndKeepsWhatItHoldsWhenOpenedAgain) {
    const char* const listing =
        "SELECT services.id, full_name, count(category), min(category) FROM services "
        "JOIN service_categories ON service = services.id GROUP BY services.id ORDER BY position";
    const QStringList expected{u"1|General News|6|1"_s,    u"2|Market News|6|1"_s,
                               u"16|Stock Exchange|5|1"_s, u"22|Hong Kong Market|5|1"_s,
                               u"52|Warrants|4|1"_s,       u"122|Emerging Board|4|1"_s};
    EXPECT_EQ(rows(listing), expected);
    fill(3);
    const auto again = openStore(closedStore());
    ASSERT_TRUE(again);
    EXPECT_EQ(rowsOf(*again.value(), listing), expected);
    EXPECT_EQ(rowsOf(*again.value(), "SELECT count(*) FROM headlines"), QStringList{u"3"_s});
    // An empty file is as good as none.
    write(pathOf(u"empty.db"_s), {});
    EXPECT_TRUE(openStore(pathOf(u"empty.db"_s)));
}

TEST_F(StoreFileTest, TheSearchKnowsItsTokenizer) {
    EXPECT_EQ(rows("SELECT sql LIKE '%tokenize=''wirepane %' FROM sqlite_schema WHERE name = 'news_search'"),
              QStringList{u"1"_s});
    EXPECT_STREQ(searchTokenizer, "wirepane");
    takeNews(newsItem(1, u"a"_s, at(9, 0), u"Zürich exchange"_s));
    EXPECT_EQ(rows("SELECT rowid FROM news_search('zurich')"), QStringList{u"1"_s});
}

// An index of the first version, or of a program that folded characters otherwise, is made anew at opening.
TEST_F(StoreFileTest, AnIndexOfOtherRulesIsMadeAnew) {
    takeNews(newsItem(1, u"a"_s, at(9, 0), u"臺積電 rises"_s));
    const QString path = closedStore();
    const auto found = [&] {
        const auto opened = openStore(path);
        EXPECT_TRUE(opened);
        return opened ? rowsOf(*opened.value(), "SELECT rowid FROM news_search('\"积电\"')") : QStringList();
    };
    const std::vector<const char*> earlier{
        "UPDATE search_rules SET fingerprint = 1; INSERT INTO news_search(news_search) VALUES('delete-all')",
        toFirstVersion};
    for (const char* sql : earlier) {
        plainDatabase(path, sql);
        EXPECT_EQ(found(), QStringList{u"1"_s}) << sql;
        const auto faults = StoreChecker(path).check();
        ASSERT_TRUE(faults);
        EXPECT_EQ(faults.value(), QStringList());
    }
    plainDatabase(path, earlier.back());
    const auto unopened = StoreChecker(path).check();
    ASSERT_FALSE(unopened);
    EXPECT_TRUE(sentence(unopened.error()).contains(u"is of version 1"_s))
        << sentence(unopened.error()).toStdString();
}

TEST_F(StoreFileTest, TellsHowFarAnIndexIsMadeAnew) {
    fill(4500);
    const QString path = closedStore();
    std::vector<std::pair<std::int64_t, std::int64_t>> told;
    const StoreOptions options{
        .onIndexing = [&told](std::int64_t done, std::int64_t total) { told.emplace_back(done, total); }};
    ASSERT_TRUE(openStore(path, options));
    EXPECT_TRUE(told.empty()) << "the index is good";
    plainDatabase(path, "UPDATE search_rules SET fingerprint = 1");
    const auto opened = openStore(path, options);
    ASSERT_TRUE(opened);
    EXPECT_EQ(told, (decltype(told){{2000, 4500}, {4000, 4500}, {4500, 4500}}));
    EXPECT_EQ(rowsOf(*opened.value(), "SELECT count(*) FROM news_search('headline')"),
              QStringList{u"4500"_s});
}

TEST_F(StoreFileTest, MigrationsRunOnceInOrderAndAllOrNothing) {
    const auto database = plainDatabase(pathOf(u"m.db"_s), "PRAGMA user_version = 1; CREATE TABLE a(x)");
    const char* const steps[] = {"CREATE TABLE a(x)", "CREATE TABLE b(x); INSERT INTO b VALUES(2)",
                                 "UPDATE b SET x = x + 1"};
    EXPECT_TRUE(migrate(*database, steps));
    EXPECT_TRUE(migrate(*database, steps));
    EXPECT_EQ(rowsOf(*database, "SELECT x FROM b"), QStringList{u"3"_s});
    EXPECT_EQ(rowsOf(*database, "PRAGMA user_version"), QStringList{u"3"_s});

    const char* const broken[] = {"", "", "", "UPDATE b SET x = 9", "UPDATE c SET x = 9"};
    {
        Transaction transaction(*database);
        ASSERT_TRUE(transaction.hasBegun());
        EXPECT_FALSE(migrate(*database, broken));
    }
    EXPECT_TRUE(sentence(database->failure()).contains(u"no such table: c"_s))
        << sentence(database->failure()).toStdString();
    EXPECT_EQ(rowsOf(*database, "SELECT x FROM b"), QStringList{u"3"_s});
    EXPECT_EQ(rowsOf(*database, "PRAGMA user_version"), QStringList{u"3"_s});
}

TEST_F(StoreFileTest, AStoreOfTheFirstVersionIsBroughtUpToDateWithItsNews) {
    fill(3);
    ASSERT_TRUE(store->execute(toFirstVersion));
    const auto again = openStore(closedStore());
    ASSERT_TRUE(again) << sentence(again.error()).toStdString();
    EXPECT_EQ(rowsOf(*again.value(), "SELECT count(*) FROM headlines"), QStringList{u"3"_s});
    StoreWriter later(*again.value());
    ASSERT_TRUE(later.begin() && later.takeNews(newsItem(1, u"new"_s, at(9, 5), u"New"_s)) && later.commit());
    EXPECT_EQ(rowsOf(*again.value(), "SELECT title FROM arrivals JOIN headlines ON id = headline"),
              QStringList{u"New"_s});
}

TEST_F(StoreFileTest, AFileThatIsNoUsableStoreIsNamedAndLeftAlone) {
    fill(200);
    const QByteArray good = bytesOf(closedStore());
    ASSERT_GT(good.size(), 50'000);
    const auto patched = [&](qsizetype from, const QByteArray& bytes) {
        return QByteArray(good).replace(from, bytes.size(), bytes);
    };
    struct Case {
        const char* what;
        QByteArray bytes;
        QString expected;
    };
    const Case cases[] = {
        {"a single byte", "x", u"is not a news store"_s},
        {"a text", QByteArray("This is a letter, not a store. ").repeated(200), u"is not a news store"_s},
        {"a newer store", patched(60, QByteArray("\0\0\0\x7f", 4)), u"newer version"_s},
        {"another program's database", patched(68, "ABCD"), u"but not a news store"_s},
        {"one that says nothing of itself", patched(60, QByteArray(12, '\0')), u"but not a news store"_s},
        {"a store cut in the middle", good.first(good.size() / 2), u"is damaged"_s},
        {"a store cut within its first page", good.first(700), u"is damaged"_s},
        {"a store with a spoilt list of tables", patched(100, QByteArray(2000, '\x5a')), u"is damaged"_s},
        {"a store with a spoilt start", patched(0, QByteArray(40, '\x5a')), u"is not a news store"_s},
    };
    const QString path = pathOf(u"case.db"_s);
    for (const Case& one : cases) {
        write(path, one.bytes);
        const auto opened = openStore(path, impatient);
        ASSERT_FALSE(opened) << one.what;
        EXPECT_TRUE(sentence(opened.error()).contains(one.expected))
            << one.what << ": " << sentence(opened.error()).toStdString();
        EXPECT_TRUE(sentence(opened.error()).contains(path)) << one.what;
        EXPECT_EQ(bytesOf(path), one.bytes) << one.what;
        QFile::remove(path + u"-wal"_s);
        QFile::remove(path + u"-shm"_s);
    }
    EXPECT_FALSE(openStore(folder.path(), impatient));
    EXPECT_FALSE(openStore(pathOf(u"no/such/folder.db"_s), impatient));
    EXPECT_FALSE(openStore({}, impatient));
}

TEST_F(StoreFileTest, AStoreThatIsInUseElsewhereSaysSo) {
    const auto second = openStore(pathOf(u"news.db"_s), impatient);
    ASSERT_TRUE(second);
    StoreWriter other(*second.value());
    ASSERT_TRUE(writer->begin());
    EXPECT_TRUE(openStore(pathOf(u"news.db"_s), impatient))
        << "opening one that is up to date writes nothing";
    const Done begun = other.begin();
    ASSERT_FALSE(begun);
    EXPECT_TRUE(sentence(begun.error()).contains(u"is being used by another program"_s))
        << sentence(begun.error()).toStdString();
    ASSERT_TRUE(writer->commit());
    EXPECT_TRUE(other.begin());
    other.rollback();

    const QString path = pathOf(u"locked.db"_s);
    const auto holder = plainDatabase(path, "CREATE TABLE t(x); BEGIN EXCLUSIVE");
    const auto locked = openStore(path, impatient);
    ASSERT_FALSE(locked);
    EXPECT_TRUE(sentence(locked.error()).contains(u"is being used by another program"_s))
        << sentence(locked.error()).toStdString();
}

TEST_F(StoreFileTest, ThoseWhoMakeOneStoreTogetherAllGetIt) {
    for (int round = 0; round < 20; ++round) {
        const QString path = pathOf(u"new-%1.db"_s.arg(round));
        std::barrier together(4);
        std::array<QString, 4> faults;
        std::vector<std::thread> makers;
        for (QString& fault : faults) {
            makers.emplace_back([&path, &together, &fault] {
                together.arrive_and_wait();
                const auto opened = openStore(path);
                if (!opened)
                    fault = sentence(opened.error());
            });
        }
        for (std::thread& maker : makers)
            maker.join();
        for (const QString& fault : faults)
            ASSERT_EQ(fault, QString()) << round;
    }
}

TEST_F(StoreFileTest, AFullDiskTakesBackTheTransactionAndNothingElse) {
    fill(20);
    const QStringList before = rows("SELECT identity, title FROM headlines ORDER BY id");
    // The same answer as a full disk gives.
    const int pages = rows("PRAGMA page_count").constFirst().toInt();
    ASSERT_TRUE(store->execute(("PRAGMA max_page_count = " + std::to_string(pages + 40)).c_str()));
    ASSERT_TRUE(writer->begin());
    NewsItem item = newsItem(1, u"big"_s, at(10, 0), u"Big"_s);
    item.story = noise(1'000'000);
    const Result<StoredNews> stored = writer->takeNews(item);
    ASSERT_FALSE(stored);
    EXPECT_TRUE(sentence(stored.error()).contains(u"the disk is full"_s))
        << sentence(stored.error()).toStdString();
    EXPECT_FALSE(writer->commit());
    EXPECT_EQ(rows("SELECT identity, title FROM headlines ORDER BY id"), before);
    // With room again, the same item goes in.
    ASSERT_TRUE(store->execute("PRAGMA max_page_count = 1000000"));
    EXPECT_EQ(takeNews(item).outcome.take, Take::TakenIn);
    EXPECT_EQ(StoreChecker(pathOf(u"news.db"_s)).check().value(), QStringList{});
}

// Whatever is damaged: no crash, no hang, and what fails says that the store is damaged.
TEST_F(StoreFileTest, DamageAnywhereIsSurvived) {
    fill(300);
    const QByteArray good = bytesOf(closedStore());
    const QString path = pathOf(u"spoilt.db"_s);
    std::mt19937 random(20260302);
    int noticed = 0;
    for (int round = 0; round < 60; ++round) {
        QByteArray bytes = good;
        for (int i = 0; i < 40; ++i)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(random());
        write(path, bytes);
        QFile::remove(path + u"-wal"_s);
        QFile::remove(path + u"-shm"_s);
        const Result<QStringList> checked = StoreChecker(path).check();
        noticed += !checked || !checked.value().isEmpty() ? 1 : 0;
        const auto opened = openStore(path, impatient);
        if (!opened)
            continue;
        StoreWriter spoilt(*opened.value());
        if (const Done begun = spoilt.begin(); !begun) {
            EXPECT_TRUE(sentence(begun.error()).contains(path)) << sentence(begun.error()).toStdString();
            continue;
        }
        for (int i = 0; i < 40; ++i) {
            NewsItem item = newsItem(1, QString::number(i), at(9, 0), u"Again"_s);
            item.version = 1;
            const Result<StoredNews> stored = spoilt.takeNews(item);
            if (!stored) {
                EXPECT_TRUE(sentence(stored.error()).contains(path))
                    << sentence(stored.error()).toStdString();
                break;
            }
        }
        spoilt.rollback();
    }
    // Bytes that nothing reads may change unnoticed; most may not.
    EXPECT_GT(noticed, 40);
}

}  // namespace

}  // namespace wirepane
