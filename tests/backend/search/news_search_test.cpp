// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/news_search.h"

#include "backend/search/search_index_check.h"
#include "backend/store/store_file.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/support/conditions.h"

#include <algorithm>
#include <limits>
#include <sqlite3.h>
#include <tuple>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

class NewsSearchTest : public StoreFixture {
protected:
    NewsSearchTest() : reading(std::move(openStore(store->path()).value())), search(*reading) {}

    void takeStory(const QString& identity, const QString& title, const QString& story, int minute = 0) {
        NewsItem item = newsItem(1, identity, at(9, minute), title);
        item.story = story;
        takeNews(item);
    }
    // The titles that are found, in their order.
    QStringList found(const CSearch& condition, unsigned char service = 1) {
        const auto entries = search.find(service, condition);
        EXPECT_TRUE(entries);
        QStringList titles;
        for (const CHeadlineTable& entry : entries ? *entries : std::vector<CHeadlineTable>()) {
            titles +=
                rows(QStringLiteral(
                         "SELECT title FROM headlines WHERE service = %1 AND time = %2 AND sequence = %3")
                         .arg(entry.service)
                         .arg(entry.time)
                         .arg(entry.sequence)
                         .toUtf8()
                         .constData());
        }
        return titles;
    }

    std::unique_ptr<Database> reading;
    NewsSearch search;
};

// Words that would be split otherwise if they stood alone: with full-width digits behind ordinary ones, with
// something invisible in a number, and cut in the middle of one.
TEST_F(NewsSearchTest, OddNumbersAreFoundAsTyped) {
    const QStringList keywords{u"1,234５"_s, u"1,234\u200d5"_s, u"1"_s + u".1"_s.repeated(40)};
    takeStory(u"a"_s, u"Title"_s, u"x "_s + keywords.join(u" x "_s) + u" x"_s);
    for (const QString& keyword : keywords)
        EXPECT_EQ(found(condition({keyword}, 2)), QStringList(u"Title"_s)) << qPrintable(keyword);
}

TEST_F(NewsSearchTest, WhatWasWithdrawnIsNotFoundUntilItIsSentAgain) {
    takeStory(u"a"_s, u"Silver up"_s, u"Text"_s);
    takeStory(u"b"_s, u"Silver down"_s, u"Text"_s, 1);
    NewsItem taken = newsItem(1, u"a"_s, at(9, 0), {});
    taken.withdrawn = QString();
    takeNews(taken);
    EXPECT_EQ(found(condition({u"silver"_s}, 2)), QStringList(u"Silver down"_s));
    CSearch butGold = condition({u"-gold"_s}, 2);
    butGold.language = SearchLanguage::Query;
    EXPECT_EQ(found(butGold), QStringList(u"Silver down"_s));
    taken = newsItem(1, u"a"_s, at(9, 2), u"Silver up"_s);
    taken.version = 1;
    takeNews(taken);
    EXPECT_EQ(found(condition({u"silver"_s}, 2)), (QStringList{u"Silver up"_s, u"Silver down"_s}));
}

TEST_F(NewsSearchTest, WhatTheUserHasDoneAndWhatWasTakenBackIsFoundByItsState) {
    const QStringList titles{u"Before"_s,  u"New"_s,  u"Seen"_s,     u"Read"_s,
                             u"Starred"_s, u"Both"_s, u"Unmarked"_s, u"Gone"_s};
    for (int i = 0; i < titles.size(); ++i)
        takeStory(titles[i], titles[i], u"Text"_s, i);
    NewsItem gone = newsItem(1, u"Gone"_s, at(9, 7), {});
    gone.withdrawn = u"wrong"_s;
    takeNews(gone);
    takeNews(newsItem(2, u"Other"_s, at(9, 8), u"Other"_s));
    ASSERT_TRUE(
        store->execute(("UPDATE marks_begin SET moment = " + QByteArray::number(at(9, 0))).constData()));
    const std::tuple<const char*, int, int> marks[] = {{"Seen", 1, 0}, {"Read", 2, 0},     {"Starred", 0, 1},
                                                       {"Both", 2, 1}, {"Unmarked", 0, 0}, {"Other", 2, 1}};
    for (const auto& [title, state, isStarred] : marks)
        ASSERT_TRUE(store->execute(
            u"INSERT INTO marks(headline, state, starred, was_read, shown, opened) "
            "SELECT id, %2, %3, 0, 0, 0 FROM all_headlines WHERE title = '%1'"_s.arg(QLatin1StringView(title))
                .arg(state)
                .arg(isStarred)
                .toUtf8()
                .constData()));
    const std::pair<QString, QString> cases[] = {{u"is:starred"_s, u"Both Starred"_s},
                                                 {u"is:read"_s, u"Both Read"_s},
                                                 {u"is:unread"_s, u"Unmarked Starred New"_s},
                                                 {u"is:unread -is:starred"_s, u"Unmarked New"_s},
                                                 {u"-is:unread -is:read"_s, u"Seen Before"_s},
                                                 {u"is:starred | title:new"_s, u"Both Starred New"_s},
                                                 {u"is:withdrawn"_s, u"Gone"_s},
                                                 {u"title:gone"_s, u""_s},
                                                 {u"title:gone -is:withdrawn"_s, u""_s},
                                                 {u"is:withdrawn | is:read"_s, u"Gone Both Read"_s}};
    for (const auto& [query, wanted] : cases) {
        CSearch asked = condition({query}, 2);
        asked.language = SearchLanguage::Query;
        EXPECT_EQ(found(asked).join(u' '), wanted) << query.toStdString();
    }
}

