// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Tables and answers that the back end tells of by itself, and news that a list was read with before it is
// told.
#include "host/contract/news_positions.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int allMode = 0;
constexpr int categoryMode = 1;
constexpr int searchMode = 3;
constexpr int warrantMode = 5;
constexpr int warningMode = 6;
const QMap<QString, QVariant> takesAll{{u"ReadMissedTables"_s, true}, {u"CategoryID"_s, u"1"_s}};

class AnnouncedTables : public NewsViewTest {
protected:
    AnnouncedTables() { backEnd.services = {1, 2, 52}; }

    void openWithRows(const QMap<QString, QVariant>& stored = {}) {
        for (int minute = 0; minute < 59; ++minute)
            addNews(1, 9, minute, minute + 1);
        open(stored);
        QCoreApplication::processEvents();
    }
    void tellDate(unsigned char service = 1, const QString& key = u"20260302"_s) {
        const CHeadlineTableInfo info{service, 0, key};
        view->vRecvAllHeadlineTableRecovery(&info);
    }
    void tellCategory(unsigned char service) {
        const CHeadlineTableInfo info{service, 0, u"1"_s};
        view->vRecvCatHeadlineTableRecovery(&info);
    }
    // The number of the headline in a row.
    int numberAt(int list, int row) const { return view->keysOf(list, row, 1).at(0).sequence; }
    int firstShown(int list) const { return numberAt(list, view->sheetOf(list)->firstVisibleRow()); }
    int focused(int list) const {
        const int row = view->sheetOf(list)->cptGetFocusNdx().y();
        return row < 0 ? -1 : numberAt(list, row);
    }
    std::vector<int> selected(int list) const {
        std::vector<int> rows;
        view->sheetOf(list)->vGetAllSelectionNdx(rows);
        for (int& row : rows)
            row = numberAt(list, row);
        return rows;
    }
};

}  // namespace

