// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/item_check.h"
#include "backend/store/limits.h"
#include "tests/backend/store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class StoreWriterTest : public StoreFixture {
protected:
    QStringList matches(const QString& word) {
        return rows(
            (u"SELECT identity FROM headlines WHERE id IN "
             "(SELECT rowid FROM news_search WHERE news_search MATCH '\"%1\"') ORDER BY identity"_s.arg(word))
                .toUtf8()
                .constData());
    }
};

TEST_F(StoreWriterTest, NumbersCountPerServiceAndLocalDay) {
    // 15:59:59 UTC is the last second of the local day.
    EXPECT_EQ(takeNews(newsItem(1, u"a"_s, at(23, 59, 59), u"A"_s)).key.sequence, 1);
    EXPECT_EQ(takeNews(newsItem(1, u"b"_s, at(0, 0), u"B"_s)).key.sequence, 2);
    EXPECT_EQ(takeNews(newsItem(1, u"c"_s, at(23, 59, 59) + 1, u"C"_s)).key.sequence, 1);
    EXPECT_EQ(takeNews(newsItem(2, u"a"_s, at(12, 0), u"A"_s)).key.sequence, 1);

    NewsItem given = newsItem(1, u"d"_s, at(9, 0), u"D"_s);
    given.sequence = 40;
    EXPECT_EQ(takeNews(given).key.sequence, 40);
    EXPECT_EQ(takeNews(newsItem(1, u"e"_s, at(9, 0), u"E"_s)).key.sequence, 41);

    given.identity = u"f"_s;
    given.time = at(17, 0);
    const StoredNews collided = takeNews(given);
    EXPECT_EQ(collided.outcome.take, Take::Rejected);
    EXPECT_EQ(sentence(collided.outcome.reason.value()),
              u"Its sequence number 40 belongs to another headline of that service and day."_s);
    given.sequence = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(takeNews(given).outcome.take, Take::TakenIn);
    EXPECT_EQ(sentence(takeNews(newsItem(1, u"g"_s, at(9, 0), u"G"_s)).outcome.reason.value()),
              u"No sequence number is left on its day."_s);
}

TEST_F(StoreWriterTest, TheSameNewsTwiceIsOnePieceOfNews) {
    NewsItem item = newsItem(16, u"x"_s, at(9, 30), u"Plant reopens"_s);
    item.version = 3;
    item.story = u"First paragraph.@@@@Second paragraph."_s;
    item.category = u"Companies"_s;
    item.related = {{16, u"6214"_s}, {0, u"ABC"_s}, {16, u"6214"_s}};
    takeNews(newsItem(16, u"w"_s, at(9, 0), u"Before"_s));
    const StoredNews first = takeNews(item);
    EXPECT_EQ(first.key, (HeadlineKey{at(9, 30), 2, 16}));
    EXPECT_EQ(rows("SELECT position, market, code, service, sequence FROM related_symbols ORDER BY position"),
              (QStringList{u"0|16|6214|16|2"_s, u"1|0|ABC|16|2"_s}));

    struct Case {
        const char* what;
        int version;
        std::int64_t time;
        Take expected;
        std::int32_t sequence;
    };
    // Each case meets what the cases before it left.
    const Case cases[] = {
        {"the very same", 3, at(9, 30), Take::AlreadyThere, 2},
        {"an earlier version with a later time", 2, at(9, 50), Take::AlreadyThere, 2},
        {"the same version, earlier", 3, at(9, 20), Take::AlreadyThere, 2},
        {"the same version, later", 3, at(9, 40), Take::TakenIn, 2},
        {"a later version, earlier on that day", 4, at(9, 10), Take::TakenIn, 2},
        {"a later version on the next day", 5, at(9, 10) + 86400, Take::TakenIn, 1},
        {"a later version back on the first day", 6, at(9, 10), Take::TakenIn, 3},
    };
    for (const Case& one : cases) {
        item.version = one.version;
        item.time = one.time;
        item.title = QString::fromUtf8(one.what);
        const StoredNews stored = takeNews(item);
        EXPECT_EQ(stored.outcome.take, one.expected) << one.what;
        EXPECT_EQ(stored.key.sequence, one.sequence) << one.what;
        if (one.expected == Take::TakenIn) {
            EXPECT_EQ(stored.key.time, one.time) << one.what;
            EXPECT_EQ(rows("SELECT title FROM headlines WHERE identity = 'x'"), QStringList{item.title});
        }
    }
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{u"2"_s});
    EXPECT_EQ(rows("SELECT DISTINCT time, sequence FROM related_symbols"),
              QStringList{u"%1|3"_s.arg(at(9, 10))});
    // The same identity in another service is other news.
    item.service = 22;
    EXPECT_EQ(takeNews(item).outcome.take, Take::TakenIn);
}

