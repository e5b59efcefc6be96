// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The searches of a view, and the headlines that arrive in it, without the view.
#include "news_view/searches.h"

#include "headline_list/language_keys.h"
#include "host/controls/registered_message.h"
#include "news_view/live_news.h"
#include "search/news_key_search_dlg.h"
#include "tests/news_view/owner_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class SearchesTest : public OwnerTest {
protected:
    SearchesTest() {
        backEnd.symbols[16] = {{u"2330"_s, u"Aster Chips"_s}};
        view.shown = ListIndex::Search;
    }

    static CSearch condition(const QString& word) {
        CSearch search;
        search.keywords = {word};
        return search;
    }
    QStringList sent() { return asked().filter(u"search "_s); }
    // An entry of service 1 that its search has found.
    void find(std::int32_t sequence) { backEnd.searchTables[1].push_back(view.add(sequence)); }
    int focusedRow(ListIndex list) { return view.grid(list)->cptGetFocusNdx().y(); }

    bool hasStoryWindow = false;
    Searches searches{view, parts, [this] { return view.hasPane || hasStoryWindow; }};
};

}  // namespace

TEST_F(SearchesTest, OtherServicesAreSearchedForTheWholeConditionThatIsShown) {
    const CSearch whole = [] {
        CSearch search = condition(u"title:gold"_s);
        search.keywords.push_back(u"tin ore"_s);
        search.scope = 2;
        search.method = 2;
        search.symbols = {{16, u"2330"_s}};
        return search;
    }();
    searches.show(whole);
    switchOn(ViewOption::SearchLine);
    searches.desk().ordinary = condition(u"of a dialog that was cancelled"_s);
    asked();
    searches.searchServices();
    EXPECT_EQ(searches.desk().foundUnder(ListIndex::Search), whole);
    EXPECT_EQ(sent().filter(u"tin ore"_s).size(), 2);
}

TEST_F(SearchesTest, OnlyListsWithSearchesSendAndOnlyWhatHasAKeyword) {
    const ListIndex all[] = {ListIndex::All,        ListIndex::Category, ListIndex::Symbol,
                             ListIndex::Relation,   ListIndex::Warrant,  ListIndex::Search,
                             ListIndex::WarningTerm};
    for (const ListIndex list : all) {
        view.shown = list;
        searches.desk().ordinary = searches.desk().warningTerm = CSearch();
        searches.send();
        EXPECT_EQ(sent(), QStringList()) << static_cast<int>(list);
        searches.desk().ordinary = condition(u"plain"_s);
        searches.desk().warningTerm = condition(u"warning"_s);
        searches.send();
        const QString word = list == ListIndex::Search        ? u"plain"_s
                             : list == ListIndex::WarningTerm ? u"warning"_s
                                                              : QString();
        EXPECT_EQ(sent().filter(word).size(), word.isEmpty() ? 0 : 2) << static_cast<int>(list);
    }
    withoutGrid(ListIndex::Search);
    view.shown = ListIndex::Search;
    searches.send();
    EXPECT_EQ(sent(), QStringList());
}

TEST_F(SearchesTest, WhatIsAtHandIsShownAtOnceAndToldToTheNotices) {
    searches.desk().ordinary = condition(u"plain"_s);
    view.status = u"S1 "_s;
    find(1);
    searches.send();
    EXPECT_EQ(view.lists[ListIndex::Search].headlineTable().size(), 1);
    EXPECT_EQ(calls(), (QStringList{u"show story"_s, u"place notices"_s}));
    EXPECT_EQ(view.status, u"S1 "_s);
    backEnd.searchTables.clear();
    searches.send();
    EXPECT_EQ(view.status, QString()) << "nothing is there to be told of";
    EXPECT_EQ(searches.desk().sentAt(ListIndex::Search)->time, host_clock::now());
}

