// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/output_item.h"

#include "output/printable_story.h"
#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

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
    static QStringList texts(const OutputItems& items) {
        QStringList result;
        for (const OutputItem& item : items)
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
    EXPECT_EQ(printedStory(story), u"\r\n2026/03/ 2 09:05:07One\r\nTwo"_s) << "cut at the line break";
    EXPECT_EQ(lateStory(story), u"\r\n2026/03/ 2 09:05:07One\r\nTwoand a rest\r\n"_s) << "whole";
    EXPECT_EQ(savedStory(story), u"One\r\nTwo"_s) << "without the date";
    CStory never = story;
    never.time = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(lateStory(never).left(22), u"\r\n   0/00/ 0 -1:-1:-1O"_s);
    EXPECT_EQ(savedStory({0, {}, first}), QString());
}

TEST_F(NewsItemTest, GathersWhatIsAtHand) {
    give(first, u"Rates"_s);
    give(second, u"Freight"_s);
    tell(second, u"Body@@@@End"_s);
    OutputItems items = gatherNews(backEnd, {second, first}, services, &savedStory);
    EXPECT_EQ(texts(items), (QStringList{u"Freight|Body\r\nEnd"_s, u"Rates|-"_s}));
    EXPECT_FALSE(isSettled(items));
    EXPECT_EQ(texts(gatherNews(backEnd, {second, first}, {1}, &savedStory)),
              (QStringList{u"-|Body\r\nEnd"_s, u"Rates|-"_s}))
        << "a service that the list does not look at";
    EXPECT_TRUE(isSettled(OutputItems()));
}

TEST_F(NewsItemTest, AsksOnceForWhatIsMissing) {
    give(first, u"Rates"_s, false);
    give(second, u"Freight"_s);
    tell(first, u"Body"_s);
    OutputItems items = gatherNews(backEnd, {second, first}, services, &printedStory);
    backEnd.asked.clear();
    requestMissing(backEnd, items);
    EXPECT_EQ(backEnd.asked, (QStringList{u"again 1 [7]"_s, u"again story 2 3"_s}));
}

TEST_F(NewsItemTest, TakesWhatComesLater) {
    give(first, u"Rates"_s, false);
    give(second, u"Freight"_s);
    OutputItems items = gatherNews(backEnd, {first, second}, services, &printedStory);
    tell(first, u"A\r\nB"_s);
    tell(second, u"C"_s);
    takeStory(backEnd, items, first);
    EXPECT_EQ(texts(items), (QStringList{u"-|-"_s, u"Freight|-"_s})) << "a story waits for its title";
    const CHeadlineTable otherDay{second.time + 86400, second.sequence, second.service, 5, 6};
    takeStory(backEnd, items, otherDay);
    EXPECT_EQ(texts(items)[1], u"Freight|-"_s);
    backEnd.makeAllAtHand();
    takeTitles(backEnd, items, {second}, services);
    EXPECT_EQ(texts(items)[0], u"-|-"_s) << "nothing was said of this one";
    takeTitles(backEnd, items, {first}, services);
    EXPECT_EQ(texts(items)[0], u"Rates|\r\n2026/03/ 2 09:05:07AB"_s) << "whole, and with its date";
    takeStory(backEnd, items, second);
    EXPECT_TRUE(isSettled(items));
}

TEST_F(NewsItemTest, WhatWillNotComeIsWaitedForNoLonger) {
    give(first, u"Rates"_s);
    give(second, u"Freight"_s, false);
    OutputItems items = gatherNews(backEnd, {first, second}, services, &printedStory);
    tell(first, {});
    takeStory(backEnd, items, first);
    EXPECT_TRUE(items[0].leftOut) << "an empty story is none";
    EXPECT_FALSE(isSettled(items));
    takeTitles(backEnd, items, {first}, services);
    EXPECT_FALSE(items[1].leftOut) << "nothing was said of this one";
    takeTitles(backEnd, items, {second}, services);
    EXPECT_TRUE(items[1].leftOut) << "announced, and nowhere to be had";
    EXPECT_TRUE(isSettled(items));
    EXPECT_TRUE(completeItems(items).empty());
    EXPECT_TRUE(gatherNews(backEnd, {first}, services, &savedStory)[0].leftOut) << "empty when looked up";
    // What comes all the same counts.
    tell(first, u"After all"_s);
    takeStory(backEnd, items, first);
    ASSERT_EQ(completeItems(items).size(), 1U);
    EXPECT_EQ(texts(completeItems(items)), QStringList{u"Rates|\r\n2026/03/ 2 09:05:07After all"_s});
}

TEST_F(NewsItemTest, ATitleThatWasAnnouncedIsHadFromItsOwnServiceToo) {
    give(second, u"Freight"_s, false);
    OutputItems items = gatherNews(backEnd, {second}, {1}, &printedStory);
    backEnd.makeAllAtHand();
    takeTitles(backEnd, items, {second}, {1});
    EXPECT_EQ(texts(items), QStringList{u"Freight|-"_s});
    EXPECT_FALSE(items[0].leftOut);
}

TEST_F(NewsItemTest, AStoryOfOtherNewsIsNotTaken) {
    give(first, u"Rates"_s);
    OutputItems items = gatherNews(backEnd, {first}, services, &printedStory);
    CStory strange{first.time, u"Wrong"_s, first};
    strange.entry.last = 1;
    backEnd.addStory(strange);
    takeStory(backEnd, items, first);
    EXPECT_FALSE(items[0].hasStory);
}

}  // namespace wirepane