// However many are asked for, and however the orders of times and ids differ.
TEST_F(NewsSearchTest, TheNewestFewAreThoseOfAll) {
    ASSERT_TRUE(writer->begin());
    for (int i = 0; i < 1400; ++i) {
        const auto service = static_cast<unsigned char>(i % 7 < 5 ? 1 : i % 100 != 6 ? 2 : 3);
        NewsItem item = newsItem(service, QString::number(i), at(0, 0) + (i + (i * 7919LL) % 200) / 20,
                                 i % 4 == 0 && service != 2 ? u"Copper"_s : u"Tin"_s);
        item.story = i % 6 == 1 ? u"Silver"_s : i % 100 == 3 ? u"Rare"_s : u"Text"_s;
        if (i % 3 == 0)
            item.related = {{16, u"2330"_s}};
        ASSERT_TRUE(writer->take(item));
    }
    ASSERT_TRUE(writer->commit());
    CSearch narrowed = condition({u"tin"_s}, 2);
    narrowed.symbols = {{16, u"2330"_s}};
    std::vector<CSearch> asked{condition({u"silver"_s}, 2),
                               condition({u"copper"_s}, 2),
                               condition({u"rare"_s}, 2),
                               condition({u"none"_s}, 2),
                               narrowed,
                               condition({u"silver"_s, u"rare"_s}, 2, 2)};
    for (const QString& query :
         {u"copper -rare"_s, u"-copper"_s, u"silver | symbol:2330"_s, u"tin to:2026"_s}) {
        asked.push_back(condition({query}, 2));
        asked.back().language = SearchLanguage::Query;
    }
    std::vector<unsigned char> services(20);
    std::iota(services.begin(), services.end(), 1);
    std::vector<std::size_t> counts(240);
    std::iota(counts.begin(), counts.end(), 1);
    for (const CSearch& each : asked) {
        std::vector<CHeadlineTable> all;
        for (const unsigned char service : services) {
            const auto found = search.find(service, each).value();
            all.insert(all.end(), found.begin(), found.end());
        }
        std::stable_sort(all.begin(), all.end(), [](const auto& a, const auto& b) {
            return std::tie(a.time, a.sequence) > std::tie(b.time, b.sequence);
        });
        for (const std::int64_t latest : {std::numeric_limits<std::int64_t>::max(), at(0, 0, 50)}) {
            std::erase_if(all, [&](const CHeadlineTable& entry) { return entry.time > latest; });
            NewsSearch fresh(*reading);
            for (const std::size_t most : counts) {
                const auto found = fresh.findOnce(services, each, {most, latest}).value();
                ASSERT_EQ(found.size(), std::min(all.size(), most)) << each.keywords.front().toStdString();
                ASSERT_TRUE(std::equal(found.begin(), found.end(), all.begin(),
                                       [](auto& a, auto& b) { return keyOf(a) == keyOf(b); }))
                    << each.keywords.front().toStdString() << ' ' << most;
            }
            counts = {1, 50, 500, 1000};
        }
    }
}

