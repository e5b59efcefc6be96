// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/news_search.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "tests/backend/store/store_fixture.h"

#include <QFile>
#include <QFileInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace wirepane {

namespace {

const StoreOptions impatient{.busyTimeout = 20ms};
constexpr auto ownersAlone =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;  // as a file's owner sees it

// Gives up the rights of the super-user for its life, where the tests run as that.
class AsOrdinaryUser {
public:
    AsOrdinaryUser() : changed(geteuid() == 0 && seteuid(65534) == 0) {}
    ~AsOrdinaryUser() {
        if (changed && seteuid(0) != 0)
            std::abort();
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

private:
    bool changed;
};

class StoreAccessTest : public StoreFixture {
protected:
    StoreAccessTest() {
        NewsItem item = newsItem(1, u"a"_s, at(9, 0), u"Copper rises"_s);
        item.story = u"By noon."_s;
        takeNews(item);
    }
    ~StoreAccessTest() override { QFile::setPermissions(folder.path(), ownersAlone | QFile::ExeOwner); }

    QString closedStore() {
        writer.reset();
        store.reset();
        return pathOf(u"news.db"_s);
    }
    // Takes from everybody the right to change the folder and what is in it.
    void freeze() const {
        const auto mayRead = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
        const auto mayEnter = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
        QFile::setPermissions(pathOf(u"news.db"_s), mayRead);
        QFile::setPermissions(folder.path(), mayRead | mayEnter);
    }
    static std::size_t found(Database& database) {
        CSearch condition;
        condition.keywords = {u"copper"_s};
        const auto entries = NewsSearch(database).find(1, condition);
        return entries ? entries->size() : 0;
    }
};

TEST_F(StoreAccessTest, AStoreOnReadOnlyMediaIsSearchedAndReadAndTakesNothingIn) {
    const QString path = closedStore();
    const QByteArray before = bytesOf(path);
    freeze();
    {
        const AsOrdinaryUser user;
        const auto refused = openStore(path, impatient);
        ASSERT_FALSE(refused);
        EXPECT_TRUE(sentence(refused.error()).contains(u"cannot be written to"_s))
            << sentence(refused.error()).toStdString();
        EXPECT_TRUE(sentence(refused.error()).contains(path)) << sentence(refused.error()).toStdString();
        EXPECT_FALSE(openStore(pathOf(u"new.db"_s), impatient));

        const auto read = openStoreToRead(path, impatient);
        ASSERT_TRUE(read) << sentence(read.error()).toStdString();
        EXPECT_TRUE(read.value()->isReadOnly());
        EXPECT_EQ(found(*read.value()), 1U);
        const Result<QStringList> checked = StoreChecker(path).check();
        ASSERT_TRUE(checked) << sentence(checked.error()).toStdString();
        EXPECT_EQ(checked.value(), QStringList{});

        const auto backEnd = EmbeddedBackEnd::open(path);
        ASSERT_TRUE(backEnd) << sentence(backEnd.error()).toStdString();
        std::vector<CHeadlineTable> table;
        backEnd.value()->BKQNEWS_iGetHeadlineTable(1, table, static_cast<int>(TableKind::ByDate),
                                                   u"20260302"_s);
        ASSERT_EQ(table.size(), 1U);
        CStory story;
        EXPECT_TRUE(backEnd.value()->BKQNEWS_bGetStory(story, table.front()));
        EXPECT_TRUE(sentence(backEnd.value()->storeTrouble().value()).contains(u"can only be read"_s));
        const auto taken = backEnd.value()->takeIn(newsItem(1, u"b"_s, at(9, 1), u"Tin falls"_s));
        ASSERT_FALSE(taken);
        EXPECT_TRUE(sentence(taken.error()).contains(u"cannot be written to"_s))
            << sentence(taken.error()).toStdString();
    }
    EXPECT_EQ(bytesOf(path), before);
    EXPECT_FALSE(QFile::exists(pathOf(u"new.db"_s)));
}

// Read without its log, it would lack its newest news, and nobody would know.
TEST_F(StoreAccessTest, AReadOnlyStoreWithALogIsNotReadWithoutIt) {
    ASSERT_TRUE(QFile::copy(store->path(), pathOf(u"copy.db"_s)));
    ASSERT_TRUE(QFile::copy(store->path() + u"-wal"_s, pathOf(u"copy.db-wal"_s)));
    ASSERT_GT(QFileInfo(pathOf(u"copy.db-wal"_s)).size(), 0);
    const auto everybody = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    QFile::setPermissions(pathOf(u"copy.db"_s), everybody);
    QFile::setPermissions(pathOf(u"copy.db-wal"_s), everybody);
    freeze();
    const AsOrdinaryUser user;
    const auto read = openStoreToRead(pathOf(u"copy.db"_s), impatient);
    ASSERT_FALSE(read);
    EXPECT_TRUE(sentence(read.error()).contains(u"copy.db-wal"_s)) << sentence(read.error()).toStdString();
}

TEST_F(StoreAccessTest, ReadingMakesNoStore) {
    EXPECT_FALSE(openStoreToRead(pathOf(u"absent.db"_s), impatient));
    EXPECT_FALSE(QFile::exists(pathOf(u"absent.db"_s)));
    QFile empty(pathOf(u"empty.db"_s));
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    empty.close();
    const auto opened = openStoreToRead(empty.fileName(), impatient);
    ASSERT_FALSE(opened);
    EXPECT_TRUE(sentence(opened.error()).contains(u"is empty"_s)) << sentence(opened.error()).toStdString();
    EXPECT_EQ(QFileInfo(empty).size(), 0);
}

TEST_F(StoreAccessTest, AStoreIsItsOwnersAloneAndAFile) {
    for (const QString& name : {u"news.db"_s, u"news.db-wal"_s, u"news.db-shm"_s})
        EXPECT_EQ(QFile::permissions(pathOf(name)), QFile::Permissions(ownersAlone)) << name.toStdString();
    const auto inMemory = openStore(u":memory:"_s, impatient);
    ASSERT_FALSE(inMemory);
    EXPECT_TRUE(sentence(inMemory.error()).contains(u":memory:"_s))
        << sentence(inMemory.error()).toStdString();
    EXPECT_FALSE(QFile::exists(u":memory:"_s));
}

TEST_F(StoreAccessTest, NothingThatAStoreBringsWithItRuns) {
    ASSERT_TRUE(
        store->execute("CREATE TRIGGER thief AFTER INSERT ON all_headlines BEGIN DELETE FROM stories; END"));
    takeNews(newsItem(1, u"b"_s, at(9, 1), u"Tin falls"_s));
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{u"2"_s});
    EXPECT_EQ(rows("SELECT text FROM stories WHERE headline = 1"), QStringList{u"By noon."_s});
}

// What a reader overlooks, the connection remembers; and what was written on the way is not kept.
TEST_F(StoreAccessTest, DamageThatAnyStatementMeetsIsRememberedAndKeepsNothing) {
    const int page = rows("SELECT rootpage FROM sqlite_schema WHERE name = 'symbols'").constFirst().toInt();
    const int pageSize = rows("PRAGMA page_size").constFirst().toInt();
    QFile file(closedStore());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(qint64{page - 1} * pageSize));
    ASSERT_EQ(file.write(QByteArray(pageSize, '\x5a')), pageSize);
    file.close();

