// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/news_key.h"
#include "headline_list/relation_matcher.h"
#include "headline_list/table_reading.h"
#include "tests/headline_list/list_fixture.h"

namespace wirepane {

namespace {

const QString day = QStringLiteral("20260302");

}  // namespace

TEST_F(HeadlineListTest, ADayOfTickedServicesIsMergedNewestFirst) {
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, QStringLiteral("a1"), 7);
    backEnd.add(1, localTime(2026, 3, 2, 9, 30), 2, QStringLiteral("a2"));
    backEnd.add(2, localTime(2026, 3, 2, 9, 10), 1, QStringLiteral("b1"), 7);
    backEnd.add(2, localTime(2026, 3, 2, 9, 30), 9, QStringLiteral("b9"), 7);
    backEnd.add(16, localTime(2026, 3, 2, 9, 20), 1, QStringLiteral("not ticked"));
    backEnd.add(1, localTime(2026, 3, 1, 9, 20), 3, QStringLiteral("the day before"));
    HeadlineList& all = list(ListIndex::All);
    EXPECT_TRUE(lists.rebuild(ListIndex::All, TableKind::ByDate, day));
    EXPECT_EQ(rows(all),
              (QStringList{QStringLiteral("09:30 | Markets | b9"), QStringLiteral("09:30 | (recover) | a2"),
                           QStringLiteral("09:10 | Markets | b1"), QStringLiteral("09:00 | Markets | a1")}));
    EXPECT_EQ(all.textColour(0, categoryColumn), QColor(Qt::red));
    EXPECT_FALSE(all.textColour(1, categoryColumn).isValid());
    EXPECT_FALSE(all.textColour(0, titleColumn).isValid());

    EXPECT_FALSE(lists.rebuild(ListIndex::All, TableKind::ByDate, QStringLiteral("20250101")));
    EXPECT_EQ(all.grid()->rowCount(), 0);
    EXPECT_EQ(rows(all), QStringList());
}

TEST_F(HeadlineListTest, OnlyVisibleRowsAreReadAndWritten) {
    for (int i = 0; i < 200; ++i)
        backEnd.add(1, localTime(2026, 3, 2, 9, 0, i % 60) + 60 * (i / 60), i, QString::number(i));
    HeadlineList& all = list(ListIndex::All);
    lists.rebuild(ListIndex::All, TableKind::ByDate, day);
    const int page = all.grid()->rowsPerPage();
    ASSERT_GE(page, 4);
    ASSERT_LE(page, 6);
    EXPECT_EQ(owner.rowsWritten, page + 1);
    EXPECT_EQ(all.text(page, titleColumn), QString::number(199 - page));
    EXPECT_EQ(all.text(page + 1, titleColumn), QString());

    backEnd.asked.clear();
    all.grid()->vAutoVerScrolling(199);
    all.vFillHeadline();
    EXPECT_EQ(all.text(199, titleColumn), QStringLiteral("0"));
    EXPECT_EQ(all.text(100, titleColumn), QString());
    ASSERT_EQ(backEnd.asked.size(), 2);  // one request per ticked service
    EXPECT_TRUE(backEnd.asked[0].startsWith(QStringLiteral("headlines 1 [")))
        << backEnd.asked[0].toStdString();
}

TEST_F(HeadlineListTest, ARowWithItsTitleIsNotWrittenAgain) {
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, QStringLiteral("same"), 7);
    HeadlineList& all = list(ListIndex::All);
    lists.rebuild(ListIndex::All, TableKind::ByDate, day);
    const int written = owner.rowsWritten;
    all.vFillHeadline();
    EXPECT_EQ(owner.rowsWritten, written);

    // Its time cell stays as it was written even when the headline is shown with its date now.
    CHeadline headline;
    headline.service = 1;
    headline.time = localTime(2026, 3, 2, 9, 0);
    headline.sequence = 1;
    headline.title = QStringLiteral("same");
    all.vUpdateHeadline(0, headline, true);
    EXPECT_EQ(all.text(0, 0), QStringLiteral("09:00"));
    headline.title = QStringLiteral("corrected");
    all.vUpdateHeadline(0, headline, true);
    EXPECT_EQ(rows(all), QStringList{QStringLiteral("03/02 09:00 | (recover) | corrected")});
}

