// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The days of a view, and what is sent again, without the view.
#include "news_view/days.h"

#include "headline_list/language_keys.h"
#include "headline_list/relation_matcher.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/views/news_control_ids.h"
#include "news_view/sent_again.h"
#include "tests/news_view/owner_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QDate today(2026, 3, 2);

class DaysTest : public OwnerTest {
protected:
    DaysTest() { days.setRange(3); }

    SDateTimeCtrl& picker() { return *controls.find<SDateTimeCtrl>(ids::datePicker); }
    void givePicker() {
        controls.createDatePicker(QRect(0, 0, 100, 20), today);
        days.connectPicker();
    }

    RelationMatcher keySets;
    QList<ListIndex> readAgain, readOrMissed;
    bool isRead = false;
    Days days{view,
              parts,
              {[this]() -> const RelationMatcher& { return keySets; },
               [this](ListIndex list) { readAgain.append(list); },
               [this](ListIndex list) { readOrMissed.append(list); }, [this](ListIndex) { return isRead; }}};
};

}  // namespace

TEST_F(DaysTest, AViewStandsAtADayByItsPickerOrByItsWarrants) {
    EXPECT_FALSE(days.hasDay());
    EXPECT_NE(days.pickedKey(), u"20260302"_s);
    settings.functions = modeOf(ListIndex::Warrant).maskBit;
    EXPECT_TRUE(days.hasDay());
    settings.functions = defaultFunctionMask;
    givePicker();
    EXPECT_TRUE(days.hasDay());
    EXPECT_EQ(days.pickedKey(), u"20260302"_s);
}

TEST_F(DaysTest, ADateIsTakenWithinTheRangeAndToldOtherwise) {
    givePicker();
    backEnd.add(1, localTime(2026, 3, 1, 9, 0), 1, u"yesterday's"_s);
    struct Case {
        const char* what;
        QDate date;
        bool hasRows;
        QStringList asked;
        QString tip;  // what is told last
        QDate picked;
    };
    const QString tooEarly = QString(keys::onlySelect) + u'3' + keys::inSomeDays;
    const QString tooLate = QString(keys::afterDays);
    const Case cases[] = {
        {"the date in force", today, false, {}, {}, today},
        {"yesterday", {2026, 3, 1}, true, bothTables(u"0 20260301"_s), {}, {2026, 3, 1}},
        {"too early", {2026, 2, 26}, false, {}, tooEarly, {2026, 3, 1}},
        {"too late", {2026, 3, 3}, false, {}, tooLate, {2026, 3, 1}},
        {"a day without news", {2026, 2, 28}, false, bothTables(u"0 20260228"_s), tooLate, {2026, 2, 28}},
    };
    for (const Case& c : cases) {
        view.status = u"S1 "_s;
        asked();
        EXPECT_EQ(days.pick(c.date), c.hasRows) << c.what;
        EXPECT_EQ(asked().filter(u"table"_s), c.asked) << c.what;
        EXPECT_EQ(tip.text(), c.tip) << c.what;
        EXPECT_EQ(days.picked(), c.picked) << c.what;
        EXPECT_EQ(view.status.isEmpty(), !c.asked.isEmpty() && !c.hasRows) << c.what;
        if (!c.tip.isEmpty() && c.asked.isEmpty()) {
            EXPECT_EQ(picker().date(), c.picked) << c.what;
        }
    }
    withoutGrid(ListIndex::All);
    EXPECT_FALSE(days.pick(today));
    EXPECT_EQ(days.picked(), QDate(2026, 2, 28));
}

TEST_F(DaysTest, WhileTheCalendarIsOpenNothingIsPicked) {
    givePicker();
    emit picker().droppedDown();
    emit picker().dateTimeChange(QDate(2026, 3, 1));
    EXPECT_EQ(days.picked(), today);
    picker().showDate(QDate(2026, 3, 1));
    emit picker().closeUp(QDate(2026, 3, 1));
    EXPECT_EQ(days.picked(), QDate(2026, 3, 1));
    emit picker().dateTimeChange(today);
    EXPECT_EQ(days.picked(), today);
}

