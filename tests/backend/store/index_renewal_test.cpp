// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/index_renewal.h"

#include "backend/search/search_rules.h"
#include "backend/store/staged_import.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "backend/words/character_folding.h"
#include "tests/backend/store/store_fixture.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A store whose index the first rules have made: by them "iPhone12" is one word, and 瞭 is not 了.
class IndexRenewalTest : public StoreFixture {
protected:
    void SetUp() override {
        takeSome(400);
        const QByteArray note = "UPDATE search_rules SET fingerprint = " +
                                QByteArray::number(CharacterFolding::first().fingerprint());
        ASSERT_TRUE(store->execute("DROP TABLE news_search"));
        ASSERT_TRUE(store->execute(note.constData()));
        ASSERT_TRUE(
            store->execute("CREATE VIRTUAL TABLE news_search USING fts5(title, story, content='news_text', "
                           "content_rowid='id', tokenize='wirepane', columnsize=0);"
                           "INSERT INTO news_search(news_search) VALUES('rebuild')"));
        writer = std::make_unique<StoreWriter>(*store);
    }
    NewsItem randomNews() {
        const int number = int(random() % 3000);
        NewsItem item = newsItem(1, QString::number(number), at(9, number % 60, number % 40),
                                 u"iPhone12 %1 瞭解"_s.arg(random() % 50));
        item.version = ++version;
        item.story = u"Story %1 "_s.arg(random() % 50).repeated(int(random() % 60));
        return item;
    }
    void takeSome(int count) {
        ASSERT_TRUE(writer->begin());
        for (int i = 0; i < count; ++i)
            ASSERT_TRUE(writer->takeNews(randomNews()));
        ASSERT_TRUE(writer->commit());
    }
    void import(int count) {
        StagedImport staged(*store, {.leastBatch = std::chrono::milliseconds(0)});
        ASSERT_TRUE(staged.beginMany());
        for (int i = 0; i < count; ++i)
            ASSERT_TRUE(staged.take(randomNews()));
        ASSERT_TRUE(staged.commit());
    }
    void trimSome() {
        // By a step the horizon moves, by the next one news leaves.
        for (int step = 0; step < 2; ++step)
            ASSERT_TRUE(writer->trim({.days = 1}, at(9, ++trimmed) + 86'400));
    }
    std::size_t found(const QString& words) {
        const auto count =
            rows(u"SELECT count(*) FROM news_search WHERE news_search MATCH '\"%1\"'"_s.arg(words)
                     .toUtf8()
                     .constData());
        return count.value(0).toULongLong();
    }
    QStringList faults() const { return StoreChecker(store->path()).check().value(); }
    std::size_t newsCount() { return rows("SELECT count(*) FROM headlines").value(0).toULongLong(); }
    void expectPresentIndex() {
        EXPECT_EQ(searchRulesOf(*store), SearchRules::Present);
        EXPECT_EQ(found(u"iphone"_s), newsCount());
        EXPECT_EQ(found(u"iPhone12"_s), newsCount());
        EXPECT_EQ(found(u"了解"_s), newsCount());
        EXPECT_EQ(rows("SELECT name FROM sqlite_schema WHERE name LIKE 'news_search_next%' OR "
                       "name LIKE 'news_search_old%' ORDER BY name"),
                  QStringList{});
        EXPECT_EQ(faults(), QStringList{});
    }

    // Tells of each piece through a pipe.
    [[noreturn]] void renewBesideNews(const QString& path, int pieces) {
        const auto opened = openStore(path);
        if (!opened)
            _exit(1);
        IndexRenewal renewal(*opened.value());
        StoreWriter live(*opened.value());
        for (Result<bool> isMore = true; isMore && isMore.value();) {
            if (live.begin() && live.takeNews(randomNews()))
                (void)live.commit();
            isMore = renewal.renewSome([count = 0]() mutable { return ++count == 7; });
            if (write(pieces, "", 1) != 1)
                _exit(1);
        }
        _exit(0);
    }

    std::mt19937 random{20260302};
    int version = 0;
    int trimmed = 0;
};

// News comes, is replaced and leaves, and imports go on, on both sides of where the new index has come to.
TEST_F(IndexRenewalTest, TheOldIndexAnswersUntilTheNewOneHasAll) {
    const auto old = openStore(store->path());
    ASSERT_TRUE(old);
    EXPECT_EQ(searchRulesOf(*old.value()), SearchRules::Earlier) << "nothing is done at opening";
    IndexRenewal renewal(*store);
    StagedImport upkeep(*store);
    std::vector<int> percents;
    Result<bool> isMore = true;
    for (int round = 0; isMore && isMore.value(); ++round) {
        if (const auto percent = renewalPercent(*store)) {
            percents.push_back(*percent);
            EXPECT_EQ(found(u"iphone"_s), 0U);
            EXPECT_EQ(found(u"了解"_s), 0U);
            EXPECT_EQ(found(u"iPhone12"_s), newsCount());
        }
        if (round < 12) {
            takeSome(20);
            trimSome();
            if (round % 3 == 1)
                import(30);
            while (ImportUpkeep(*store).indexSome([] { return false; }).value()) {
            }
            EXPECT_EQ(faults(), QStringList{}) << round;
        }
        isMore = renewal.renewSome([count = 0]() mutable { return ++count == 60; });
    }
    ASSERT_TRUE(isMore) << sentence(isMore.error()).toStdString();
    EXPECT_GT(percents.size(), 5U);
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    expectPresentIndex();
    takeSome(50);
    trimSome();
    expectPresentIndex();
    EXPECT_EQ(rowsOf(*old.value(), "SELECT count(*) > 0 FROM news_search('iphone')"), QStringList{u"1"_s})
        << "to whoever had it open as well";
}

TEST_F(IndexRenewalTest, AKillLosesNothing) {
    const QString path = store->path();
    int kills = 0;
    for (int round = 0; needsRenewal(*store); ++round) {
        ASSERT_LT(round, 400);
        // The other process inherits no connection.
        writer.reset();
        store.reset();
        version += 1000;
        int pieces[2];
        ASSERT_EQ(pipe(pieces), 0);
        const pid_t worker = fork();
        if (worker == 0)
            renewBesideNews(path, pieces[1]);
        close(pieces[1]);
        char piece = 0;
        for (auto left = 1 + random() % 12; left > 0 && read(pieces[0], &piece, 1) == 1; --left) {
        }
        close(pieces[0]);
        usleep(unsigned(random() % 3000));
        kill(worker, SIGKILL);
        int status = 0;
        waitpid(worker, &status, 0);
        kills += int(WIFSIGNALED(status));
        store = std::move(openStore(path).value());
        const bool isOld = renewalPercent(*store).has_value();
        EXPECT_EQ(found(u"iphone"_s), isOld ? 0 : newsCount()) << round;
        EXPECT_EQ(found(u"iPhone12"_s), newsCount()) << round;
        EXPECT_EQ(faults(), QStringList{}) << round;
    }
    EXPECT_GT(kills, 2);
    expectPresentIndex();
}

TEST_F(IndexRenewalTest, AStoreThatCannotBeWrittenToIsSearchedByItsOwnRules) {
    takeSome(1);
    const QString path = store->path();
    const auto reading = Database::openToRead(path, std::chrono::seconds(1));
    ASSERT_TRUE(reading);
    EXPECT_EQ(rowsOf(*reading.value(), "SELECT count(*) FROM news_search('iphone')"), QStringList{u"0"_s});
    EXPECT_EQ(rowsOf(*reading.value(), "SELECT count(*) > 0 FROM news_search('iphone12')"),
              QStringList{u"1"_s});
}

}  // namespace

}  // namespace wirepane
