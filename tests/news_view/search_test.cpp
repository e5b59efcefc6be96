// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Searching from the news view: what is sent, what is shown, what the user is told.
#include "host/contract/query/query_marks.h"
#include "host/controls/chip_line.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_cells.h"
#include "host/controls/xt_tip_window.h"
#include "host/views/news_control_ids.h"
#include "search/adv_search_dlg.h"
#include "search/search_ids.h"
#include "story/quote_dlg_tip_msg.h"
#include "tests/news_view/search_fixture.h"
#include "tests/support/answering.h"
#include "tests/support/conditions.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString notFound = u"IDS_NEWSCTRLVIEW_STRING_NEWS_NOT_FOUND"_s;
const QString invalid = u"IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH"_s;
const QString searching = u"IDS_NEWSCTRLVIEW_STRING_NEWS_SEARCHING"_s;

}  // namespace

TEST_F(SearchesOfTheView, TheQuickSearchAsksTheTickedServicesAndShowsWhatIsThere) {
    backEnd.searchTables[1] = {entryOf(1, 9, 0, 1)};
    backEnd.searchTables[2] = {entryOf(2, 9, 10, 1)};
    backEnd.searchTables[22] = {entryOf(22, 9, 5, 4)};
    openSearch();
    quickSearch(u"  rate cut "_s);
    EXPECT_EQ(sent(), (QStringList{u"search 1 3 0/1 rate cut"_s, u"search 2 3 0/1 rate cut"_s}));
    EXPECT_EQ(titles(3), (QStringList{u"s2 9:10"_s, u"s1 9:00"_s})) << "of the services that were asked";
    EXPECT_EQ(tip(), searching + u" rate cut"_s);
    EXPECT_EQ(pending(), (QList<int>{1, 2}));

    view->RespSearchHeadLineTable(condition({u"rate cut"_s}), 1);
    EXPECT_EQ(titles(3), (QStringList{u"s2 9:10"_s, u"s22 9:05"_s, u"s1 9:00"_s})) << "of every service";
    EXPECT_EQ(tip(), searching + u" rate cut"_s) << "service 2 is still awaited";
    EXPECT_EQ(view->sheetOf(3)->cptGetFocusNdx().y(), 0);
    view->RespSearchHeadLineTable(condition({u"rate cut"_s}), 2);
    EXPECT_EQ(tip(), QString());
    EXPECT_EQ(pending(), QList<int>());

    quickSearch(u"  rate cut "_s);
    EXPECT_EQ(sent().size(), 2);
    EXPECT_EQ(tip(), QString()) << "the same text again is not announced";
    EXPECT_EQ(pending(), QList<int>());
}

TEST_F(SearchesOfTheView, QuickSearchesThatCannotBeSentAreRefused) {
    openSearch();
    for (const QString& text : {QString(), u"   "_s}) {
        EXPECT_EQ(boxesOver([&] { quickSearch(text); }), QStringList());
        EXPECT_EQ(shortTip(), invalid);
    }
    for (const QString& text : {u"STANDARD"_s, u"gold OR oil"_s})
        EXPECT_EQ(boxesOver([&] { quickSearch(text); }), QStringList{u"IDS_NEWSCTRLVIEW_STRING_REINPUT"_s});
    EXPECT_EQ(sent(), QStringList());
    EXPECT_EQ(boxesOver([&] { quickSearch(u"standard or and"_s); }), QStringList());
    EXPECT_EQ(sent().size(), 2) << "capitals alone are refused";
}