TEST_F(SearchesTest, AnAnswerIsShownFromItsTopOnceAndInPlaceWhenItComesByItself) {
    const CSearch plain = condition(u"plain"_s);
    searches.desk().ordinary = plain;
    searches.send();
    for (std::int32_t i = 1; i <= 3; ++i)
        find(i);
    calls();
    searches.takeAnswer(condition(u"strange"_s), 1);
    EXPECT_EQ(calls(), QStringList());
    view.hasPane = false;
    searches.takeAnswer(plain, 1);
    EXPECT_EQ(calls(), QStringList{u"place notices"_s}) << "an answer opens no window";
    EXPECT_EQ(focusedRow(ListIndex::Search), 0);
    view.grid(ListIndex::Search)->setActiveSelection(2, -1);
    searches.takeAnswer(plain, 1);
    EXPECT_EQ(calls(), QStringList{u"read in place"_s});
    hasStoryWindow = true;
    searches.takeAnswer(plain, 2);
    EXPECT_EQ(calls(), (QStringList{u"show story"_s, u"place notices"_s}));
    view.shown = ListIndex::All;
    backEnd.searchTables.clear();
    searches.takeAnswer(plain, 1);
    EXPECT_EQ(calls(), QStringList{u"read in place"_s}) << "the reader is elsewhere";
    view.shown = ListIndex::Search;
    searches.takeAnswer(plain, 1);
    EXPECT_EQ(calls(), (QStringList{u"read in place"_s, u"show story"_s}))
        << "the story of a row that went goes";
}

TEST_F(SearchesTest, NothingFoundIsToldWithTheLastAnswer) {
    CSearch plain = condition(u"plain"_s);
    searches.desk().ordinary = plain;
    searches.desk().takeSearchText(u"another"_s);  // what is in the box is new: the answers are awaited
    searches.send();
    const QString waiting = tip.text();
    EXPECT_TRUE(waiting.contains(u"plain"_s));
    searches.takeAnswer(condition(u"strange"_s), 2);
    searches.takeAnswer(plain, 1);
    EXPECT_EQ(tip.text(), waiting);
    searches.takeAnswer(plain, 2);
    EXPECT_EQ(tip.text(), QString(keys::newsNotFound));
    tip.stop();
    MemoryCfgIO stored;
    ViewOptions::writeMissing(stored, {});
    view.settings.options = ViewOptions::read(stored, {});
    searches.takeAnswer(plain, 2);
    EXPECT_FALSE(tip.isUp()) << "the empty list says so";
}

TEST_F(SearchesTest, AnswersGoToTheWarningTermsWhereThoseAreSwitchedOn) {
    searches.desk().ordinary = condition(u"plain"_s);
    find(1);
    searches.send();
    searches.takeAnswer(condition(u"plain"_s), 1);
    EXPECT_EQ(view.lists[ListIndex::WarningTerm].headlineTable().size(), 0);
    switches.showWarningSearch = true;
    searches.takeAnswer(condition(u"plain"_s), 2);
    EXPECT_EQ(view.lists[ListIndex::WarningTerm].headlineTable().size(), 1);
}

TEST_F(SearchesTest, TheNewestPushOfEachServiceIsSearchedForWhileWarningTermsAreShown) {
    CHeadline headline;
    headline.service = 1;
    headline.sequence = 5;
    searches.desk().warningTerm = condition(u"warning"_s);
    searches.notePushed(headline);
    view.shown = ListIndex::WarningTerm;
    searches.searchForPushed();
    EXPECT_EQ(sent(), QStringList()) << "pushed before they were shown";
    searches.notePushed(headline);
    headline.sequence = 6;
    searches.notePushed(headline);
    headline.service = 2;
    searches.notePushed(headline);
    searches.searchForPushed();
    EXPECT_EQ(sent().size(), 2);
    searches.searchForPushed();
    EXPECT_EQ(sent(), QStringList()) << "once";
    searches.notePushed(headline);
    searches.desk().warningTerm = {};
    searches.searchForPushed();
    EXPECT_EQ(sent(), QStringList()) << "there is no term";
}