    const auto opened = openStore(file.fileName(), impatient);
    ASSERT_TRUE(opened) << sentence(opened.error()).toStdString();
    Database& database = *opened.value();
    StoreWriter spoilt(database);
    ASSERT_TRUE(spoilt.begin());
    ASSERT_TRUE(spoilt.takeNews(newsItem(1, u"b"_s, at(9, 1), u"Tin falls"_s)));
    EXPECT_FALSE(database.damage());
    Statement symbols(database, "SELECT code FROM symbols");
    EXPECT_FALSE(Query(symbols).next());
    EXPECT_EQ(rowsOf(database, "SELECT 1"), QStringList{u"1"_s}) << "later statements go well";
    EXPECT_TRUE(sentence(database.damage().value()).contains(u"is damaged"_s))
        << sentence(*database.damage()).toStdString();
    const Done kept = spoilt.commit();
    ASSERT_FALSE(kept);
    EXPECT_TRUE(sentence(kept.error()).contains(u"is damaged"_s)) << sentence(kept.error()).toStdString();
    EXPECT_EQ(rowsOf(database, "SELECT count(*) FROM headlines"), QStringList{u"1"_s});
    // News that needs nothing of what is damaged still goes in.
    ASSERT_TRUE(spoilt.begin());
    ASSERT_TRUE(spoilt.takeNews(newsItem(1, u"c"_s, at(9, 2), u"Zinc too"_s)));
    EXPECT_TRUE(spoilt.commit());
}

}  // namespace

}  // namespace wirepane