TEST_F(SearchesOfTheView, WhatIsTypedIsAQueryWhereTheViewTakesQueries) {
    openSearch({{u"SearchQueries"_s, true}});
    quickSearch({});
    EXPECT_EQ(shortTip(), invalid);
    auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
    EXPECT_FALSE(view->findChild<CXTTipWindow*>()->geometry().intersects(
        {edit->mapToGlobal(QPoint(0, 0)), edit->size()}))
        << "what is typed stays in sight";
    edit->setFocus();
    QTest::keyClicks(edit, u"gold -\"old price\""_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(sent(), (QStringList{u"search 1 3 0/1 gold -\"old price\" as a query"_s,
                                   u"search 2 3 0/1 gold -\"old price\" as a query"_s}));
    const auto answered = [&](QMessageBox::StandardButton button) {
        QString told;
        answering<QMessageBox>([&] { quickSearch(u"STANDARD OR (gold"_s); },
                               [&](QMessageBox& box) {
                                   told = box.text();
                                   box.button(button)->click();
                               });
        return told;
    };
    EXPECT_EQ(answered(QMessageBox::No),
              u"ERROR_QUERY_OPERATOR_WORD\n\nIDS_NEWSCTRLVIEW_STRING_SEARCH_AS_TEXT"_s);
    EXPECT_EQ(sent(), QStringList());
    answered(QMessageBox::Yes);
    EXPECT_EQ(sent().front(), u"search 1 3 0/1 STANDARD OR (gold"_s) << "as plain text";
}

TEST_F(SearchesOfTheView, WithoutAServiceTheLastSearchIsSentWhateverIsInTheBox) {
    backEnd.services.clear();
    openSearch();
    compose([](CAdvSearchDlg& dialog) {
        addKeyword(dialog, u"gold"_s);
        press(dialog, search_ids::ok);
    });
    EXPECT_EQ(boxesOver([&] { quickSearch(u"STANDARD"_s); }), QStringList());
    EXPECT_EQ(tip(), searching + u" gold"_s);
}

TEST_F(SearchesOfTheView, AnAnswerToTheSecondSearchHasATableOfItsOwn) {
    writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\nShowWarningSearch=1\n");
    openSearch({{u"WarningSearchItems"_s, QStringList{condition({u"tin"_s}).GetString()}},
                {u"WarningSearchItemOrder"_s, 1}});
    quickSearch(u"gold"_s);
    backEnd.searchTables[1] = {entryOf(1, 9, 0, 1)};
    backEnd.secondSearchTables[2] = {entryOf(2, 9, 10, 1)};
    view->RespSearchHeadLineTable(CSearch(), 1);
    EXPECT_EQ(titles(3), QStringList{u"s2 9:10"_s});
    EXPECT_EQ(titles(6), QStringList());
    EXPECT_EQ(tip(), QString()) << "it ends the wait tip";
    EXPECT_EQ(pending(), (QList<int>{1, 2})) << "and nothing else";
}

TEST_F(SearchesOfTheView, TwoKeywordsAreSentWithAMethodWhichIsKept) {
    CSearch one = condition({u"gold"_s});
    one.method = 0;
    CSearch two = one;
    two.keywords.push_back(u"oil"_s);
    writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\nShowWarningSearch=1\n");
    backEnd.searchTables[1] = {entryOf(1, 9, 0, 1)};
    for (const auto& [item, asked] : {std::pair{one, u"0/0 gold"_s}, std::pair{two, u"0/1 gold|oil"_s}}) {
        openSearch(
            {{u"WarningSearchItems"_s, QStringList{item.GetString()}}, {u"WarningSearchItemOrder"_s, 1}}, 6);
        view->OnDealsSearch();
        EXPECT_EQ(sent().front(), u"search 1 3 "_s + asked);
    }
    view->RespSearchHeadLineTable(two, 1);
    EXPECT_EQ(view->sheetOf(6)->cptGetFocusNdx().y(), -1) << "the condition without a method is none of ours";
    two.method = 1;
    view->RespSearchHeadLineTable(two, 1);
    EXPECT_EQ(view->sheetOf(6)->cptGetFocusNdx().y(), 0);
}

TEST_F(SearchesOfTheView, TheWaitTipComesWithAnotherTextInTheBoxAndNamesTheSearchThatIsSent) {
    openSearch();
    const auto search = [this](const QString& keyword) {
        compose([&](CAdvSearchDlg& dialog) {
            qobject_cast<QAbstractButton*>(dlgItem(&dialog, search_ids::methodAnd))->click();
            for (auto* keywords = qobject_cast<QListWidget*>(dlgItem(&dialog, search_ids::keywords));
                 keywords->count() > 0;) {
                keywords->selectAll();
                press(dialog, search_ids::remove);
            }
            addKeyword(dialog, keyword);
            press(dialog, search_ids::ok);
        });
    };
    quickSearch(u"gold"_s);
    EXPECT_EQ(tip(), searching + u" gold"_s);
    search(u"oil"_s);
    EXPECT_EQ(tip(), searching + u" oil"_s) << "nobody waits for gold any more";
    EXPECT_EQ(pending(), QList<int>()) << "the text in the box is the same";
    CSearch oil = condition({u"oil"_s});
    view->RespSearchHeadLineTable(oil, 1);
    EXPECT_EQ(tip(), notFound);
    view->findChild<CQuoteDlgTipMsg*>()->vStop();
    search(u"tin"_s);
    EXPECT_EQ(tip(), QString()) << "the text in the box is the same";
    qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit))->setText(u"other"_s);
    search(u"tin"_s);
    EXPECT_EQ(tip(), searching + u" tin"_s) << "the keywords are the same, the text is not";
    EXPECT_EQ(pending(), (QList<int>{1, 2}));
}

