// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/arrivals.h"
#include "headline_list/column_widths.h"
#include "headline_list/row_tip.h"
#include "headline_list/title_chips.h"
#include "host/contract/cfg_io.h"
#include "host/contract/view_options.h"
#include "host/controls/row_look.h"
#include "host/controls/row_tints.h"
#include "tests/headline_list/list_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using HeadlineLookTest = HeadlineListTest;

ViewOptions ownOptions() {
    MemoryCfgIO store;
    ViewOptions::writeMissing(store, {});
    return ViewOptions::read(store, {});
}

}  // namespace

TEST(TitleChips, StandForTheWordsAtTheHead) {
    const struct {
        QString title, label, rest;
        bool urgent;
    } rows[] = {{u"FLASH: Rates up"_s, u"FLASH"_s, u"Rates up"_s, true},
                {u"快訊：台灣出口增"_s, u"快訊"_s, u"台灣出口增"_s, true},
                {u"快讯：  增"_s, u"快讯"_s, u"增"_s, true},
                {u"CORRECTED:New rules"_s, u"CORRECTED"_s, u"New rules"_s, false},
                {u"（更正）《開市》"_s, u"更正"_s, u"《開市》"_s, false},
                {u"FLASH: "_s, {}, u"FLASH: "_s, false},  // nothing would be left
                {u"Flash: Rates up"_s, {}, u"Flash: Rates up"_s, false},
                {{}, {}, {}, false}};
    for (const auto& row : rows) {
        const SheetChip chip = chipOfTitle(row.title);
        EXPECT_EQ(row.title.mid(chip.labelFrom, chip.labelLength), row.label);
        EXPECT_EQ(row.title.mid(chip.length), row.rest);
        EXPECT_EQ(chip.urgent, row.urgent);
    }
}

TEST(Arrivals, FadeInEightStepsAndAreForgotten) {
    Arrivals arrivals;
    const HeadlineKey key{100, 1, 2};
    arrivals.note(key, 1000);
    for (const auto& [now, step] :
         {std::pair{1000, 8}, {1499, 8}, {1500, 7}, {4999, 1}, {5000, 0}, {99000, 0}})
        EXPECT_EQ(arrivals.stepOf(key, now), step) << now;
    EXPECT_EQ(arrivals.stepOf({100, 2, 2}, 1000), 0);
    arrivals.forgetFaded(4999);
    EXPECT_TRUE(arrivals.holds(key));
    arrivals.forgetFaded(5000);
    EXPECT_TRUE(arrivals.isEmpty());
    EXPECT_TRUE(Arrivals::isNew(10'000, 10'900));
    EXPECT_FALSE(Arrivals::isNew(10'000, 10'901)) << "what was published before is late, not new";
}

TEST_F(HeadlineLookTest, ATipSaysWhatARowHasNoRoomFor) {
    for (const auto& [key, text] :
         {std::pair{"SECONDS", u"%1 s"_s}, {"MINUTES", u"%1 min"_s}, {"HOURS", u"%1 h"_s}})
        backEnd.texts[u"IDS_NEWSCTRLVIEW_TIP_%1_AGO"_s.arg(QLatin1StringView(key))] = text;
    const std::int64_t time = localTime(2026, 3, 2, 9, 30, 5);
    EXPECT_EQ(rowTip(backEnd, u"Rates <b>up</b>"_s, u"General"_s, {}, time, time + 59),
              u"Rates <b>up</b>\nGeneral · 2026/03/02 09:30:05 · 59 s"_s);
    EXPECT_TRUE(rowTip(backEnd, u"T"_s, {}, u"Policy"_s, time, time + 3599).endsWith(u"59 min"));
    EXPECT_TRUE(rowTip(backEnd, u"T"_s, {}, u"Policy"_s, time, time + 2 * 86400 - 1).endsWith(u"47 h"));
    EXPECT_TRUE(rowTip(backEnd, u"T"_s, {}, {}, time, time - 1).endsWith(u"09:30:05"));  // yet to come
}

TEST_F(HeadlineLookTest, RowsSayWhatBecameOfTheirNews) {
    for (const auto& [key, text] : {std::pair{u"CORRECTED"_s, u"fixed"_s},
                                    {u"WITHDRAWN"_s, u"gone"_s},
                                    {u"TIP_CORRECTED"_s, u"%1 before"_s},
                                    {u"TIP_WITHDRAWN"_s, u"gone at %1"_s},
                                    {u"TIP_DAYS_AGO"_s, u"%1 d"_s},
                                    {u"TIP_WITHDRAWN_WHY"_s, u"gone at %1: %2"_s}})
        backEnd.texts[u"IDS_NEWSCTRLVIEW_"_s + key] = text;
    const std::int64_t time = localTime(2026, 3, 2, 9, 30);
    backEnd.states[2].corrections = 2;
    backEnd.states[3].withdrawal = Withdrawal{time + 60, {}};
    backEnd.states[4] = {.corrections = 1, .withdrawal = Withdrawal{time + 60, u"Untrue"_s}};
    HeadlineList& news = list(ListIndex::All);
    news.setTable({{{time, 4, 1}, {time, 3, 1}, {time, 2, 1}, {time, 1, 1}}});
    news.vFillHeadlineTable();
    for (int row = 0; row < 4; ++row)
        news.vFillSheet(row, u"09:30"_s, u"Topic"_s, u"T"_s);
    const auto told = [&](int row) {
        return news.mark(row, titleColumn) + (news.isStruck(row, titleColumn) ? u"|struck|"_s : u"|"_s) +
               news.toolTip(row).section(u'\n', 2);
    };
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(news.mark(row, titleColumn) + news.toolTip(row), QString()) << "bare";
    news.setOptions(ownOptions());
    EXPECT_EQ(told(3), u"|"_s);
    EXPECT_EQ(told(2), u"fixed|2 before"_s);
    news.vFillSheet(2, u"09:30"_s, u"Topic"_s, u"CORRECTED: T"_s);
    EXPECT_EQ(told(2), u"|2 before"_s) << "the title says it";
    EXPECT_EQ(told(1), u"gone|struck|gone at 2026/03/02 09:31:00"_s);
    EXPECT_EQ(told(0), u"gone|struck|1 before\ngone at 2026/03/02 09:31:00: Untrue"_s);
    EXPECT_EQ(news.mark(1, timeColumn), QString());
    EXPECT_EQ(news.mark(4, titleColumn), QString());
    EXPECT_FALSE(news.isStruck(-1, titleColumn));
}