TEST_F(NewsSearchTest, KeywordsAreFoundAsTyped) {
    const QString text =
        u"台積電(2330)宣布，營收2.5%成長至11,700億元@@@@A&T and c++ 0700.HK in the US-China talks@@@@O'Neil 臺灣"_s;
    takeStory(u"a"_s, u"Title"_s, text);
    const QStringList held{u"台"_s,      u"積電"_s,   u"积电"_s,     u"台湾"_s,       u"台積電(2330)"_s,
                           u"(2330"_s,   u"2.5%"_s,   u"２．５％"_s, u"11,700"_s,     u"0700.hk"_s,
                           u"a&t"_s,     u"C++"_s,    u"us-china"_s, u"ＣＨＩＮＡ"_s, u"o'neil"_s,
                           u"in\nthe"_s, u"the\0US"_s};
    const QStringList others{u"電積"_s, u"233"_s,         u"5%"_s,   u"700"_s,          u"700.HK"_s,
                             u"c#"_s,   u"us china"_s,    u"chin"_s, u"talks o'neil"_s, u"the OR talks"_s,
                             u"\"us"_s, u"title:talks"_s, u"tal*"_s, u"億元 A"_s};
    for (const QString& keyword : held + others)
        EXPECT_EQ(found(condition({keyword}, 2)).size(), held.contains(keyword) ? 1 : 0)
            << qPrintable(keyword);
}

TEST_F(NewsSearchTest, ScopeMethodAndOrder) {
    takeStory(u"a"_s, u"Copper rises"_s, u"gold"_s, 1);
    takeStory(u"b"_s, u"Gold rises"_s, u"copper and tin"_s, 3);
    takeStory(u"c"_s, u"Tin"_s, u"nothing"_s, 2);
    const QString a = u"Copper rises"_s;
    const QString b = u"Gold rises"_s;
    const QString c = u"Tin"_s;
    EXPECT_EQ(found(condition({u"copper"_s}, 0)), QStringList({a}));
    EXPECT_EQ(found(condition({u"copper"_s}, 1)), QStringList({b}));
    EXPECT_EQ(found(condition({u"copper"_s}, 2)), QStringList({b, a}));
    EXPECT_EQ(found(condition({u"copper"_s, u"tin"_s}, 2)), QStringList({b}));
    EXPECT_EQ(found(condition({u"copper"_s, u"tin"_s}, 2, 2)), QStringList({b, c, a}));
    EXPECT_EQ(found(condition({u"rises"_s, u" "_s, u"gold"_s}, 0, 0)), QStringList({b}));
    EXPECT_EQ(found(condition({u"zinc"_s, u"tin"_s}, 0, 2)), QStringList({c}));
    EXPECT_EQ(found(condition({u"gold"_s, u"copper"_s}, 0)), QStringList());
    EXPECT_EQ(found(condition({u"and"_s, u"copper"_s}, 1)), QStringList({b}));
    EXPECT_EQ(found(condition({u"copper\" OR \"gold"_s, u"tin"_s}, 2)), QStringList());
    EXPECT_EQ(found(condition({}, 2)), QStringList());
    EXPECT_EQ(found(condition({u" "_s, u"\n"_s}, 2, 2)), QStringList());
    EXPECT_EQ(found(condition({u"copper"_s}, 2), 2), QStringList());
}

TEST_F(NewsSearchTest, SymbolsNarrow) {
    NewsItem item = newsItem(1, u"a"_s, at(9, 0), u"Gold one"_s);
    item.related = {{16, u"2330"_s}};
    takeNews(item);
    item = newsItem(1, u"b"_s, at(9, 1), u"Gold two"_s);
    item.related = {{0, u"2330"_s}, {1, u"IBM"_s}};
    takeNews(item);
    takeNews(newsItem(1, u"c"_s, at(9, 2), u"Gold three"_s));
    CSearch narrowed = condition({u"gold"_s}, 2);
    narrowed.symbols = {{16, u"2330"_s}};
    EXPECT_EQ(found(narrowed), QStringList({u"Gold two"_s, u"Gold one"_s}));
    narrowed.symbols = {{122, u"2330"_s}};
    EXPECT_EQ(found(narrowed), QStringList({u"Gold two"_s}));
    narrowed.symbols = {{16, u"2330"_s}, {1, u"IBM"_s}};
    EXPECT_EQ(found(narrowed), QStringList({u"Gold two"_s, u"Gold one"_s}));
    narrowed.symbols = {{16, u"1101"_s}};
    EXPECT_EQ(found(narrowed), QStringList());
}