TEST_F(SearchesOfTheView, AChangeOfServicesSearchesAgain) {
    openSearch();
    quickSearch(u"gold"_s);
    sent();
    view->onCommand(ids::firstServiceCommand + 2);
    EXPECT_EQ(sent(),
              (QStringList{u"search 1 3 0/1 gold"_s, u"search 2 3 0/1 gold"_s, u"search 16 3 0/1 gold"_s}));
}

TEST_F(SearchesOfTheView, TheDialogsSearchIsSentAtOkAndKeptAtCancel) {
    openSearch();
    auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
    edit->setFocus();
    compose([](CAdvSearchDlg& dialog) { press(dialog, search_ids::ok); });
    EXPECT_EQ(shortTip(), invalid) << "without keywords";
    EXPECT_EQ(sent(), QStringList());
    EXPECT_EQ(view->focusWidget(), edit);
    edit->setText(u"gold"_s);
    compose([](CAdvSearchDlg& dialog) {
        addKeyword(dialog, u"gold"_s);
        addKeyword(dialog, u"oil"_s);
        press(dialog, search_ids::scopeBoth);
        press(dialog, search_ids::ok);
    });
    EXPECT_EQ(sent(), (QStringList{u"search 1 3 2/2 gold|oil"_s, u"search 2 3 2/2 gold|oil"_s}));
    EXPECT_EQ(pending(), (QList<int>{1, 2}));
    EXPECT_EQ(tip(), searching + u" gold oil"_s);
    quickSearch(u"silver"_s);
    sent();
    EXPECT_EQ(pending(), (QList<int>{1, 2}));
    compose([](CAdvSearchDlg& dialog) {
        addKeyword(dialog, u"tin"_s);
        dialog.reject();
    });
    EXPECT_EQ(sent(), QStringList());
    EXPECT_EQ(tip(), QString()) << "nobody will answer for silver";
    view->OnDealsSearch();
    EXPECT_EQ(sent().front(), u"search 1 3 2/2 gold|oil|tin"_s);

    view->SaveViewInfo(&settings, u"Layout"_s, 0, 0);
    EXPECT_EQ(settings.values[u"!RVNEWS_NEWSSEARCH_KEYWORD"_s].toStringList(),
              (QStringList{u"gold"_s, u"oil"_s, u"tin"_s}));
    EXPECT_EQ(settings.values[u"!RVNEWS_NEWSSEARCH_NEARTENSEARCHINFO"_s].toStringList().size(), 2);

    edit->clear();
    edit->setFocus();
    compose([](CAdvSearchDlg& dialog) { press(dialog, search_ids::ok); });
    EXPECT_EQ(view->focusWidget(), view->pGetCurrSheetView()) << "to go through what is found";
}

TEST_F(SearchesOfTheView, TheStoryOfAResultHasItsKeywordsMarked) {
    const CHeadlineTable found = entryOf(1, 9, 0, 1);
    backEnd.addStory({found.time, u"All that glitters is gold."_s, found});
    backEnd.searchTables[1] = {found};
    openSearch({{u"NewsShowType"_s, 1}});
    quickSearch(u"GOLD"_s);
    view->RespSearchHeadLineTable(condition({u"GOLD"_s}), 1);
    EXPECT_EQ(story().textCursor().selectedText(), u"gold"_s);
    backEnd.searchTables.clear();
    view->RespSearchHeadLineTable(condition({u"GOLD"_s}), 1);
    EXPECT_EQ(story().literalText(), QString()) << "nothing was found";
    CSearch query = condition({u"-glitters (oil | all) gol*"_s});
    query.language = SearchLanguage::Query;
    EXPECT_EQ(textsToMark(query), (std::vector<QString>{u"oil"_s, u"all"_s, u"gol"_s}))
        << "what is excluded is none";
}