TEST_F(StoreWriterTest, AStoryThatWasMissingIsAddedOnce) {
    NewsItem item = newsItem(1, u"x"_s, at(9, 30), u"Rates held"_s);
    takeNews(item);
    item.story = u"The bank kept its rates."_s;
    const StoredNews filled = takeNews(item);
    EXPECT_EQ(filled.outcome.take, Take::TakenIn);
    EXPECT_TRUE(filled.onlyStory);
    item.story = u"Something else."_s;
    EXPECT_EQ(takeNews(item).outcome.take, Take::AlreadyThere);
    EXPECT_EQ(rows("SELECT text FROM stories"), QStringList{u"The bank kept its rates."_s});
    // A later version whose story is not known yet makes the old story out of date.
    item.version = 1;
    item.story.reset();
    takeNews(item);
    EXPECT_EQ(rows("SELECT text FROM stories"), QStringList{});
    EXPECT_EQ(matches(u"rates"_s), QStringList{u"x"_s});
    EXPECT_EQ(matches(u"bank"_s), QStringList{});
}

TEST_F(StoreWriterTest, TheSearchIndexFollowsWhatIsReplaced) {
    NewsItem item = newsItem(1, u"x"_s, at(9, 30), u"Quartz prices climb"_s);
    item.story = u"Dealers saw demand@@@@from makers of glass."_s;
    takeNews(item);
    takeNews(newsItem(1, u"y"_s, at(9, 31), u"Glass makers agree"_s));
    EXPECT_EQ(matches(u"glass"_s), (QStringList{u"x"_s, u"y"_s}));
    EXPECT_EQ(matches(u"saw demand"_s), QStringList{u"x"_s});
    EXPECT_EQ(matches(u"demand from"_s), QStringList{});  // a paragraph ends between the two
    item.version = 1;
    item.title = u"Copper prices climb"_s;
    item.story = u"Dealers corrected the metal."_s;
    takeNews(item);
    EXPECT_EQ(matches(u"glass"_s), QStringList{u"y"_s});
    EXPECT_EQ(matches(u"quartz"_s), QStringList{});
    EXPECT_EQ(matches(u"copper"_s), QStringList{u"x"_s});
    EXPECT_TRUE(store->execute("INSERT INTO news_search(news_search, rank) VALUES('integrity-check', 1)"))
        << sentence(store->failure()).toStdString();
}

TEST_F(StoreWriterTest, OneNameOfACategoryHasOneIdButAmongWarrants) {
    const auto idOf = [&](unsigned char service, const QString& identity, const QString& name) {
        NewsItem item = newsItem(service, identity, at(9, 0), u"T"_s);
        item.category = name;
        return takeNews(item).categoryId;
    };
    EXPECT_EQ(idOf(1, u"a"_s, u"Weather, Seas"_s), 7);
    EXPECT_EQ(idOf(16, u"b"_s, u"Shipping"_s), 8);
    EXPECT_EQ(idOf(16, u"c"_s, u" Weather\tSeas, "_s), 7);
    EXPECT_EQ(idOf(52, u"d"_s, u"Shipping"_s), 5);
    EXPECT_EQ(idOf(2, u"e"_s, u" ,"_s), 0);
    EXPECT_EQ(rows("SELECT space, id, name FROM categories WHERE id > 6 OR (space = 52 AND id > 4)"),
              (QStringList{u"0|7|Weather-Seas"_s, u"0|8|Shipping"_s, u"52|5|Shipping"_s}));

    const QString long63(63, u'x');
    for (const QString& tooMuch : {QString(), u"😀"_s, u" y"_s, u"-"_s})
        EXPECT_EQ(cleanCategoryName(long63 + tooMuch), long63);
    EXPECT_EQ(cleanCategoryName(long63.repeated(2)), long63 + u'x');

    EXPECT_EQ(take(CategoryItem{2, 7, u"Weather-Seas"_s, u"#09AF00"_s}), Take::TakenIn);
    EXPECT_EQ(take(CategoryItem{2, 7, u"Weather-Seas"_s, {}}), Take::AlreadyThere);
    EXPECT_EQ(take(CategoryItem{2, 9, u"Shipping"_s, {}}), Take::Rejected);
    EXPECT_EQ(take(CategoryItem{52, 9, u"Weather-Seas"_s, {}}), Take::TakenIn);
    for (const QString& colour : {u"red"_s, u"#00gg00"_s})
        EXPECT_EQ(take(CategoryItem{2, 9, u"X"_s, colour}), Take::Rejected);
    EXPECT_EQ(rows("SELECT colour FROM categories WHERE space = 0 AND id = 7"), QStringList{u"#09af00"_s});
}

TEST_F(StoreWriterTest, UnknownServicesAndSymbolsAreMade) {
    takeNews(newsItem(77, u"a"_s, at(9, 0), u"A"_s));
    EXPECT_EQ(rows("SELECT id FROM services ORDER BY position"),
              (QStringList{u"1"_s, u"2"_s, u"16"_s, u"22"_s, u"52"_s, u"122"_s, u"77"_s}));
    EXPECT_EQ(rows("SELECT full_name, short_name FROM services WHERE id = 77"),
              QStringList{u"Service 77|Service 77"_s});
    EXPECT_EQ(take(SymbolItem{16, u"6214"_s, u"Zenith Glass"_s, 1}), Take::TakenIn);
    EXPECT_EQ(take(SymbolItem{16, u"6214"_s, u"Zenith Glass"_s, 1}), Take::AlreadyThere);
    EXPECT_EQ(take(SymbolItem{16, u"6214"_s, u"Zenith Glass"_s, 2}), Take::TakenIn);
}