TEST_F(AnnouncedTables, WhatTheReaderLooksAtStaysWhereItIs) {
    for (int minute = 0; minute < 59; ++minute) {
        const CHeadlineTable entry{localTime(2026, 3, 2, 9, minute), minute + 1, 1, 0, 0};
        backEnd.addStory({entry.time, u"Story %1"_s.arg(minute + 1) + QString(5000, u'x'), entry});
    }
    openWithRows({{u"NewsShowType"_s, 1}});
    CSuperSheetWnd& sheet = *view->sheetOf(allMode);
    sheet.verticalScrollBar()->setValue(20);
    sheet.setActiveSelection(22, -1);
    sheet.selectionModel()->select(sheet.model()->index(25, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCoreApplication::processEvents();
    const QVariantMap before = view->storyState(false);
    backEnd.asked.clear();
    for (int number = 100; number < 110; ++number) {
        addNews(1, 8, 0, number);
        addNews(2, 10, 0, number);
    }
    tellDate();
    QCoreApplication::processEvents();
    EXPECT_EQ(view->iGetHeadlineTableSize(allMode), 79);
    EXPECT_EQ(firstShown(allMode), 39);
    EXPECT_EQ(focused(allMode), 37);
    EXPECT_EQ(selected(allMode), (std::vector<int>{37, 34}));
    const QVariantMap after = view->storyState(false);
    EXPECT_EQ(after[u"title"_s], before[u"title"_s]);
    EXPECT_EQ(numberAt(allMode, after[u"position"_s].toInt()), 37) << "paging goes on from its row";
    EXPECT_TRUE(backEnd.asked.filter(u"story "_s).isEmpty()) << "it is not even drawn again";
    EXPECT_EQ(titles(allMode).at(sheet.firstVisibleRow()), u"s1 9:38"_s);

    // What this view asked for, and what it is told at its top, is shown from the top.
    EXPECT_TRUE(view->onCommand(ids::recoverHeadlineTable));
    tellDate();
    EXPECT_EQ(sheet.firstVisibleRow(), 0);
    EXPECT_EQ(focused(allMode), -1);
    addNews(2, 11, 0, 200);
    tellDate();
    EXPECT_EQ(firstShown(allMode), 200);
}

TEST_F(AnnouncedTables, AnAnswerThatNobodyWaitsForSelectsNothingElse) {
    open({{u"NewsShowType"_s, 1}});
    view->SwitchFunction(searchMode);
    auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
    edit->setText(u"gold"_s);
    for (int minute = 0; minute < 59; ++minute) {
        addNews(1, 9, minute, minute + 1);
        backEnd.searchTables[1].push_back({localTime(2026, 3, 2, 9, minute), minute + 1, 1, 0, 0});
    }
    view->OnSearch();
    CSearch condition;
    condition.keywords = {u"gold"_s};
    condition.method = 1;
    view->RespSearchHeadLineTable(condition, 1);
    EXPECT_EQ(focused(searchMode), 59);
    CSuperSheetWnd& sheet = *view->sheetOf(searchMode);
    sheet.verticalScrollBar()->setValue(20);
    sheet.setActiveSelection(22, -1);
    backEnd.searchTables[2].push_back({localTime(2026, 3, 2, 10, 0), 7, 2, 0, 0});
    view->RespSearchHeadLineTable(condition, 2);
    EXPECT_EQ(focused(searchMode), 7) << "the service was asked: its first row";
    sheet.verticalScrollBar()->setValue(20);
    sheet.setActiveSelection(22, -1);
    const int focus = focused(searchMode);
    const int first = firstShown(searchMode);
    backEnd.searchTables[2].push_back({localTime(2026, 3, 2, 10, 1), 8, 2, 0, 0});
    view->RespSearchHeadLineTable(condition, 2);
    EXPECT_EQ(view->iGetHeadlineTableSize(searchMode), 61);
    EXPECT_EQ(focused(searchMode), focus);
    EXPECT_EQ(firstShown(searchMode), first);
}

TEST_F(AnnouncedTables, AListThatIsNotOnShowIsReadWhenItIsShown) {
    struct Case {
        const char* what;
        QMap<QString, QVariant> settings;
        int mode;
        int list;
        int rows;  // when its mode is shown again, of three
    };
    const QMap<QString, QVariant> plain{{u"CategoryID"_s, u"1"_s}};
    const Case cases[] = {
        {"the day's list, as every view", plain, categoryMode, allMode, 1},
        {"the day's list", takesAll, categoryMode, allMode, 3},
        {"the day's list, while warrants are shown", takesAll, warrantMode, allMode, 3},
        {"a category, while warrants are shown", takesAll, warrantMode, categoryMode, 3},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        backEnd.clear();
        addNews(1, 9, 0, 1);
        open(c.settings);
        view->SwitchFunction(c.list);
        EXPECT_EQ(view->iGetHeadlineTableSize(c.list), 1);
        view->SwitchFunction(c.mode);
        addNews(1, 8, 0, 2);
        addNews(2, 8, 30, 3);
        backEnd.asked.clear();
        tellDate();
        tellDate(2);
        tellCategory(1);
        tellDate(1, u"20260301"_s);
        EXPECT_EQ(view->iGetHeadlineTableSize(c.list), 1);
        view->SwitchFunction(c.list);
        EXPECT_EQ(view->iGetHeadlineTableSize(c.list), c.rows);
        backEnd.asked.clear();
        view->SwitchFunction(searchMode);
        view->SwitchFunction(c.list);
        EXPECT_EQ(backEnd.asked.filter(u"table "_s), QStringList()) << "read once";
        view.reset();
    }
}

TEST_F(AnnouncedTables, WarrantsAndWarningTermsFollowWhereTheHostSwitchesItOn) {
    writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\nShowWarningSearch=1\n");
    addNews(1, 9, 0, 1);
    addNews(52, 9, 0, 1);
    open(takesAll);
    tellDate();
    EXPECT_EQ(view->iGetHeadlineTableSize(warningMode), 0) << "not a copy of all news";
    view->SwitchFunction(warrantMode);
    addNews(52, 9, 10, 2);
    tellDate(52);
    EXPECT_EQ(view->iGetHeadlineTableSize(warrantMode), 2);

    backEnd.add(52, localTime(2026, 3, 3, 0, 1), 1, u"Of the new day"_s);
    host_clock::startAt(localTime(2026, 3, 3, 0, 1));
    const CMarketStatus status{1, 20260303};
    view->vRecvNewMarketStatus(&status);
    EXPECT_EQ(titles(warrantMode), QStringList{u"Of the new day"_s});
}

TEST_F(AnnouncedTables, AViewOfWarrantsAloneHasADayAndFollowsTheirs) {
    addNews(52, 9, 0, 1);
    open({{u"EnabledFunctions"_s, 0x20}});
    EXPECT_EQ(titles(warrantMode), QStringList{u"s52 9:00"_s});
    EXPECT_FALSE(isShown(ids::datePicker));
    push(52, 9, 10, 2);
    push(1, 9, 10, 3);
    EXPECT_EQ(titles(warrantMode), (QStringList{u"pushed 2"_s, u"s52 9:00"_s}));
    backEnd.add(52, localTime(2026, 3, 3, 0, 1), 1, u"Of the new day"_s);
    for (const unsigned char service : std::initializer_list<unsigned char>{1, 52, 52}) {
        const CMarketStatus status{service, 20260303};
        view->vRecvNewMarketStatus(&status);
        EXPECT_EQ(view->iGetHeadlineTableSize(warrantMode), service == 1 ? 2 : 1);
    }
}

TEST_F(AnnouncedTables, AHeadlineThatAListWasReadWithIsNotTakenAgain) {
    struct Numbered : FakeBackEnd, NewsPositions {
        std::int64_t readPosition() override { return latest; }
        std::int64_t positionTold() const override { return told; }
        std::int64_t latest = 0;
        std::int64_t told = 0;
    } numbered;
    numbered.services = {1};
    numbered.categories[1] = backEnd.categories[1];
    numbered.sysPath = backEnd.sysPath;
    const auto add = [&](int minute, int number) {
        numbered.add(1, localTime(2026, 3, 2, 9, minute), number, u"n%1"_s.arg(number), 1);
        numbered.latest = number;
    };
    const auto tell = [&](int minute, int number, std::int64_t position) {
        CHeadline headline{1, localTime(2026, 3, 2, 9, minute), number, u"n%1"_s.arg(number)};
        headline.categoryId = 1;
        numbered.told = position;
        view->RecvNewHeadLine(&headline, u"1"_s, {});
        numbered.told = 0;
    };
    for (const int number : {1, 2, 3})
        add(number, number);
    open({{u"CategoryID"_s, u"1"_s}});
    view->SwitchFunction(categoryMode);
    view->SwitchFunction(allMode);
    numbered.connected = false;
    add(0, 4);
    view->bChangeDate(QDate(2026, 3, 1));
    view->bChangeDate(QDate(2026, 3, 2));
    add(2, 5);
    numbered.connected = true;
    tell(0, 4, 4);
    tell(2, 5, 5);
    tell(1, 1, 6);
    EXPECT_EQ(titles(allMode), (QStringList{u"n1"_s, u"n3"_s, u"n2"_s, u"n5"_s, u"n4"_s}));
    EXPECT_EQ(titles(categoryMode), titles(allMode)) << "a list that was not read anew takes each";
    tell(0, 4, 0);
    EXPECT_EQ(titles(allMode).front(), u"n4"_s) << "without a number it counts as sent again";
    view.reset();
}

}  // namespace wirepane