TEST_F(SearchesOfTheView, WhatWasSearchedForIsMarkedAsLongAsItsResultsAreShown) {
    const CHeadlineTable found = entryOf(1, 9, 0, 1);
    backEnd.addStory({found.time, u"All that glitters is gold."_s, found});
    backEnd.searchTables[1] = {found};
    openSearch(
        {{u"NewsShowType"_s, 1}, {u"MarkHits"_s, true}, {u"FinishedRows"_s, true}, {u"SearchLine"_s, true}});
    const auto marks = [&](int list) {
        const auto* rows = static_cast<const CSheetBuilder*>(view->sheetOf(list)->model());
        QStringList texts;
        const QString title = u"Gold rises"_s;
        for (int column = 0; column < 3; ++column) {
            for (const SheetHit& hit : rows->cells()->hits(title, column))
                texts += title.mid(hit.start, hit.length);
        }
        return texts;
    };
    EXPECT_EQ(marks(3), QStringList());
    quickSearch(u"GOLD"_s);
    view->RespSearchHeadLineTable(condition({u"GOLD"_s}), 1);
    EXPECT_EQ(marks(3), QStringList{u"Gold"_s});
    EXPECT_FALSE(story().textCursor().hasSelection());
    ASSERT_EQ(story().extraSelections().size(), 1);
    EXPECT_EQ(story().extraSelections().front().cursor.selectedText(), u"gold"_s);
    quickSearch(u"rises"_s);
    view->RespSearchHeadLineTable(condition({u"rises"_s}), 1);
    EXPECT_EQ(marks(3), QStringList{u"rises"_s});
    EXPECT_EQ(story().extraSelections().size(), 0);
    for (const QString& word : {u"gold"_s, u"ALL"_s}) {
        quickSearch(word);
        view->RespSearchHeadLineTable(condition({word}), 1);
    }
    EXPECT_EQ(story().extraSelections().size(), 1) << "the same story, found by another word";
    auto* line = view->findChild<ChipLine*>();
    ASSERT_NE(line, nullptr);
    emit line->taken(0);
    EXPECT_EQ(marks(3), QStringList()) << "nothing is searched for any more";
}

TEST_F(SearchesOfTheView, WithWarningTermsAnswersGoToTheirListAndPushesAskAgain) {
    writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\nShowWarningSearch=1\n");
    backEnd.searchTables[1] = {entryOf(1, 9, 0, 1)};
    openSearch();
    quickSearch(u"gold"_s);
    view->RespSearchHeadLineTable(condition({u"gold"_s}), 1);
    EXPECT_EQ(titles(6), QStringList{u"s1 9:00"_s});

    CSearch warning = condition({u"gold"_s});
    warning.keywords.push_back(u"oil"_s);
    warning.method = 0;
    const auto pushed = [&](int day, std::int32_t sequence) {
        CHeadline headline;
        headline.service = 1;
        headline.time = localTime(2026, 3, day, 9, 0);
        headline.sequence = sequence;
        headline.title = u"pushed"_s;
        backEnd.asked.clear();
        view->ProcessNewSearchHeadline(warning, ListIndex::WarningTerm, headline, u"SEARCH"_s);
        return titles(6);
    };
    backEnd.searchTables[2] = {entryOf(2, 9, 10, 1)};
    EXPECT_EQ(pushed(2, 8), QStringList{u"s1 9:00"_s}) << "it is not among its service's results";
    EXPECT_EQ(sent(), QStringList{u"search 1 3 0/1 gold|oil"_s});
    EXPECT_EQ(pushed(2, 1), QStringList{u"s1 9:00"_s}) << "it is there already";
    EXPECT_EQ(pushed(3, 1), (QStringList{u"pushed"_s, u"s1 9:00"_s})) << "its number on another day";
    EXPECT_EQ(view->iGetHeadlineTableSize(6), 2);
    EXPECT_EQ(pushed(2, 1), QStringList{u"s1 9:00"_s}) << "the table is read anew";
}

TEST_F(SearchesOfTheView, RowsOfWarningTermsStayWhileAPushIsSearchedForWhereTheSettingsSaySo) {
    writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\nShowWarningSearch=1\n");
    openSearch({{u"KeepWarningRows"_s, true},
                {u"WarningSearchItems"_s, QStringList{condition({u"gold"_s}).GetString()}},
                {u"WarningSearchItemOrder"_s, 1}},
               6);
    backEnd.searchTables[1] = {entryOf(1, 9, 0, 1)};
    backEnd.searchTables[2] = {entryOf(2, 9, 10, 1)};
    view->OnDealsSearch();
    view->RespSearchHeadLineTable(condition({u"gold"_s}), 1);
    const QStringList both{u"s2 9:10"_s, u"s1 9:00"_s};
    EXPECT_EQ(titles(6), both);
    sent();
    addNews(2, 9, 20, 2);
    backEnd.searchTables[2] = {};
    push(2, 9, 20, 2);
    settle();
    EXPECT_EQ(sent(), QStringList{u"search 2 3 0/1 gold"_s});
    EXPECT_EQ(titles(6), both);
    backEnd.searchTables[2] = {entryOf(2, 9, 20, 2), entryOf(2, 9, 10, 1)};
    view->RespSearchHeadLineTable(condition({u"gold"_s}), 2);
    EXPECT_EQ(titles(6), (QStringList{u"s2 9:20"_s, u"s2 9:10"_s, u"s1 9:00"_s}));
}

}  // namespace wirepane
