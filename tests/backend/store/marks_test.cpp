// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "tests/backend/store/store_fixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr MarkChange read{.state = ReadingState::Read};
constexpr MarkChange seen{.state = ReadingState::Seen};
constexpr MarkChange unread{.state = ReadingState::New};
constexpr MarkChange starred{.isStarred = true};

// "read*" and the like; with the moments where they are asked for.
QString told(const ReadingMark& mark) {
    static const QStringList states{u"new"_s, u"seen"_s, u"read"_s};
    return states[int(mark.state)] + (mark.isStarred ? u"*"_s : QString()) +
           (mark.wasRead ? u" before"_s : QString());
}

TEST(ReadingMarkTest, WhatWasReadStaysReadUntilItIsMarkedUnread) {
    const struct {
        QList<MarkChange> changes;
        QString mark;
        std::int64_t shown;
        std::int64_t opened;
    } cases[] = {
        {{}, u"new"_s, 0, 0},
        {{seen}, u"seen"_s, 1, 0},
        {{read}, u"read"_s, 1, 1},
        {{seen, read, read}, u"read"_s, 1, 2},
        {{read, seen}, u"read"_s, 1, 1},
        {{read, unread}, u"new"_s, 1, 1},
        {{read, unread, seen}, u"seen"_s, 1, 1},
        {{starred, read}, u"read*"_s, 2, 2},
    };
    for (const auto& one : cases) {
        ReadingMark mark;
        MarkChange together;
        std::int64_t moment = 0;
        for (const MarkChange& change : one.changes) {
            mark = changedMark(mark, change, ++moment);
            together = joined(together, change);
        }
        EXPECT_EQ(told(mark), one.mark);
        EXPECT_EQ(mark.shown, one.shown) << one.mark.toStdString();
        EXPECT_EQ(mark.opened, one.opened) << one.mark.toStdString();
        EXPECT_EQ(told(changedMark({}, together, 1)), one.mark) << "in one";
    }
}

class MarksTest : public StoreFixture {
protected:
    MarksTest() { store->execute("UPDATE marks_begin SET moment = 0"); }
    NewsItem news(const QString& identity, int second, int version = 1, const QString& title = u"Tin"_s) {
        NewsItem item = newsItem(1, identity, at(9, 0) + second, title);
        item.version = version;
        item.story = u"Tin rose"_s;
        return item;
    }
    HeadlineKey take(const NewsItem& item) {
        EXPECT_TRUE(writer->begin());
        const Result<StoredNews> stored = writer->takeNews(item);
        EXPECT_TRUE(stored && writer->commit());
        return stored.value().key;
    }
    std::unique_ptr<EmbeddedBackEnd> opened() {
        return std::move(EmbeddedBackEnd::open(store->path()).value());
    }
    QString kept(const HeadlineKey& key) { return told(MarkBook(*store).find(key)); }
};

TEST_F(MarksTest, HoldAtOnceAreToldAndAreKeptWhenTheStoreIsClosed) {
    const HeadlineKey first = take(news(u"a"_s, 0));
    const HeadlineKey second = take(news(u"b"_s, 1));
    {
        const auto backEnd = opened();
        std::size_t changes = 0;
        QObject::connect(&backEnd->markTeller(), &MarkTeller::changed, &backEnd->markTeller(),
                         [&](const std::vector<HeadlineKey>& keys) { changes += keys.size(); });
        backEnd->changeMarks({first, second}, read);
        backEnd->changeMarks({second}, starred);
        EXPECT_EQ(told(backEnd->markOf(first)), u"read"_s);
        EXPECT_EQ(told(backEnd->markOf(second)), u"read*"_s);
        EXPECT_EQ(changes, 3U);
    }
    EXPECT_EQ(kept(first), u"read"_s);
    EXPECT_EQ(kept(second), u"read*"_s);
    const auto again = opened();
    EXPECT_EQ(told(again->markOf(second)), u"read*"_s);
    again->changeMarks({second}, {.isStarred = false});
    again->run([](StoreWriter&) {});
    EXPECT_EQ(told(again->markOf(second)), u"read"_s) << "while it waits to be written";
    EXPECT_EQ(StoreChecker(store->path()).check().value(), QStringList());
}