TEST_F(HeadlineListTest, RowsWithoutAHeadlineShowThePlaceholder) {
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, QStringLiteral("late"), 7, {}, false);
    backEnd.add(1, localTime(2026, 3, 2, 8, 0), 2, QStringLiteral("here"), 7);
    HeadlineList& all = list(ListIndex::All);
    lists.rebuild(ListIndex::All, TableKind::ByDate, day);
    EXPECT_EQ(rows(all).front(), QStringLiteral(" |  | "));
    all.vFillTempHeadline();
    EXPECT_EQ(rows(all),
              (QStringList{QStringLiteral("09:00 | ... | ..."), QStringLiteral("08:00 | Markets | here")}));
    const int written = owner.rowsWritten;
    all.vFillTempHeadline();
    EXPECT_EQ(owner.rowsWritten, written) << "a row whose time is right is left alone";

    backEnd.asked.clear();
    EXPECT_FALSE(all.reCoverHeadline({-1, 2}));
    EXPECT_EQ(backEnd.asked, QStringList());
    EXPECT_FALSE(all.reCoverHeadline({2, 1})) << "nothing comes at once";
    EXPECT_EQ(backEnd.asked, (QStringList{QStringLiteral("again 1 [2]"), QStringLiteral("again 2 [2]")}));
    EXPECT_EQ(rows(all),
              (QStringList{QStringLiteral("09:00 | ... | ..."), QStringLiteral("08:00 | ... | ...")}));
}

TEST_F(HeadlineListTest, EachListAsksItsOwnServices) {
    for (const ServiceEntry& entry : owner.services)
        backEnd.add(entry.service, localTime(2026, 3, 2, 9, 0), entry.service, QString::number(entry.service),
                    7, QStringLiteral("2330"));
    struct Case {
        ListIndex list;
        QStringList asked;
    };
    const Case cases[] = {
        {ListIndex::All, {QStringLiteral("headlines 1 "), QStringLiteral("headlines 2 ")}},
        {ListIndex::Search,
         {QStringLiteral("headlines 1 "), QStringLiteral("headlines 2 "), QStringLiteral("headlines 16 "),
          QStringLiteral("headlines 52 ")}},
        {ListIndex::Warrant, {QStringLiteral("headlines 52 ")}},
    };
    for (const Case& c : cases) {
        HeadlineList& tested = list(c.list);
        tested.setTable(readServiceTable(backEnd, 52, TableKind::ByDate, day));
        backEnd.asked.clear();
        tested.refill();
        ASSERT_EQ(backEnd.asked.size(), c.asked.size());
        for (qsizetype i = 0; i < c.asked.size(); ++i)
            EXPECT_TRUE(backEnd.asked[i].startsWith(c.asked[i])) << backEnd.asked[i].toStdString();
    }
    list(ListIndex::Category);
    list(ListIndex::Symbol);
    list(ListIndex::Relation);
    lists.rebuild(ListIndex::Category, TableKind::ByCategory, QStringLiteral("7"));
    EXPECT_EQ(rows(lists[ListIndex::Category]).size(), 2);
    EXPECT_EQ(lists[ListIndex::Category].text(0, 0), QStringLiteral("03/02 09:00"));
    EXPECT_TRUE(lists.rebuildSymbol({16, QStringLiteral("2330")}));
    EXPECT_FALSE(lists.rebuildSymbol({16, QStringLiteral("233")}));
    RelationMatcher keySets;
    EXPECT_FALSE(lists.rebuild(ListIndex::Relation, TableKind::ByDate, day, &keySets));
    keySets = RelationMatcher(std::vector<CNewsKey>{{1, {7}, {QStringLiteral("2")}}});
    EXPECT_TRUE(lists.rebuild(ListIndex::Relation, TableKind::ByDate, day, &keySets));
    EXPECT_EQ(rows(lists[ListIndex::Relation]), QStringList{QStringLiteral("09:00 | Markets | 2")});
}

TEST_F(HeadlineListTest, TheRelationTestSkipsHeadlinesThatAreNotAtHand) {
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, QStringLiteral("RATE not at hand"), 7, {}, false);
    backEnd.add(1, localTime(2026, 3, 2, 8, 0), 2, QStringLiteral("OIL"), 7);
    backEnd.add(1, localTime(2026, 3, 2, 7, 0), 3, QStringLiteral("RATE"), 7);
    list(ListIndex::Relation);
    const RelationMatcher keySets(std::vector<CNewsKey>{{1, {7}, {QStringLiteral("RATE")}}});
    EXPECT_TRUE(lists.rebuild(ListIndex::Relation, TableKind::ByDate, day, &keySets));
    EXPECT_EQ(rows(lists[ListIndex::Relation]), QStringList{QStringLiteral("07:00 | Markets | RATE")});
}