TEST_F(StoreWriterTest, WhatDoesNotPassIsRejectedWithAReason) {
    const auto reasonOf = [&](const std::function<void(NewsItem&)>& change) {
        NewsItem item = newsItem(1, u"x"_s, at(9, 0), u"T"_s);
        change(item);
        return sentence(takeNews(item).outcome.reason.value());
    };
    const QString longTitle(limits::titleLength + 1, u'x');
    EXPECT_EQ(reasonOf([](NewsItem& item) { item.title = u" \n"_s; }), u"The title is empty."_s);
    EXPECT_EQ(reasonOf([&](NewsItem& item) { item.title = longTitle; }),
              u"The title has 8193 characters; at most 8192 are taken."_s);
    EXPECT_EQ(reasonOf([](NewsItem& item) { item.story = QString(limits::storyLength + 1, u'x'); }),
              u"The story has 4194305 characters; at most 4194304 are taken."_s);
    EXPECT_EQ(reasonOf([](NewsItem& item) { item.time = firstNewsTime - 1; }),
              u"Its time (-2208988801 seconds since 1970) does not lie within the years 1900 to 9999."_s);
    EXPECT_EQ(reasonOf([](NewsItem& item) { item.identity.clear(); }), u"It has no identity."_s);
    EXPECT_EQ(reasonOf([](NewsItem& item) { item.service = 0; }), u"It belongs to no news service."_s);
    EXPECT_EQ(reasonOf([](NewsItem& item) { item.related = {{1, QString()}}; }), u"A symbol has no code."_s);
    EXPECT_EQ(reasonOf([](NewsItem& item) {
                  for (int i = 0; i <= 1000; ++i)
                      item.related.push_back({1, QString::number(i)});
              }),
              u"It names 1001 related symbols; at most 1000 are taken."_s);
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{u"0"_s});

    // What can be mended is mended, and the limits themselves pass.
    NewsItem item = newsItem(1, u"y"_s, lastNewsTime, longTitle.chopped(1));
    item.story = u"a%1b%2c\U0001F4C8%3"_s.arg(QChar(0xD800)).arg(QChar(0)).arg(QChar(0xDC00));
    EXPECT_EQ(takeNews(item).outcome.take, Take::TakenIn);
    EXPECT_EQ(rows("SELECT text FROM stories"), QStringList{u"a\uFFFDbc\U0001F4C8\uFFFD"_s});
}

// Whatever road an item comes by.
TEST_F(StoreWriterTest, WhatCannotBeSeenIsKeptOutOfEveryText) {
    NewsItem item = newsItem(1, u"y"_s, at(9, 0), u"Up\u001b[2K\r\nForged\u202e row\u200f"_s);
    item.story = u"One\u009b\r\n@@@@Two\u2028"_s;
    item.category = u"Metal\u001bs"_s;
    item.related = {{1, u"A\u202eB"_s}};
    EXPECT_EQ(takeNews(item).outcome.take, Take::TakenIn);
    EXPECT_EQ(rows("SELECT title FROM headlines"), QStringList{u"Up[2K Forged row"_s});
    EXPECT_EQ(rows("SELECT text FROM stories"), QStringList{u"One\r\n@@@@Two "_s});
    EXPECT_EQ(rows("SELECT name FROM categories WHERE name LIKE 'Metal%'"), QStringList{u"Metals"_s});
    EXPECT_EQ(rows("SELECT code FROM related_symbols"), QStringList{u"AB"_s});
}

TEST_F(StoreWriterTest, WhatIsTakenBackLeavesNothing) {
    ASSERT_TRUE(writer->begin());
    NewsItem item = newsItem(77, u"a"_s, at(9, 0), u"Zinc"_s);
    item.category = u"Metals"_s;
    ASSERT_TRUE(writer->takeNews(item));
    writer->rollback();
    EXPECT_FALSE(writer->commit());
    EXPECT_FALSE(writer->takeNews(item));
    EXPECT_EQ(rows("SELECT (SELECT count(*) FROM headlines), (SELECT count(*) FROM services), "
                   "(SELECT count(*) FROM categories), (SELECT count(*) FROM numbering)"),
              QStringList{u"0|6|10|0"_s});
    // Nothing that was taken back is remembered as being there.
    const StoredNews stored = takeNews(item);
    EXPECT_EQ(stored.key.sequence, 1);
    EXPECT_EQ(stored.categoryId, 7);
    EXPECT_EQ(matches(u"zinc"_s), QStringList{u"a"_s});
}

}  // namespace

}  // namespace wirepane