TEST_F(MarksTest, AVersionKeepsWhenItWasReadAndTheNextOneIsReadAnew) {
    host_clock::startAt(at(9, 0));
    const HeadlineKey first = take(news(u"a"_s, 0));
    const HeadlineKey crossed = take(news(u"b"_s, 0));
    const std::int64_t heard = ArrivalLog(*store).last().value();
    ASSERT_TRUE(MarkBook(*store).change(first, read, at(9, 10), heard));
    host_clock::startAt(at(9, 10, 40));
    const HeadlineKey second = take(news(u"a"_s, 0, 2, u"Lead"_s));
    const auto versions = [&](const HeadlineKey& key) { return StoreReader(*store).versions(key); };
    ASSERT_EQ(versions(second).size(), 1U);
    EXPECT_EQ(versions(second)[0].opened, at(9, 10));
    EXPECT_NEAR(double(versions(second)[0].replaced), double(at(9, 10, 40)), 2);
    EXPECT_EQ(MarkBook(*store).find(second).opened, 0);
    EXPECT_EQ(kept(second), u"new before"_s);
    ASSERT_TRUE(MarkBook(*store).change(second, read, at(9, 20), ArrivalLog(*store).last().value()));
    take(news(u"a"_s, 0, 3, u"Zinc"_s));
    const HeadlineKey fourth = take(news(u"a"_s, 0, 4, u"Iron"_s));
    std::vector<std::int64_t> moments;
    for (const NewsVersion& version : versions(fourth))
        moments.push_back(version.opened);
    EXPECT_EQ(moments, (std::vector<std::int64_t>{at(9, 10), at(9, 20), 0}));
    // Read while the correction was on its way.
    const HeadlineKey corrected = take(news(u"b"_s, 0, 2, u"Lead"_s));
    ASSERT_TRUE(MarkBook(*store).change(crossed, read, at(9, 30), heard));
    EXPECT_EQ(kept(corrected), u"new before"_s);
    EXPECT_EQ(versions(corrected)[0].opened, at(9, 30));
}

// More than is written at once; what a hand marks meanwhile is not undone by what is still to come.
TEST_F(MarksTest, LongListsAreMarkedAPortionAtATimeInTheOrderGiven) {
    constexpr int count = 5000;
    std::vector<HeadlineKey> keys;
    EXPECT_TRUE(writer->begin());
    for (int i = 0; i < count; ++i)
        keys.push_back(writer->takeNews(news(QString::number(i), i)).value().key);
    EXPECT_TRUE(writer->commit());
    {
        const auto backEnd = opened();
        backEnd->changeMarks(keys, read);
        EXPECT_EQ(told(backEnd->markOf(keys.front())), u"read"_s);
        EXPECT_EQ(told(backEnd->markOf(keys.back())), u"new"_s) << "its turn is still to come";
        backEnd->changeMarks({keys.front(), keys.back()}, unread);
        backEnd->changeMarks({keys[count - 2]}, starred);
        EXPECT_TRUE(QTest::qWaitFor([&] { return told(backEnd->markOf(keys[count - 2])) == u"read*"_s; }));
    }
    EXPECT_EQ(kept(keys.front()), u"new"_s);
    EXPECT_EQ(kept(keys.back()), u"new"_s);
    EXPECT_EQ(kept(keys[count - 2]), u"read*"_s);
    {
        const auto backEnd = opened();
        backEnd->changeMarks(keys, unread);
    }
    for (const HeadlineKey& key : keys)
        ASSERT_EQ(kept(key), key == keys[count - 2] ? u"new*"_s : u"new"_s) << "the terminal was closed";
}

TEST_F(MarksTest, WhatWasPublishedBeforeMarksWereKeptIsUnreadOnlyWhereItIsMarkedSo) {
    std::vector<HeadlineKey> keys;
    for (int i = 0; i < 6; ++i)
        keys.push_back(take(news(QString::number(i), i)));
    Statement begin(*store, "UPDATE marks_begin SET moment = ?");
    ASSERT_TRUE(Query(begin, at(9, 0) + 3).run());
    {
        const auto marking = opened();
        marking->changeMarks({keys[1]}, read);
        marking->changeMarks({keys[1], keys[2]}, unread);
        marking->changeMarks({keys[4]}, seen);
    }
    const auto backEnd = opened();
    const auto isAsked = [&](std::size_t most, const std::vector<HeadlineKey>& expected) {
        std::optional<std::vector<HeadlineKey>> found;
        backEnd->findUnread(keys, most, &backEnd->markTeller(),
                            [&](const auto& unreadKeys) { found = unreadKeys; });
        return QTest::qWaitFor([&] { return found.has_value(); }) && *found == expected;
    };
    EXPECT_TRUE(isAsked(10, {keys[1], keys[2], keys[5]}));
    EXPECT_TRUE(isAsked(2, {keys[1], keys[2]}));
    keys = {keys[0], keys[3]};
    EXPECT_TRUE(isAsked(10, {}));
}

TEST_F(MarksTest, WhatAnotherTerminalMarksIsToldAndShown) {
    const HeadlineKey key = take(news(u"a"_s, 0));
    const auto here = opened();
    EXPECT_EQ(told(here->markOf(key)), u"new"_s);
    bool isTold = false;
    QObject::connect(&here->markTeller(), &MarkTeller::changed, &here->markTeller(), [&] { isTold = true; });
    opened()->changeMarks({key}, read);
    here->checkForNews();
    here->run([](StoreWriter&) {});
    EXPECT_TRUE(isTold);
    EXPECT_EQ(told(here->markOf(key)), u"read"_s);
}

