// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_reader.h"

#include "tests/story/entry_list.h"
#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

static void PrintTo(const StoryTexts& texts, std::ostream* out) {
    *out << "title: " << texts.title.value_or(u"(none)"_s).toStdString()
         << "\nstory: " << texts.story.value_or(u"(none)"_s).toStdString();
}

namespace {

constexpr ListIndex list = EntryList::number;

// Two headlines of 2 March 2026, newest first: number 7 of service 1, number 3 of service 2.
class StoryReaderTest : public testing::Test {
protected:
    StoryReaderTest() {
        backEnd.texts = {{u"IDS_NEWSCTRLVIEW_STRING_RECOVER"_s, u"Fetching"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_PS"_s, u"End."_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY"_s, u"No story"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_REPLASE_NEWS"_s, u"资讯"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_REPLASE_MESSAGE"_s, u"信息"_s}};
        owner.entries = {first, second};
        reader.showSource(&owner);
    }
    void giveHeadline(const CHeadlineTable& entry, const QString& title) {
        backEnd.add(entry.service, entry.time, entry.sequence, title);
    }
    void giveStory(const CHeadlineTable& entry, const QString& wire) {
        backEnd.addStory({localTime(2026, 3, 2, 9, 31), wire, entry});
    }
    StoryTexts show(int position) {
        reader.pointAt(list, position);
        return reader.showData();
    }

    const CHeadlineTable first{localTime(2026, 3, 2, 9, 30), 7, 1, 11, 12};
    const CHeadlineTable second{localTime(2026, 3, 2, 9, 0), 3, 2, 0, 0};
    const StoryTexts nothing;
    FakeBackEnd backEnd;
    EntryList owner;
    StoryReader reader{backEnd};
};

}  // namespace

TEST_F(StoryReaderTest, ShowsWhatIsAtHandAndAPlaceholderForTheRest) {
    EXPECT_EQ(show(0), (StoryTexts{u"Fetching"_s, u"Fetching"_s}));
    giveHeadline(first, u"Rates <b>rise</b>"_s);
    const QString title = u"2026/03/02 09:30:00 \r\nRates <b>rise</b>"_s;
    EXPECT_EQ(show(0), (StoryTexts{title, u"Fetching"_s}));
    giveStory(first, u"One\r\nline@@@@two"_s);
    EXPECT_EQ(show(0), (StoryTexts{title, u"2026/03/02 09:31:00 \r\nOneline\r\ntwo  \r\n\r\nEnd."_s}));
    EXPECT_EQ(show(1), (StoryTexts{u"Fetching"_s, u"Fetching"_s})) << "nothing is left of another story";
    giveStory(second, {});
    EXPECT_EQ(show(1), (StoryTexts{u"Fetching"_s, u"2026/03/02 09:31:00 \r\n  \r\n\r\nEnd."_s}));
    EXPECT_EQ(show(2), (StoryTexts{u"Fetching"_s, u"Fetching"_s})) << "below the list";
    owner.entries.clear();
    EXPECT_EQ(show(0), nothing);
}

