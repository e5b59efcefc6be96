// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/news_item.h"

#include "output/printable_story.h"
#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

class NewsItemTest : public testing::Test {
protected:
    void give(const CHeadlineTable& entry, const QString& title, bool atHand = true) {
        backEnd.add(entry.service, entry.time, entry.sequence, title, 0, {}, atHand);
    }
    void tell(const CHeadlineTable& entry, const QString& story) {
        backEnd.addStory({entry.time, story, entry});
    }
    // "title|story" of each item, "-" for what is missing.
    static QStringList texts(const NewsItems& items) {
        QStringList result;
        for (const NewsItem& item : items)
            result.append((item.hasTitle ? item.title : u"-"_s) + u'|' +
                          (item.hasStory ? item.story : u"-"_s));
        return result;
    }

    const CHeadlineTable first{localTime(2026, 3, 2, 9, 5, 7), 7, 1, 0, 0};
    const CHeadlineTable second{localTime(2026, 3, 2, 9, 0), 3, 2, 5, 6};
    FakeBackEnd backEnd;
    const std::vector<unsigned char> services{1, 2};
};

}  // namespace

TEST(PrintableStoryTest, WritesStoriesInLines) {
    const CHeadlineTable first{localTime(2026, 3, 2, 9, 5, 7), 7, 1, 0, 0};
    const CStory story{first.time, u"One@@@@Two\r\nand a rest@@@@"_s, first};
    EXPECT_EQ(PrintedStory(story), u"\r\n2026/03/ 2 09:05:07One\r\nTwo"_s) << "cut at the line break";
    EXPECT_EQ(LateStory(story), u"\r\n2026/03/ 2 09:05:07One\r\nTwoand a rest\r\n"_s) << "whole";
    EXPECT_EQ(SavedStory(story), u"One\r\nTwo"_s) << "without the date";
    CStory never = story;
    never.time = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(LateStory(never).left(22), u"\r\n   0/00/ 0 -1:-1:-1O"_s);
    EXPECT_EQ(SavedStory({0, {}, first}), QString());
}

TEST_F(NewsItemTest, GathersWhatIsAtHand) {
    give(first, u"Rates"_s);
    give(second, u"Freight"_s);
    tell(second, u"Body@@@@End"_s);
    NewsItems items = GatherNews(backEnd, {second, first}, services, &SavedStory);
    EXPECT_EQ(texts(items), (QStringList{u"Freight|Body\r\nEnd"_s, u"Rates|-"_s}));
    EXPECT_FALSE(bIsSettled(items));
    EXPECT_EQ(texts(GatherNews(backEnd, {second, first}, {1}, &SavedStory)),
              (QStringList{u"-|Body\r\nEnd"_s, u"Rates|-"_s}))
        << "a service that the list does not look at";
    EXPECT_TRUE(bIsSettled(NewsItems()));
}

TEST_F(NewsItemTest, AsksOnceForWhatIsMissing) {
    give(first, u"Rates"_s, false);
    give(second, u"Freight"_s);
    tell(first, u"Body"_s);
    NewsItems items = GatherNews(backEnd, {second, first}, services, &PrintedStory);
    backEnd.asked.clear();
    RequestMissing(backEnd, items);
    EXPECT_EQ(backEnd.asked, (QStringList{u"again 1 [7]"_s, u"again story 2 3"_s}));
}

TEST_F(NewsItemTest, TakesWhatComesLater) {
    give(first, u"Rates"_s, false);
    give(second, u"Freight"_s);
    NewsItems items = GatherNews(backEnd, {first, second}, services, &PrintedStory);
    tell(first, u"A\r\nB"_s);
    tell(second, u"C"_s);
    TakeStory(backEnd, items, first);
    EXPECT_EQ(texts(items), (QStringList{u"-|-"_s, u"Freight|-"_s})) << "a story waits for its title";
    const CHeadlineTable otherDay{second.time + 86400, second.sequence, second.service, 5, 6};
    TakeStory(backEnd, items, otherDay);
    EXPECT_EQ(texts(items)[1], u"Freight|-"_s);
    backEnd.makeAllAtHand();
    TakeTitles(backEnd, items, {second}, services);
    EXPECT_EQ(texts(items)[0], u"-|-"_s) << "nothing was said of this one";
    TakeTitles(backEnd, items, {first}, services);
    EXPECT_EQ(texts(items)[0], u"Rates|\r\n2026/03/ 2 09:05:07AB"_s) << "whole, and with its date";
    TakeStory(backEnd, items, second);
    EXPECT_TRUE(bIsSettled(items));
}

TEST_F(NewsItemTest, WhatWillNotComeIsWaitedForNoLonger) {
    give(first, u"Rates"_s);
    give(second, u"Freight"_s, false);
    NewsItems items = GatherNews(backEnd, {first, second}, services, &PrintedStory);
    tell(first, {});
    TakeStory(backEnd, items, first);
    EXPECT_TRUE(items[0].leftOut) << "an empty story is none";
    EXPECT_FALSE(bIsSettled(items));
    TakeTitles(backEnd, items, {first}, services);
    EXPECT_FALSE(items[1].leftOut) << "nothing was said of this one";
    TakeTitles(backEnd, items, {second}, services);
    EXPECT_TRUE(items[1].leftOut) << "announced, and nowhere to be had";
    EXPECT_TRUE(bIsSettled(items));
    EXPECT_TRUE(Complete(items).empty());
    EXPECT_TRUE(GatherNews(backEnd, {first}, services, &SavedStory)[0].leftOut) << "empty when looked up";
    // What comes all the same counts.
    tell(first, u"After all"_s);
    TakeStory(backEnd, items, first);
    ASSERT_EQ(Complete(items).size(), 1U);
    EXPECT_EQ(texts(Complete(items)), QStringList{u"Rates|\r\n2026/03/ 2 09:05:07After all"_s});
}

TEST_F(NewsItemTest, ATitleThatWasAnnouncedIsHadFromItsOwnServiceToo) {
    give(second, u"Freight"_s, false);
    NewsItems items = GatherNews(backEnd, {second}, {1}, &PrintedStory);
    backEnd.makeAllAtHand();
    TakeTitles(backEnd, items, {second}, {1});
    EXPECT_EQ(texts(items), QStringList{u"Freight|-"_s});
    EXPECT_FALSE(items[0].leftOut);
}

TEST_F(NewsItemTest, AStoryOfOtherNewsIsNotTaken) {
    give(first, u"Rates"_s);
    NewsItems items = GatherNews(backEnd, {first}, services, &PrintedStory);
    CStory strange{first.time, u"Wrong"_s, first};
    strange.entry.last = 1;
    backEnd.addStory(strange);
    TakeStory(backEnd, items, first);
    EXPECT_FALSE(items[0].hasStory);
}
