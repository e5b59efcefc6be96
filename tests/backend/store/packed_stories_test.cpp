// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/packed_text.h"
#include "backend/store/limits.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_reader.h"
#include "tests/backend/store/store_fixture.h"

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

const QString english = u"Copper rose for a third day. Analysts had seen it fall.@@@@"_s.repeated(9);
const QString chinese = u"台積電公布三月營收，較去年同期成長兩成。@@@@"_s.repeated(20);

class PackedStoriesTest : public StoreFixture {
protected:
    StoredNews takeStory(const QString& identity, const QString& story, int version = 0,
                         const PackedStory& packed = {}) {
        NewsItem item = newsItem(1, identity, at(9, 0), u"Metals"_s);
        item.story = story;
        item.version = version;
        item.packedStory = packed;
        return takeNews(item);
    }
    QString storyOf(const StoredNews& news) { return StoreReader(*store).story(news.key).value_or(u"~"_s); }
    QString kindOf(const char* identity) {
        return rows((std::string("SELECT typeof(text) FROM stories JOIN headlines ON id = headline "
                                 "WHERE identity = '") +
                     identity + "'")
                        .c_str())
            .join(u',');
    }
    QStringList faults() { return StoreChecker(store->path()).check().value(); }
};

TEST_F(PackedStoriesTest, AreReadAsTheyCame) {
    const struct {
        const char* identity;
        QString story;
        QString kind;
    } cases[] = {
        {"none", QString(), u"text"_s},
        {"short", u"By noon."_s, u"text"_s},
        {"english", english, u"blob"_s},
        {"chinese", chinese, u"blob"_s},
        {"rare", noise(3000) + u"\U0001F4C8\U00020BB7"_s.repeated(100), u"blob"_s},
        {"largest", u"漲"_s.repeated(limits::storyLength), u"blob"_s},
    };
    for (const auto& one : cases) {
        const StoredNews stored = takeStory(QString::fromLatin1(one.identity), one.story);
        EXPECT_TRUE(storyOf(stored) == one.story) << one.identity;
        EXPECT_EQ(kindOf(one.identity), one.kind) << one.identity;
    }
    EXPECT_EQ(rows("SELECT count(*) FROM news_search('analysts')"), QStringList{u"1"_s});
    EXPECT_EQ(faults(), QStringList{});
}

TEST_F(PackedStoriesTest, StandBesideThoseOfBeforeAndAreComparedByTheirText) {
    takeStory(u"old"_s, english);
    Statement plain(*store, "UPDATE stories SET text = ?");
    ASSERT_TRUE(Query(plain, english).run());
    ASSERT_EQ(kindOf("old"), u"text"_s);
    EXPECT_EQ(faults(), QStringList{});
    // The same text again is no other version, whichever form it has.
    EXPECT_EQ(storyOf(takeStory(u"old"_s, english, 1)), english);
    EXPECT_EQ(kindOf("old"), u"blob"_s);
    EXPECT_EQ(rows("SELECT count(*) FROM versions"), QStringList{u"0"_s});
    const StoredNews changed = takeStory(u"old"_s, chinese, 2);
    const std::vector<NewsVersion> versions = StoreReader(*store).versions(changed.key);
    ASSERT_EQ(versions.size(), 1U);
    EXPECT_EQ(versions[0].story, english);
    EXPECT_EQ(faults(), QStringList{});
}

TEST_F(PackedStoriesTest, WhatWasMadeAheadOfAnotherTextIsNotUsed) {
    const PackedStory ahead{english, packedText(english.toUtf8())};
    EXPECT_EQ(storyOf(takeStory(u"same"_s, english, 0, ahead)), english);
    EXPECT_EQ(storyOf(takeStory(u"another"_s, chinese, 0, ahead)), chinese);
    const QString unclean = english + QChar(1);
    EXPECT_EQ(storyOf(takeStory(u"cleaned"_s, unclean, 0, {unclean, packedText(unclean.toUtf8())})), english);
    EXPECT_EQ(faults(), QStringList{});
}

TEST_F(PackedStoriesTest, DamageIsSeenAndNamed) {
    takeStory(u"sound"_s, chinese);
    const StoredNews news = takeStory(u"spoilt"_s, english);
    const QByteArray good = packedText(english.toUtf8());
    std::mt19937 random(11);
    const auto spoilt = [&](int round) {
        QByteArray bytes = good;
        const auto at = qsizetype(random() % std::size_t(bytes.size()));
        if (round % 3 == 0)
            bytes.truncate(at);
        else
            bytes[at] = char(bytes[at] ^ (1 << random() % 8));
        return bytes;
    };
    Statement put(*store, "UPDATE stories SET text = ? WHERE headline = 2");
    for (int round = 0; round < 60; ++round) {
        ASSERT_TRUE(Query(put, Blob{spoilt(round)}).run());
        // A bit that means nothing may be another one; no other text is ever given.
        const int before = store->damages();
        const QString read = storyOf(news);
        ASSERT_TRUE(read == english || (read.isEmpty() && store->damages() == before + 1)) << round;
    }
    // One that says that it is larger than any is not even begun.
    ASSERT_TRUE(Query(put, Blob{QByteArray::fromHex("28b52ffda0ffffff7f")}).run());
    EXPECT_EQ(storyOf(news), QString());
    EXPECT_TRUE(sentence(store->failure()).contains(u"the packed text of row 2"_s));
    const QStringList found = faults();
    ASSERT_FALSE(found.isEmpty());
    EXPECT_EQ(found[0], u"The stories of these headlines are no text, or too long: 1/spoilt."_s);
}

}  // namespace
}  // namespace wirepane