TEST_F(StoryReaderTest, TellsWhatBecameOfTheNewsAndShowsWhatHasChanged) {
    backEnd.texts.insert({{u"IDS_NEWSCTRLVIEW_CORRECTED"_s, u"Corrected"_s},
                          {u"IDS_NEWSCTRLVIEW_CORRECTED_NUMBERS"_s, u"Corrected: %1"_s},
                          {u"IDS_NEWSCTRLVIEW_CORRECTED_AFTER_READING"_s, u"%1 s after reading"_s},
                          {u"IDS_NEWSCTRLVIEW_TIP_WITHDRAWN_WHY"_s, u"Withdrawn %1: %2"_s},
                          {u"IDS_NEWSCTRLVIEW_SEVERAL_SOURCES"_s, u"Brought by %1"_s},
                          {u"IDS_NEWSCTRLVIEW_BETWEEN_SOURCES"_s, u", "_s},
                          {u"IDS_NEWSCTRLVIEW_SHOW_CHANGES"_s, u"Show"_s},
                          {u"IDS_NEWSCTRLVIEW_HIDE_CHANGES"_s, u"Hide"_s}});
    giveHeadline(first, u"Profit 3.55 billion"_s);
    giveStory(first, u"Made 3.55 billion.@@@@Up."_s);
    giveHeadline(second, u"Freight"_s);
    giveStory(second, u"Ships."_s);
    reader.tellHeads(true);
    const StoryTexts plain = show(0);
    EXPECT_EQ(reader.turnChanges(), nothing) << "not told";
    reader.tellChanges(true);
    EXPECT_EQ(show(0), plain) << "as first sent";
    EXPECT_EQ(reader.turnChanges(), nothing);

    backEnd.states[7] = {1, Withdrawal{first.time, u"Untrue"_s}};
    backEnd.versions[7] = {
        {first.time, first.time, u"Profit 5.35 billion"_s, u"Made 5.35 billion.@@@@Up."_s}};
    const StoryTexts told = show(0);
    EXPECT_EQ(told.story, plain.story);
    EXPECT_EQ(told.head->remark,
              u"Corrected: 5.35 billion → 3.55 billion · Withdrawn 2026/03/02 09:30:00: Untrue"_s);
    EXPECT_EQ(told.head->changes, u"Show"_s);
    const StoryTexts changes = reader.turnChanges();
    EXPECT_EQ(changes.head->changes, u"Hide"_s);
    EXPECT_EQ(changes.story,
              u"2026/03/02 09:31:00 \r\nProfit 5.353.55 billion\r\n\r\nMade 5.353.55 "
              "billion.\r\nUp.  \r\n\r\nEnd."_s);
    EXPECT_EQ(changes.changes,
              (std::vector<ChangeMark>{{28, 4, true}, {32, 4, false}, {51, 4, true}, {55, 4, false}}));
    EXPECT_EQ(show(0).changes, changes.changes) << "the same headline again";
    EXPECT_EQ(show(1).changes, std::vector<ChangeMark>{});
    EXPECT_EQ(show(0), told) << "another headline was between";
    reader.turnChanges();
    StoryTexts back = reader.turnChanges();
    back.title = told.title;
    EXPECT_EQ(back, told);

    backEnd.versions[7] = {{first.time, first.time, u"Profit 3.55 billion"_s, std::nullopt}};
    EXPECT_TRUE(show(0).head->remark.startsWith(u"Corrected · "));
    // What the user has read is what is compared.
    backEnd.versions[7] = {
        {first.time, first.time, u"Profit 5.35 billion"_s, u"Made 3.55 billion.@@@@Up."_s, first.time + 1300,
         first.time, first.time + 60},
        {first.time, first.time + 1300, u"Profit 9.99 billion"_s, u"Made 3.55 billion.@@@@Up."_s}};
    EXPECT_TRUE(show(0).head->remark.startsWith(
        u"Corrected: 5.35 billion → 3.55 billion · 1,240 s after reading · Withdrawn"_s));

    backEnd.states.clear();
    backEnd.origins[7] = {u"Exchange"_s};
    EXPECT_EQ(show(0).head->remark, QString()) << "one source is no news";
    backEnd.origins[7] += u"100% paper"_s;
    EXPECT_EQ(show(0).head->remark, u"Brought by Exchange, 100% paper"_s);
}

TEST_F(StoryReaderTest, AsksTheActiveServicesUntilOneHasTheHeadline) {
    giveHeadline(second, u"Freight"_s);
    backEnd.asked.clear();
    owner.active = {1, 2, 16};
    EXPECT_EQ(show(1).title, u"2026/03/02 09:00:00 \r\nFreight"_s);
    EXPECT_EQ(backEnd.asked, (QStringList{u"headlines 1 [3]"_s, u"headlines 2 [3]"_s, u"story 2 3"_s}));
    owner.active = {1};
    EXPECT_EQ(show(1).title, u"Fetching"_s);
}

TEST_F(StoryReaderTest, ConvertsTitleAndBodyWhereAsked) {
    giveHeadline(first, u"新聞資讯"_s);
    giveStory(first, u"資讯@@@@聞 資\n讯"_s);
    backEnd.simplified = true;
    const QString title = u"2026/03/02 09:30:00 \r\n新闻信息"_s;
    // The term is looked for before the lines are joined.
    EXPECT_EQ(show(0), (StoryTexts{title, u"2026/03/02 09:31:00 \r\n信息\r\n闻 资讯  \r\n\r\nEnd."_s}));
    EXPECT_EQ(reader.RespHeadLine({first}), (StoryTexts{title, {}}));
    EXPECT_EQ(reader.RespStory(first).story, u"2026/03/02 09:31:00 \r\n信息\r\n闻 资讯 \r\n\r\nEnd."_s);
    // Each service is asked for itself.
    giveHeadline(second, u"新聞"_s);
    giveStory(second, u"聞"_s);
    backEnd.simplified = false;
    backEnd.simplifiedServices = {0, 1};
    EXPECT_EQ(show(1),
              (StoryTexts{u"2026/03/02 09:00:00 \r\n新聞"_s, u"2026/03/02 09:31:00 \r\n聞  \r\n\r\nEnd."_s}));
    EXPECT_EQ(reader.RespStory(second).story, u"2026/03/02 09:31:00 \r\n聞 \r\n\r\nEnd."_s);
    EXPECT_EQ(show(0).title, title);
}