TEST_F(HeadlineLookTest, RowsStandOutAsTheHostSays) {
    const std::int64_t time = localTime(2026, 3, 2, 9, 30);
    backEnd.looks[1] = {2, u"METAL"_s};
    HeadlineList& news = list(ListIndex::All);
    news.setTable({{{time, 2, 1}, {time, 1, 1}}});
    news.vFillHeadlineTable();
    news.vFillSheet(1, u"09:30"_s, u"Topic"_s, u"T"_s);
    EXPECT_FALSE(news.highlight(1, titleColumn).isValid()) << "bare";
    EXPECT_EQ(news.mark(1, titleColumn), QString()) << "bare";
    news.setOptions(ownOptions());
    EXPECT_EQ(news.highlight(1, timeColumn), rowTint(2));
    EXPECT_LT(rowTint(2).alpha(), 100) << "one reads through it";
    EXPECT_EQ(news.mark(1, titleColumn), u"METAL"_s);
    EXPECT_TRUE(news.spokenText(1, titleColumn).contains(u"METAL"_s));
    EXPECT_FALSE(news.highlight(0, timeColumn).isValid());
    backEnd.looks.clear();
    emit backEnd.lookTells.changed();
    EXPECT_FALSE(news.highlight(1, timeColumn).isValid());
    for (const int none : {-1, 0, HeadlineLook::tints + 1})
        EXPECT_FALSE(rowTint(none).isValid());
}

TEST_F(HeadlineLookTest, MeasuredColumnsHoldTheirTextsAtAnySize) {
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_CATEGORY"_s] = u"Topic"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_TIME"_s] = u"Time"_s;
    HeadlineList& news = list(ListIndex::All);
    CSuperSheetWnd& grid = *news.grid();
    EXPECT_EQ(grid.colWidth(timeColumn), 100);
    for (const int points : {9, 14, 20}) {
        QFont font = grid.font();
        font.setPointSize(points);
        grid.vSetFont(font);
        news.setOptions(ownOptions());
        news.setTable({{{localTime(2026, 3, 2, 9, 30), 1, 1, 0, 0}}});
        news.vFillHeadlineTable();
        const QFontMetrics metrics(font);
        const int bound = 140 * textHeight(font) / 18;
        for (const auto& [topic, widest] :
             {std::pair{u"Tax"_s, u"Topic"_s}, {u"Transport"_s, u"Transport"_s}}) {
            news.vFillSheet(0, u"09:30"_s, topic, u"T"_s);
            EXPECT_GE(grid.colWidth(categoryColumn), metrics.horizontalAdvance(topic) + 16);
            EXPECT_LE(grid.colWidth(categoryColumn), metrics.horizontalAdvance(widest) + 16 + 1);
        }
        news.vFillSheet(0, u"09:30"_s, QString(80, u'W'), u"T"_s);
        EXPECT_EQ(grid.colWidth(categoryColumn), std::max(140, bound));
        const int ofTime = grid.colWidth(timeColumn);
        EXPECT_GE(ofTime, 16 + metrics.horizontalAdvance(u"00:00"_s) + 14);
        CHeadline headline{1, localTime(2026, 3, 2, 9, 31), 2, u"dated"_s, 0, 7, 0};
        news.vProcessNewHeadline(headline, true);  // with its date
        EXPECT_GE(grid.colWidth(timeColumn), 16 + metrics.horizontalAdvance(u"00/00 00:00"_s) + 14);
        EXPECT_GT(grid.colWidth(timeColumn), ofTime);
        const int others = grid.colWidth(timeColumn) + grid.colWidth(categoryColumn);
        EXPECT_EQ(grid.colWidth(titleColumn), std::max(120, grid.viewport()->width() - others));
    }
}

TEST_F(HeadlineLookTest, WidthsGivenByHandAreKept) {
    HeadlineList& news = list(ListIndex::All);
    emit news.grid()->columnDragged(categoryColumn, 77);
    EXPECT_EQ(news.keptWidths(), QString());  // plain columns are not kept
    news.setOptions(ownOptions());
    emit news.grid()->columnDragged(categoryColumn, 77);
    emit news.grid()->columnDragged(titleColumn, 55);  // has the rest
    EXPECT_EQ(news.keptWidths(), u"0,77,0"_s);
    news.showColumn(HeadlineColumn::Category, false);
    EXPECT_EQ(news.grid()->colWidth(categoryColumn), 0);
    HeadlineList& other = list(ListIndex::Search);
    other.setOptions(ownOptions());
    for (const QString& kept : {u"x,,-5"_s, news.keptWidths()})
        other.restoreWidths(kept);
    EXPECT_EQ(other.grid()->colWidth(categoryColumn), 77);
    emit other.grid()->columnEndDoubleClicked(categoryColumn);
    EXPECT_NE(other.grid()->colWidth(categoryColumn), 77);
    EXPECT_EQ(other.keptWidths(), QString());
}

}  // namespace wirepane