TEST_F(DaysTest, ANewsDayOfATickedServiceIsFollowed) {
    days.follow({1, 20260303});
    EXPECT_EQ(days.newsDay(), today) << "no date picker";
    givePicker();
    struct Case {
        const char* what;
        unsigned char service;
        std::int32_t date;
        bool isFollowed;
    };
    const Case cases[] = {
        {"not ticked", 16, 20260303, false},
        {"the date at which it stands", 1, 20260302, false},
        {"month 13", 1, 20261303, false},
        {"no date", 1, -1, false},
        {"an unknown service", 99, 20260303, false},
        {"the warrants", 52, 20260303, false},
        {"a new day", 1, 20260303, true},
        {"the same day, said again", 1, 20260303, false},
    };
    for (const Case& c : cases) {
        asked();
        backEnd.currentDates[c.service] = QString::number(c.date);
        days.follow({c.service, c.date});
        const QStringList tables = asked().filter(u"table"_s);
        EXPECT_EQ(!tables.isEmpty(), c.isFollowed) << c.what;
        // Each service at its own date; without a key set the other list asks for nothing.
        if (c.isFollowed) {
            EXPECT_EQ(tables, (QStringList{u"table 1 0 20260303"_s, u"table 2 0 20260302"_s}));
            EXPECT_EQ(tip.text(), u"S1 "_s + keys::clearService);
            EXPECT_EQ(services.currentServices()[0].date, 20260303);
        }
    }
    EXPECT_EQ(days.newsDay(), QDate(2026, 3, 3));
    EXPECT_TRUE(readAgain.isEmpty());
    EXPECT_TRUE(readOrMissed.isEmpty());
    switchOn(ViewOption::ReadMissedTables);
    for (const CMarketStatus& told : {CMarketStatus{1, 20260304}, CMarketStatus{2, 20260304}}) {
        days.follow(told);
        EXPECT_EQ(readOrMissed, QList{ListIndex::Warrant}) << "once, whoever tells of the day";
    }
}

TEST_F(DaysTest, ANewsDayLeavesTheListThatIsReadWhereTheViewIsToldTo) {
    struct Case {
        const char* what;
        bool isToldTo, isRead;
        ListIndex shown;
        bool isDayKept, areRelationsMissed;
    };
    const Case cases[] = {
        {"not told to", false, true, ListIndex::All, false, false},
        {"the reader has gone to no row", true, false, ListIndex::All, false, false},
        {"a row is read", true, true, ListIndex::All, true, false},
        {"another list is read", true, true, ListIndex::Category, false, false},
        {"the relations are read", true, true, ListIndex::Relation, false, true},
    };
    givePicker();
    std::int32_t date = 20260303;
    for (const Case& c : cases) {
        settings.options = {};
        if (c.isToldTo)
            switchOn(ViewOption::KeepReadDay);
        isRead = c.isRead;
        view.shown = c.shown;
        const QDate before = days.picked();
        asked();
        days.follow({1, date});
        const QDate day = dayOfNumber(date);
        EXPECT_EQ(days.newsDay(), day) << c.what;
        EXPECT_EQ(days.picked(), c.isDayKept ? before : day) << c.what;
        EXPECT_EQ(picker().date(), days.picked()) << c.what;
        EXPECT_EQ(asked().filter(u"table"_s).isEmpty(), c.isDayKept) << c.what;
        EXPECT_EQ(lists.hasMissed(ListIndex::Relation), c.areRelationsMissed) << c.what;
        ++date;
    }
}

TEST_F(DaysTest, AViewOfWarrantsFollowsItsOwnService) {
    givePicker();
    withoutGrid(ListIndex::All);
    days.follow({1, 20260303});
    days.follow({52, 20260302});
    EXPECT_TRUE(readAgain.isEmpty());
    days.follow({52, 20260303});
    EXPECT_EQ(readAgain, QList{ListIndex::Warrant});
    EXPECT_EQ(days.newsDay(), QDate(2026, 3, 3));
    EXPECT_FALSE(days.readCurrentDates());
}