TEST_F(StoryReaderTest, AnswersFillInWhatWasAwaited) {
    show(0);
    EXPECT_EQ(reader.RespHeadLine({second, first}), nothing) << "announced, but not to be had";
    EXPECT_EQ(reader.RespStory(first), nothing);
    giveHeadline(first, u"Rates rise"_s);
    giveStory(first, u"Body"_s);
    const QString title = u"2026/03/02 09:30:00 \r\nRates rise"_s;
    const StoryTexts story{{}, u"2026/03/02 09:31:00 \r\nBody \r\n\r\nEnd."_s};
    for (int times = 0; times < 2; ++times) {
        EXPECT_EQ(reader.RespHeadLine({second, first}), (StoryTexts{title, {}}));
        EXPECT_EQ(reader.RespStory(first), story);
    }
    giveStory(first, {});
    EXPECT_EQ(reader.RespStory(first), (StoryTexts{{}, u"2026/03/02 09:31:00 \r\nNo story"_s}));
}

TEST_F(StoryReaderTest, IgnoresAnswersForWhatIsNotShown) {
    giveHeadline(first, u"Rates rise"_s);
    giveHeadline(second, u"Freight"_s);
    giveStory(first, u"Body"_s);
    giveStory(second, u"Other body"_s);
    const CHeadlineTable dayBefore{first.time - 86'400, 7, 1, 11, 12};
    giveStory(dayBefore, u"Old body"_s);
    const auto ignored = [this](const CHeadlineTable& answer, const char* when) {
        EXPECT_EQ(reader.RespHeadLine({answer}), nothing) << when;
        EXPECT_EQ(reader.RespStory(answer), nothing) << when;
    };
    ignored(first, "nothing was shown yet");
    show(0);
    backEnd.asked.clear();
    ignored(second, "another entry");
    ignored(dayBefore, "the same number of another day");
    EXPECT_EQ(reader.RespHeadLine({}), nothing);
    EXPECT_EQ(backEnd.asked, QStringList()) << "nothing is read for answers that are ignored";

    owner.entries = {second, first};
    ignored(first, "the list was rebuilt: the entry stands elsewhere");
    ignored(second, "the list was rebuilt: another entry stands there");
    owner.entries.clear();
    ignored(first, "the list is empty");
    owner.entries = {first, second};
    EXPECT_NE(reader.RespStory(first), nothing);
    reader.OnClearStory();
    ignored(first, "the display was cleared");
}

TEST_F(StoryReaderTest, AStoryAskedForByRowComesWithItsTitle) {
    giveHeadline(second, u"Freight"_s);
    giveStory(second, u"Other body"_s);
    show(0);
    reader.SetHeadLinePos(1);
    EXPECT_EQ(reader.RespHeadLine({second}), nothing) << "no title over the story of another headline";
    const QString story = u"2026/03/02 09:31:00 \r\nOther body \r\n\r\nEnd."_s;
    EXPECT_EQ(reader.RespStory(second), (StoryTexts{u"2026/03/02 09:00:00 \r\nFreight"_s, story}));
    EXPECT_EQ(reader.RespStory(second), (StoryTexts{{}, story}));
    reader.SetHeadLinePos(1);
    EXPECT_EQ(reader.RespStory(second), (StoryTexts{{}, story})) << "it is shown already";
}

TEST_F(StoryReaderTest, ThePositionMovesWithItsHeadline) {
    giveStory(second, u"Body"_s);
    show(-5);
    EXPECT_EQ(reader.GetHeadLinePos(), 0);
    EXPECT_EQ(reader.list(), list);
    show(1);
    owner.entries.insert(owner.entries.begin(), {first.time + 60, 8, 1, 0, 0});
    reader.RecvNewHeadLine();
    EXPECT_EQ(reader.GetHeadLinePos(), 2);
    EXPECT_NE(reader.RespStory(second), nothing);
}

}  // namespace wirepane