TEST_F(MarksTest, NewsThatIsCorrectedAfterItWasReadIsNewAgain) {
    const struct {
        const char* what;
        MarkChange mark;
        QString title;
        int second;
        QString after;
    } cases[] = {
        {"another title", read, u"Zinc"_s, 1, u"new before"_s},
        {"another time", read, u"Zinc"_s, 50, u"new before"_s},
        {"the same again", read, u"Tin"_s, 1, u"read"_s},
        {"only seen", seen, u"Zinc"_s, 1, u"seen"_s},
    };
    for (const auto& one : cases) {
        const QString identity = QString::fromLatin1(one.what);
        const HeadlineKey key = take(news(identity, 0));
        const auto backEnd = opened();
        backEnd->changeMarks({key}, one.mark);
        backEnd->changeMarks({key}, starred);
        EXPECT_EQ(backEnd->markOf(key).state, one.mark.state);
        Result<StoredNews> stored = StoredNews();
        backEnd->run([&](StoreWriter& taking) {
            EXPECT_TRUE(taking.begin());
            stored = taking.takeNews(news(identity, one.second, 2, one.title));
            EXPECT_TRUE(stored && taking.commit());
        });
        const QString expected = one.after.startsWith(u"new"_s) ? u"new* before"_s : one.after + u'*';
        EXPECT_EQ(told(backEnd->markOf(stored.value().key)), expected) << one.what;
        backEnd->changeMarks({stored.value().key}, read);
        EXPECT_EQ(told(backEnd->markOf(stored.value().key)), u"read*"_s) << one.what;
    }
}

// Whoever marks it has read what it was before.
TEST_F(MarksTest, NewsThatWasCorrectedBeforeTheReaderHeardOfItIsNewAgain) {
    const struct {
        const char* what;
        MarkChange mark;
        QString title;
        QString story;
        int second;
        QString after;
    } cases[] = {
        {"another title", read, u"Zinc"_s, u"Tin rose"_s, 1, u"new before"_s},
        {"another story", read, u"Tin"_s, u"Tin fell"_s, 0, u"new before"_s},
        {"the same at another time", read, u"Tin"_s, u"Tin rose"_s, 50, u"read"_s},
        {"only seen", seen, u"Zinc"_s, u"Tin rose"_s, 1, u"seen"_s},
    };
    for (const auto& one : cases) {
        const QString identity = QString::fromLatin1(one.what);
        const HeadlineKey key = take(news(identity, 0));
        const auto backEnd = opened();
        NewsItem again = news(identity, one.second, 2, one.title);
        again.story = one.story;
        const HeadlineKey now = take(again);
        std::size_t told = 0;
        QObject::connect(&backEnd->markTeller(), &MarkTeller::changed, &backEnd->markTeller(),
                         [&](const std::vector<HeadlineKey>& keys) { told += keys.size(); });
        backEnd->changeMarks({key}, one.mark);
        backEnd->run([](StoreWriter&) {});
        EXPECT_EQ(kept(now), one.after) << one.what;
        EXPECT_EQ(wirepane::told(backEnd->markOf(now)), one.after) << one.what;
        EXPECT_EQ(told, 2U) << one.what << ": as it was asked for, and as it is";
    }
}

TEST_F(MarksTest, StarredNewsStaysWhenOldNewsLeavesAndOtherMarksGoWithTheirNews) {
    const HeadlineKey plain = take(news(u"a"_s, 0));
    const HeadlineKey dear = take(news(u"b"_s, 1));
    take(news(u"c"_s, 90'000));
    take(news(u"d"_s, 90'001));
    {
        const auto backEnd = opened();
        backEnd->changeMarks({plain, dear}, read);
        backEnd->changeMarks({dear}, starred);
    }
    for (int step = 0; step < 10; ++step)
        EXPECT_TRUE(writer->trim({.days = 1}, at(9, 0) + 2 * 86'400));
    EXPECT_EQ(rows("SELECT identity FROM headlines ORDER BY identity"),
              QStringList({u"b"_s, u"c"_s, u"d"_s}));
    EXPECT_EQ(rows("SELECT count(*) FROM marks"), QStringList(u"1"_s));
    EXPECT_EQ(kept(dear), u"read*"_s);
}

TEST_F(MarksTest, WhatWasPublishedBeforeTheStoreWasMadeCountsAsSeen) {
    const std::int64_t made = host_clock::now();
    const auto fresh = openStore(pathOf(u"fresh"_s));
    ASSERT_TRUE(fresh);
    StoreWriter taking(*fresh.value());
    MarkBook marks(*fresh.value());
    ASSERT_TRUE(taking.begin());
    for (const auto& [identity, time, expected] : {std::tuple{u"later"_s, made + 600, u"new"_s},
                                                   {u"before, and taken in behind it"_s, made, u"seen"_s}})
        EXPECT_EQ(told(marks.find(taking.takeNews(newsItem(1, identity, time, u"Tin"_s)).value().key)),
                  expected);
    EXPECT_TRUE(taking.commit());
}

}  // namespace
}  // namespace wirepane