// --- Sent again ---

namespace {

class SentAgainTest : public OwnerTest {
protected:
    CHeadlineTableInfo info(unsigned char service, const QString& key, signed char answer = 0) {
        CHeadlineTableInfo table;
        table.service = service;
        table.key = key;
        table.status = answer;
        return table;
    }
    bool wasRead() { return !asked().filter(u"table"_s).isEmpty(); }

    QString dateKey = u"20260302"_s;
    std::optional<QString> categoryId = u"7"_s;
    CSymbolInfo symbol{16, u"2330"_s};
    RelationMatcher keySets;
    SentAgain sentAgain{view,
                        parts,
                        {[this] { return dateKey; }, [this] { return categoryId; }, [this] { return symbol; },
                         [this] { return symbol; }, [this]() -> const RelationMatcher& { return keySets; },
                         [this] { return view.status; }}};
};

}  // namespace

TEST_F(SentAgainTest, TheTableOfTheShownListIsAskedForOfEveryTickedService) {
    struct Case {
        ListIndex list;
        QStringList asked;
    };
    const Case cases[] = {
        {ListIndex::All, {u"again 1 0 20260302"_s, u"again 2 0 20260302"_s}},
        {ListIndex::Category, {u"again 1 1 7"_s, u"again 2 1 7"_s}},
        {ListIndex::Symbol, {u"again 1 symbol 2330"_s, u"again 2 symbol 2330"_s}},
        {ListIndex::Search, {}},
        {ListIndex::Relation, {}},
    };
    for (const Case& c : cases) {
        view.shown = c.list;
        sentAgain.askForTable();
        EXPECT_EQ(asked(), c.asked) << static_cast<int>(c.list);
    }
    categoryId.reset();
    view.shown = ListIndex::Category;
    sentAgain.askForTable();
    EXPECT_EQ(asked(), QStringList());
}

TEST_F(SentAgainTest, WhatDoesNotFitTheViewIsDropped) {
    using Take = void (SentAgain::*)(const CHeadlineTableInfo&);
    constexpr Take date = &SentAgain::takeDateTable, category = &SentAgain::takeCategoryTable,
                   ofSymbol = &SentAgain::takeSymbolTable;
    struct Case {
        const char* what;
        ListIndex shown;
        Take take;
        CHeadlineTableInfo table;
        bool isRead;
    };
    const Case cases[] = {
        {"the picked date", ListIndex::All, date, info(1, u"20260302"_s), true},
        {"another date", ListIndex::All, date, info(1, u"20260301"_s), false},
        {"a key of another length is read as it is", ListIndex::All, date, info(1, u"x"_s), true},
        {"not ticked", ListIndex::All, date, info(16, u"20260302"_s), false},
        {"another list is shown", ListIndex::Category, date, info(1, u"20260302"_s), false},
        {"warrants that are not ticked", ListIndex::Warrant, date, info(52, u"20260302"_s), false},
        {"the chosen category", ListIndex::Category, category, info(2, u"7"_s), true},
        {"also while another list is shown", ListIndex::All, category, info(2, u"7"_s), true},
        {"another category", ListIndex::Category, category, info(2, u"8"_s), false},
        {"of a service without a tick", ListIndex::Category, category, info(16, u"7"_s), false},
        {"the current symbol", ListIndex::Symbol, ofSymbol, info(1, u"2330"_s), true},
        {"another symbol", ListIndex::Symbol, ofSymbol, info(1, u"2317"_s), false},
    };
    for (const Case& c : cases) {
        view.shown = c.shown;
        (sentAgain.*c.take)(c.table);
        EXPECT_EQ(wasRead(), c.isRead) << c.what;
    }
    view.shown = ListIndex::Warrant;
    services.select(static_cast<std::size_t>(services.indexOfWarrants()), true);
    sentAgain.takeDateTable(info(52, u"20260302"_s));
    EXPECT_TRUE(wasRead()) << "warrants in their mode";
    symbol = {};
    sentAgain.takeSymbolTable(info(1, {}));
    EXPECT_FALSE(wasRead());
}