// With the keys in memory as without them: news, later stories and replacements are seen at once.
TEST_F(NewsSearchTest, ACompanyIsFoundUnderEachCodeAndName) {
    take(SymbolItem{22, u"0700"_s, u"騰訊"_s, 1, u"Tencent"_s});
    NewsItem coded = newsItem(1, u"coded"_s, at(9, 4), u"Coded"_s);
    coded.related = {{22, u"0700"_s}};
    takeNews(coded);
    takeStory(u"chinese"_s, u"腾讯今日回購"_s, u"-"_s, 3);
    takeStory(u"english"_s, u"TENCENT buys"_s, u"-"_s, 2);
    takeStory(u"story"_s, u"Markets"_s, u"Shares of Tencent rose"_s, 1);
    takeStory(u"none"_s, u"11,700 and 0700"_s, u"-"_s);
    for (const char16_t* value : {u"700", u"0700", u"00700.HK", u"22:700", u"騰訊", u"腾讯", u"TENCENT"}) {
        CSearch query = condition({u"symbol:"_s + QString::fromUtf16(value)}, 2);
        query.language = SearchLanguage::Query;
        EXPECT_EQ(found(query), (QStringList{u"Coded"_s, u"腾讯今日回購"_s, u"TENCENT buys"_s, u"Markets"_s}))
            << qPrintable(QString::fromUtf16(value));
    }
}

TEST_F(NewsSearchTest, FollowsWhatIsTakenIn) {
    for (const bool loaded : {false, true}) {
        if (loaded) {
            search.prepare();
            EXPECT_EQ(found(condition({u"l"_s}, 2)), QStringList({u"lead"_s, u"bronze l"_s}));
        }
        const QString mark = loaded ? u"k"_s : u"l"_s;
        takeNews(newsItem(1, mark + u"1"_s, at(10, 0), u"silver "_s + mark));
        EXPECT_EQ(found(condition({mark}, 2)).size(), 1);
        takeStory(mark + u"2"_s, u"lead"_s, u"silver "_s + mark, 59);
        EXPECT_EQ(found(condition({mark}, 2)), QStringList({u"silver "_s + mark, u"lead"_s}));
        NewsItem replaced = newsItem(1, mark + u"1"_s, at(8, 0), u"bronze "_s + mark);
        replaced.version = 9;
        EXPECT_EQ(takeNews(replaced).outcome.take, Take::TakenIn);
        EXPECT_EQ(found(condition({mark}, 2)), QStringList({u"lead"_s, u"bronze "_s + mark}));
        EXPECT_EQ(found(condition({u"silver"_s, mark}, 2)), QStringList({u"lead"_s}));
    }
}

// Many are looked up among the keys in memory, which are read once, ahead or when they are needed first.
TEST_F(NewsSearchTest, TheKeysOfAllHeadlinesAreReadOnce) {
    constexpr int many = 5000;
    ASSERT_TRUE(writer->begin());
    for (int i = 0; i < many; ++i)
        ASSERT_TRUE(writer->takeNews(newsItem(1, QString::number(i), at(9, 0, i % 60), u"gold"_s)));
    ASSERT_TRUE(writer->commit());
    int reads = 0;
    sqlite3_trace_v2(
        reading->handle(), SQLITE_TRACE_STMT,
        [](unsigned, void* count, void*, void* sql) {
            if (QByteArray(static_cast<const char*>(sql)).endsWith("ORDER BY service, time, sequence"))
                ++*static_cast<int*>(count);
            return 0;
        },
        &reads);
    for (const bool isAhead : {false, true}) {
        NewsSearch fresh(*reading);
        reads = 0;
        if (isAhead)
            fresh.prepare();
        EXPECT_EQ(reads, isAhead ? 1 : 0);
        for (const QString& word : {u"gold"_s, u"gold"_s, u"tin"_s}) {
            const auto entries = fresh.find(1, condition({word}, 2));
            ASSERT_TRUE(entries);
            EXPECT_EQ(entries->size(), word == u"gold"_s ? std::size_t(many) : 0U);
        }
        EXPECT_EQ(reads, 1);
    }
    // Who searches once does without them, and is given the newest of the same.
    CSearch butTin = condition({u"-tin"_s});
    butTin.language = SearchLanguage::Query;
    for (const CSearch& asked : {condition({u"gold"_s}, 2), butTin}) {
        for (const NewsSearch::Newest newest : {NewsSearch::Newest{}, {70, at(9, 0, 30)}, {many, at(8, 0)}}) {
            auto wanted = search.find(1, asked).value_or(std::vector<CHeadlineTable>());
            ASSERT_EQ(wanted.size(), std::size_t(many));
            std::erase_if(wanted, [&](const CHeadlineTable& entry) { return entry.time > newest.latest; });
            wanted.resize(std::min(wanted.size(), newest.most));
            NewsSearch fresh(*reading);
            reads = 0;
            const auto entries = fresh.findOnce({1}, asked, newest);
            EXPECT_EQ(reads, 0);
            ASSERT_TRUE(entries && entries->size() == wanted.size());
            EXPECT_TRUE(std::equal(wanted.begin(), wanted.end(), entries->begin(),
                                   [](const auto& a, const auto& b) { return keyOf(a) == keyOf(b); }));
        }
    }
    sqlite3_trace_v2(reading->handle(), 0, nullptr, nullptr);
}