TEST_F(HeadlineListTest, TwoColumnsHaveNoCategory) {
    owner.newsType = NewsType::TwoColumns;
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, QStringLiteral("two"), 7);
    HeadlineList& all = list(ListIndex::All);
    lists.rebuild(ListIndex::All, TableKind::ByDate, day);
    EXPECT_EQ(rows(all), QStringList{QStringLiteral("09:00 | two")});
    EXPECT_FALSE(all.textColour(0, placeOf(HeadlineColumn::Title, NewsType::TwoColumns)).isValid());
    const int written = owner.rowsWritten;
    all.vFillHeadline();
    EXPECT_EQ(owner.rowsWritten, written) << "the title is compared where it stands";
}

TEST_F(HeadlineListTest, ACategoryKeepsItsColourInSimplifiedCharacters) {
    backEnd.simplified = true;
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, QStringLiteral("title"), 8);
    HeadlineList& all = list(ListIndex::All);
    lists.rebuild(ListIndex::All, TableKind::ByDate, day);
    EXPECT_EQ(all.text(0, categoryColumn), QStringLiteral("新闻"));
    EXPECT_EQ(all.textColour(0, categoryColumn), QColor(Qt::red));
}

// What was on screen keeps its height, as far as it is listed still; a list at its top stays there.
TEST_F(HeadlineListTest, AReaderFindsHisPlaceInATableThatIsReadAgain) {
    struct Case {
        const char* what;
        int firstVisible;
        std::vector<int> selected;
        int current;
        int newFirstVisible;
        std::vector<int> newSelected;
        int newCurrent;
    };
    // Read again, the table has three rows more at its top and lacks rows 50 and 51.
    const Case cases[] = {
        {"at the top", 0, {0, 2}, 2, 0, {3, 5}, 5},
        {"further down", 40, {41, 50}, 41, 43, {44}, 44},
        {"the first rows on screen are gone", 50, {51}, 51, 51, {}, -1},
        {"behind what is gone", 60, {}, -1, 61, {}, -1},
    };
    const auto entry = [](int row) {
        return CHeadlineTable{localTime(2026, 3, 2, 9, 0) - row, 1000 - row, 1, 0, 0};
    };
    TableRuns before(1);
    TableRuns after(1);
    for (int row = -3; row < 100; ++row) {
        if (row >= 0)
            before.front().push_back(entry(row));
        if (row != 50 && row != 51)
            after.front().push_back(entry(row));
    }
    HeadlineList& all = list(ListIndex::All);
    CSuperSheetWnd& sheet = *all.grid();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        all.setTable(before);
        all.refill();
        sheet.setFirstVisibleRow(c.firstVisible);
        sheet.selectRows(c.selected, c.current);
        all.holdPlace();
        all.setTable(after);
        all.refill();
        std::vector<int> selected;
        sheet.vGetAllSelectionNdx(selected);
        EXPECT_EQ(selected, c.newSelected);
        EXPECT_EQ(sheet.firstVisibleRow(), c.newFirstVisible);
        EXPECT_EQ(sheet.cptGetFocusNdx().y(), c.newCurrent);
    }
}

TEST_F(HeadlineListTest, NothingHappensWithoutAGridOrARow) {
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, QStringLiteral("unseen"));
    EXPECT_FALSE(lists.rebuild(ListIndex::All, TableKind::ByDate, day));
    lists[ListIndex::All].setTable(readServiceTable(backEnd, 1, TableKind::ByDate, day));
    EXPECT_EQ(lists[ListIndex::All].headlineTable().size(), 1);
    EXPECT_EQ(owner.rowsWritten, 0);
    lists[ListIndex::All].vFillTempHeadline();
    lists[ListIndex::All].vUpdateHeadline(0, {}, true);
    lists[ListIndex::All].vUpdateHeadline(-1, {}, true);
    lists[ListIndex::All].vUpdateHeadline(99, {}, true);
    EXPECT_EQ(owner.rowsWritten, 0);

    // The grid may be destroyed before the list, and the list before the grid.
    delete list(ListIndex::Search).grid();
    lists[ListIndex::Search].refill();
    EXPECT_EQ(lists[ListIndex::Search].grid(), nullptr);
}

}  // namespace wirepane