TEST_F(SentAgainTest, OnlyWhatWasAskedForMovesTheReaderOnce) {
    const QStringList inPlace{u"read in place"_s};
    sentAgain.askForTable();
    calls();
    sentAgain.takeDateTable(info(1, dateKey));
    EXPECT_EQ(calls(), QStringList());
    sentAgain.takeDateTable(info(1, dateKey));
    EXPECT_EQ(calls(), inPlace);
    sentAgain.takeDateTable(info(2, u"20260301"_s));
    sentAgain.takeDateTable(info(2, dateKey));
    EXPECT_EQ(calls(), QStringList()) << "another date is not the one that was asked for";
}

TEST_F(SentAgainTest, AServiceWithoutDataIsNamedOnce) {
    sentAgain.takeDateTable(info(1, dateKey));
    EXPECT_EQ(view.status, QString()) << "empty, but not denied";
    sentAgain.takeDateTable(info(1, dateKey, -1));
    EXPECT_EQ(view.status, u"S1 "_s);
    EXPECT_EQ(tip.text(), u"S1 "_s + keys::invalidDate);
    sentAgain.takeDateTable(info(1, dateKey, -1));
    sentAgain.takeDateTable(info(2, dateKey, -1));
    EXPECT_EQ(view.status, u"S1 S2 "_s);
    view.status = u"S1 "_s;
    switchOn(ViewOption::SeparateServiceNames);
    sentAgain.takeDateTable(info(2, dateKey, -1));
    EXPECT_EQ(view.status, u"S1"_s + keys::betweenNames + u"S2 "_s);
    view.add(1);
    view.status.clear();
    sentAgain.takeDateTable(info(1, dateKey, -1));
    EXPECT_EQ(view.status, QString()) << "there are rows";
    sentAgain.takeCategoryTable(info(1, u"7"_s, -1));
    EXPECT_EQ(tip.text(), u"S1  "_s + keys::classNotFound);
    sentAgain.takeSymbolTable(info(1, u"2330"_s, -1));
    EXPECT_EQ(tip.text(), u"S1  "_s + keys::symbolNewsNotFound);
}

TEST_F(SentAgainTest, ATableOfNewsItselfAlsoFillsTheWarningTerms) {
    view.add(1);
    sentAgain.takeDateTable(info(1, dateKey));
    EXPECT_EQ(view.lists[ListIndex::WarningTerm].headlineTable().size(), 0);
    switches.showWarningSearch = true;
    sentAgain.takeDateTable(info(1, dateKey));
    EXPECT_EQ(view.lists[ListIndex::WarningTerm].headlineTable().size(), 1);
}

TEST_F(SentAgainTest, UnaskedTablesAreReadNowOrWhenTheirListIsShown) {
    switchOn(ViewOption::ReadMissedTables);
    view.shown = ListIndex::All;
    sentAgain.takeDateTable(info(1, dateKey));
    EXPECT_FALSE(wasRead()) << "never shown";
    EXPECT_FALSE(view.lists.hasMissed(ListIndex::All));
    loading.takeLoad(ListIndex::All);
    loading.takeLoad(ListIndex::Relation);
    sentAgain.takeDateTable(info(1, dateKey));
    EXPECT_TRUE(wasRead());
    EXPECT_TRUE(view.lists.hasMissed(ListIndex::Relation));
    sentAgain.takeDateTable(info(16, dateKey));
    EXPECT_FALSE(wasRead()) << "not ticked";
    loading.takeLoad(ListIndex::Category);
    loading.takeLoad(ListIndex::Warrant);
    sentAgain.takeCategoryTable(info(1, u"7"_s));
    sentAgain.takeDateTable(info(52, dateKey));
    EXPECT_FALSE(wasRead());
    EXPECT_TRUE(view.lists.hasMissed(ListIndex::Category));
    EXPECT_TRUE(view.lists.hasMissed(ListIndex::Warrant));
}

}  // namespace wirepane