TEST_F(NewsSearchTest, WhatTheNewestNewsHasOfAFewIsToldBeforeAllIsLookedThrough) {
    ASSERT_TRUE(store->execute(
        "INSERT INTO all_headlines(service, time, sequence, day, category, version, received, identity, "
        "title) "
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 19999) "
        "SELECT 1, 1772400000 + i, i, 20260302, 1, 0, 0, 'n' || i, iif(i % 5000 = 7, 'gold', 'tin') FROM n; "
        "INSERT INTO news_search(rowid, title, story) SELECT id, title, '' FROM all_headlines"));
    const struct {
        QString word;
        std::vector<std::size_t> told;
        std::size_t all;
    } cases[] = {{u"gold"_s, {3}, 4}, {u"tin"_s, {}, 10}, {u"iron"_s, {0}, 0}};
    for (const auto& one : cases) {
        std::vector<std::size_t> told;
        const auto found =
            search.findOnce({1}, condition({one.word}), {10}, nullptr,
                            [&](const std::vector<CHeadlineTable>& first) { told.push_back(first.size()); });
        ASSERT_TRUE(found);
        EXPECT_EQ(found->size(), one.all) << one.word.toStdString();
        EXPECT_EQ(told, one.told) << one.word.toStdString();
    }
}

// However small the pieces are in which the index is read.
TEST_F(NewsSearchTest, TheIndexIsComparedWithTheTextsItWasMadeOf) {
    for (const QString& identity : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        takeStory(identity, u"Title"_s, u"story"_s);
    ASSERT_TRUE(
        store->execute("UPDATE stories SET text = 'another' WHERE headline <> 3; "
                       "INSERT INTO import_blocks(first, last, hidden) VALUES(4, 4, 0)"));
    for (const std::int64_t most : {1, 1000}) {
        SearchIndexCheck index(*reading, 1, 5, UnindexedIds::read(*reading).value());
        EXPECT_TRUE(index.addTexts(1, 3) && index.addTexts(3, 5));
        std::optional<bool> more = true;
        while (more.value_or(false))
            more = index.takeWords(most);
        EXPECT_TRUE(more);
        EXPECT_EQ(index.faults().texts, (std::vector<std::int64_t>{1, 2}));
        EXPECT_TRUE(index.faults().entries.empty());
        EXPECT_EQ(index.wordsTaken(), 8);
    }
}

TEST_F(NewsSearchTest, KeywordsOfAnySizeAndNumberAreAnswered) {
    takeStory(u"a"_s, u"Title"_s, u"word"_s);
    std::vector<QString> many;
    for (int i = 0; i < 3000; ++i)
        many.push_back(u"none%1"_s.arg(i));
    many.push_back(u"word"_s);
    EXPECT_EQ(found(condition(many, 2, 2)).size(), 1);
    EXPECT_EQ(found(condition(many, 2, 1)).size(), 0);
    EXPECT_EQ(found(condition(std::vector<QString>(3000, u"word"_s), 1, 1)).size(), 1);
    EXPECT_EQ(found(condition({QString(1'000'000, u'x')}, 2)).size(), 0);
    EXPECT_EQ(found(condition({QString(1'000'000, u'龍')}, 2)).size(), 0);
    EXPECT_EQ(found(condition({QString(1'000'000, u'(')}, 2)).size(), 0);
    EXPECT_EQ(found(condition({QString(QChar(0xd800)) + u"\"'"_s}, 2)).size(), 0);
}

}  // namespace
}  // namespace wirepane