TEST_F(SearchesTest, APushedHeadlineReplacesTheRowsUnlessTheyAreToStay) {
    const CHeadlineTable old = view.add(1);
    view.lists[ListIndex::WarningTerm].setTable({{old}});
    CHeadline headline;
    headline.service = 1;
    CSearch warning = condition(u"warning"_s);
    switchOn(ViewOption::KeepWarningRows);
    searches.searchFor(warning, ListIndex::WarningTerm, headline, searchTableKey);
    EXPECT_EQ(view.lists[ListIndex::WarningTerm].headlineTable().size(), 1);
    settings.options = {};
    searches.searchFor(warning, ListIndex::WarningTerm, headline, searchTableKey);
    EXPECT_EQ(view.lists[ListIndex::WarningTerm].headlineTable().size(), 0);
    EXPECT_EQ(sent().size(), 2);
    withoutGrid(ListIndex::WarningTerm);
    searches.searchFor(warning, ListIndex::WarningTerm, headline, searchTableKey);
    EXPECT_EQ(sent(), QStringList());
}

TEST_F(SearchesTest, ASymbolNarrowsWhatIsInForce) {
    struct Case {
        const char* what;
        ListIndex shown;
        const char* word;  // of the condition in force; null: none
        bool standsFast;
        CSymbolInfo symbol;
        int sent, narrowed;
    };
    const Case cases[] = {
        {"a search", ListIndex::Search, "plain", false, {16, u"2330"_s}, 2, 2},
        {"none was composed", ListIndex::Search, nullptr, false, {16, u"2330"_s}, 0, 0},
        {"a symbol that nobody knows", ListIndex::Search, "plain", false, {16, u"9999"_s}, 0, 0},
        {"the warning terms", ListIndex::WarningTerm, "plain", false, {16, u"2330"_s}, 2, 2},
        {"the warning terms stand fast", ListIndex::WarningTerm, "plain", true, {16, u"2330"_s}, 0, 0},
        {"a future without a commodity", ListIndex::Search, "plain", false, {1, u"TXF"_s}, 0, 0},
        {"a list without searches", ListIndex::All, "plain", false, {16, u"2330"_s}, 0, 0},
    };
    backEnd.symbols[1] = {{u"TXF"_s, u"Index future"_s}};
    for (const Case& c : cases) {
        settings.options = {};
        if (c.standsFast)
            switchOn(ViewOption::WarningTermsStandFast);
        const CSearch inForce = c.word != nullptr ? condition(QString::fromLatin1(c.word)) : CSearch();
        searches.desk().ordinary = searches.desk().warningTerm = inForce;
        view.shown = c.shown;
        searches.followSymbol(c.symbol);
        const QStringList lines = sent();
        EXPECT_EQ(lines.size(), c.sent) << c.what;
        EXPECT_EQ(lines.filter(u"@16 2330"_s).size(), c.narrowed) << c.what;
    }
    view.shown = ListIndex::Search;
    searches.desk().ordinary = condition(u"plain"_s);
    searches.followSymbol({16, u"2330"_s});
    sent();
    searches.endNarrowing();
    EXPECT_EQ(sent().filter(u"@"_s).size(), 0);
}

TEST_F(SearchesTest, AnOpenDialogIsToldOfTheOneSymbolThatChangedOrToReadAll) {
    struct Dialog : CNewsKeySearchDlg {
        explicit Dialog(QWidget* parent) : CNewsKeySearchDlg({}, {}, {}, parent) {}
        bool event(QEvent* event) override {
            if (event->type() == registerMessage(u"MSG_SYMBOLUPDATE_TREEDLG"_s))
                told.push_back(static_cast<RegisteredMessageEvent*>(event)->firstParameter);
            return CNewsKeySearchDlg::event(event);
        }
        std::vector<quintptr> told;
    } dialog(&window);
    const std::vector<CSymbolUpdateInfo> one{{16, u"2330"_s}}, two{{16, u"2330"_s}, {16, u"6214"_s}};
    for (const auto& updates : {&one, &two})
        searches.updateSymbolPicker(*updates);
    searches.updateSymbolPicker({});
    EXPECT_EQ(dialog.told, (std::vector<quintptr>{reinterpret_cast<quintptr>(&one.front()), 0}));
}

// --- Headlines that arrive ---

namespace {

class LiveNewsTest : public OwnerTest {
protected:
    LiveNewsTest() {
        now.hasDatePicker = true;
        now.pickedDate = now.newsDay = QDate(2026, 3, 2);
        loading.takeLoad(ListIndex::All);
    }
    CHeadline headline(std::int32_t sequence) {
        CHeadline made;
        made.service = 1;
        made.sequence = sequence;
        made.time = localTime(2026, 3, 2, 9, sequence);
        made.title = u"Title %1"_s.arg(sequence);
        return made;
    }
    int rows() const { return view.lists[ListIndex::All].headlineTable().size(); }

    IntakeState now;
    QStringList told;
    LiveNews live{
        view,
        parts,
        {[this] { return now; },
         [this](ListIndex list, const HeadlinePlace& place) {
             told.append(u"%1: %2 %3"_s.arg(static_cast<int>(list)).arg(place.oldRow).arg(place.row));
         },
         [](ListIndex, const PushedHeadline&) {}, [this] { view.calls.append(u"forget story"_s); },
         [this](const CHeadline& pushed, const QString& category) {
             told.append(u"pushed %1 %2"_s.arg(pushed.sequence).arg(category));
         }}};
    const QStringList changed{u"refresh"_s, u"forget story"_s};
};

}  // namespace

TEST_F(LiveNewsTest, APushGoesToItsListsAndIsTold) {
    const CHeadline first = headline(1);
    live.push({first, u"7"_s, {}});
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(told, (QStringList{u"0: -1 0"_s, u"pushed 1 7"_s}));
    EXPECT_EQ(calls(), changed);
    told.clear();
    CHeadline strange = headline(2);
    strange.service = 16;
    live.push({strange, u"7"_s, {}});
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(told, QStringList{u"pushed 2 7"_s}) << "no list takes it, the searches want to know";
}

TEST_F(LiveNewsTest, WithoutAConnectionOrADayNothingHappens) {
    const CHeadline first = headline(1);
    for (const bool connected : {true, false}) {
        backEnd.connected = connected;
        now.hasDatePicker = !connected;
        live.push({first, u"7"_s, {}});
        live.replace({first, u"7"_s, {}});
    }
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(told, QStringList());
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(LiveNewsTest, OnlyListsThatHaveAHeadlineReplaceIt) {
    CHeadline first = headline(1);
    loading.takeLoad(ListIndex::Category);
    now.categoryId = u"7"_s;
    live.replace({first, u"7"_s, {}});
    EXPECT_EQ(calls(), QStringList());
    live.push({first, u"7"_s, {}});
    calls();
    told.clear();
    first.title = u"Corrected"_s;
    live.replace({first, u"7"_s, {}});
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(calls(), changed);
    EXPECT_EQ(told, QStringList());
    live.replace({first, u"8"_s, {}});
    EXPECT_EQ(told, QStringList{u"1: 0 -1"_s}) << "it has left the category";
    EXPECT_EQ(rows(), 1);
}

TEST_F(LiveNewsTest, AHeadlineThatIsGoneLeavesItsLists) {
    const CHeadline first = headline(1);
    live.push({first, u"7"_s, {}});
    calls();
    live.takeOut({first.time, 2, 1});
    EXPECT_EQ(calls(), QStringList());
    EXPECT_EQ(rows(), 1);
    live.takeOut(keyOf(first));
    EXPECT_EQ(calls(), changed);
    EXPECT_EQ(rows(), 0);
}

}  // namespace wirepane
