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
#include "story/news_story_view.h"
#include "story/quote_dlg_tip_msg.h"
#include "story/story_ids.h"
#include "tests/news_view/view_fixture.h"
#include "tests/support/answering.h"
#include "tests/support/conditions.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTextCursor>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString notFound = u"IDS_NEWSCTRLVIEW_STRING_NEWS_NOT_FOUND"_s;
const QString invalid = u"IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH"_s;
const QString searching = u"IDS_NEWSCTRLVIEW_STRING_NEWS_SEARCHING"_s;

CHeadlineTable entryOf(unsigned char service, int hour, int minute, std::int32_t sequence) {
    return {localTime(2026, 3, 2, hour, minute), sequence, service, 0, 0};
}

class SearchesOfTheView : public NewsViewTest {
protected:
    SearchesOfTheView() {
        backEnd.texts[u"IDS_NEWSCTRLVIEW_NOTICE_NARROWED"_s] = u"only %1"_s;
        addNews(1, 9, 0, 1);
        addNews(2, 9, 10, 1);
        addNews(22, 9, 5, 4);
    }

    // The search mode with services 1 and 2 ticked.
    void openSearch(QMap<QString, QVariant> stored = {}, int mode = 3) {
        stored[u"Sheet0ServiceCheck1"_s] = true;
        stored[u"Sheet0ServiceCheck2"_s] = true;
        openActive(stored, mode);
    }

    // The texts of the message boxes that `work` puts in front of the user, each of which is closed.
    QStringList boxesOver(const std::function<void()>& work) {
        QStringList texts;
        QTimer closing;
        QObject::connect(&closing, &QTimer::timeout, view.get(), [&] {
            auto* over = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (over == nullptr)
                return;
            const auto* box = qobject_cast<QMessageBox*>(over);
            texts.append(box != nullptr ? box->text() : QString());
            over->reject();
        });
        closing.start(0);
        work();
        return texts;
    }
    QStringList sent() { return asked(u"search "_s); }
    QList<int> pending() const {
        QList<int> result;
        for (const QVariant& service : state(u"services"_s).toList()) {
            if (service.toMap()[u"pending"_s].toBool())
                result.append(service.toMap()[u"id"_s].toInt());
        }
        return result;
    }
    QString shortTip() const {
        const QVariantMap shown = state(u"shortTip"_s).toMap();
        return shown[u"visible"_s].toBool() ? shown[u"text"_s].toString() : QString();
    }
    MyRichEdit& story() const {
        auto* pane = dlgItem(view.get(), ids::firstChildView + ids::storyPane);
        return *static_cast<MyRichEdit*>(dlgItem(pane, story_ids::storyText));
    }
    void compose(const std::function<void(CAdvSearchDlg&)>& work) {
        runDialog<CAdvSearchDlg>(ids::dealsSearchButton, work);
    }
    static void addKeyword(const CAdvSearchDlg& dialog, const QString& keyword) {
        auto* edit = qobject_cast<QLineEdit*>(dlgItem(&dialog, search_ids::keywordEdit));
        edit->setText(keyword);
        QTest::keyClick(edit, Qt::Key_Return);
    }
};

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

TEST_F(SearchesOfTheView, TheNewestAreShownWhileTheUserTypesAndStayUntilAllAreFound) {
    const CHeadlineTable newer = entryOf(1, 9, 30, 2);
    const CHeadlineTable older = entryOf(1, 9, 0, 1);
    openSearch({{u"SearchQueries"_s, true}, {u"SearchLine"_s, true}, {u"SearchAsYouType"_s, true}});
    backEnd.texts[u"IDS_NEWSCTRLVIEW_FOUND_NEWEST"_s] = u"newest %1"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_FOUND_COUNT"_s] = u"found %1"_s;
    auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
    const auto type = [&](const QString& text) {
        edit->clear();
        QTest::keyClicks(edit, text);
    };
    const auto rows = [&] { return view->sheetOf(3)->model()->rowCount(); };
    const auto sum = [&] {
        QCoreApplication::processEvents();
        return view->findChild<ChipLine*>()->told().sum;
    };
    sent();
    type(u"gold"_s);
    ASSERT_EQ(backEnd.findings.size(), 4U) << "one at each key";
    EXPECT_EQ(backEnd.findings[1].condition.keywords, std::vector{u"go"_s});
    EXPECT_EQ(backEnd.findings[3].condition.keywords, std::vector{u"gold*"_s});
    EXPECT_TRUE(backEnd.findings[2].isDropped());
    EXPECT_FALSE(backEnd.findings[3].isDropped());
    backEnd.findings[3].told({newer, older}, false);
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(sum(), u"newest 2"_s) << "the word may go on";
    backEnd.findings[1].told({newer}, true);
    EXPECT_EQ(sum(), u"found 1"_s);
    backEnd.findings[3].told(std::vector<CHeadlineTable>(200, newer), true);
    EXPECT_EQ(sum(), u"newest 200"_s);
    EXPECT_EQ(sent(), QStringList()) << "nothing is sent before Enter";
    // What has a fault so far is not looked for, and what was found stays.
    type(u"gold \""_s);
    EXPECT_EQ(backEnd.findings.size(), 9U);
    EXPECT_TRUE(backEnd.findings.back().isDropped());
    EXPECT_EQ(rows(), 200);
    type(u"gold"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(backEnd.findings.back().isDropped()) << "all of it is being searched for";
    EXPECT_TRUE(sent().front().contains(u"gold"_s));
    EXPECT_EQ(rows(), 200);
    backEnd.searchTables[1] = {newer, older};
    CSearch query = condition({u"gold"_s});
    query.language = SearchLanguage::Query;
    query.method = numberOf(SearchMethod::All);
    view->RespSearchHeadLineTable(query, 1);
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(sum(), u"found 2"_s);
    backEnd.findings.clear();
    openSearch({{u"SearchQueries"_s, true}});
    QTest::keyClicks(dlgItem(view.get(), ids::searchEdit), u"gold"_s);
    EXPECT_EQ(backEnd.findings.size(), 0U) << "a view without the option";
}

TEST_F(SearchesOfTheView, TheBoxDropsDownWhatWasSearchedForNewestFirst) {
    openSearch({{u"SearchQueries"_s, true}, {u"SearchHistory"_s, true}});
    auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
    QTest::keyClick(edit, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "there is nothing yet";
    for (const QString& text : {u"R&D gold"_s, u"tin -lead"_s, u"R&D gold"_s})
        quickSearch(text);
    edit->setText(u"half typed"_s);
    sent();
    QTest::keyClick(edit, Qt::Key_Down, Qt::AltModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QStringList offered;
    for (const QAction* action : menu->actions())
        offered += action->text();
    EXPECT_EQ(offered, (QStringList{u"tin -lead"_s, u"R&&D gold"_s}));
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(edit->text(), u"R&D gold"_s);
    EXPECT_TRUE(sent().front().contains(u"R&D gold"_s));
}

TEST_F(SearchesOfTheView, SearchesWithNamesDropDownWithTheirCountsAndAreSentAgain) {
    openSearch({{u"SearchQueries"_s, true}, {u"NamedSearches"_s, true}});
    backEnd.texts[u"IDS_NEWSCTRLVIEW_SAVED_TODAY"_s] = u"%1 today"_s;
    auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
    const auto drop = [&] {
        QTest::keyClick(edit, Qt::Key_Down, Qt::AltModifier);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    const auto lineOf = [](const QMenu& menu, const QString& text) {
        for (QAction* line : menu.actions()) {
            if (line->text() == text)
                return line;
        }
        return static_cast<QAction*>(nullptr);
    };
    const QString save = u"IDS_NEWSCTRLVIEW_SAVED_SAVE"_s;
    EXPECT_FALSE(lineOf(*drop(), save)->isEnabled()) << "nothing was searched for yet";
    QApplication::activePopupWidget()->close();
    quickSearch(u"gold -tin"_s);
    QTimer::singleShot(0, view.get(), [] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        EXPECT_EQ(dialog->textValue(), u"gold -tin"_s);
        dialog->setTextValue(u"黃金 & co"_s);
        dialog->accept();
    });
    QMenu* menu = drop();
    QAction* saving = lineOf(*menu, save);
    menu->close();
    saving->trigger();
    quickSearch(u"lead"_s);
    sent();
    menu = drop();
    ASSERT_FALSE(backEnd.countings.empty());
    EXPECT_EQ(backEnd.countings.back().searches.front().condition.query(), u"(gold -tin) on:today"_s);
    EXPECT_EQ(backEnd.countings.back().searches.front().services, (std::vector<unsigned char>{1, 2}));
    backEnd.countings.back().told({1200});
    QAction* line = lineOf(*menu, u"黃金 && co\t1,200 today"_s);
    ASSERT_NE(line, nullptr);
    line->trigger();
    EXPECT_EQ(edit->text(), u"gold -tin"_s);
    EXPECT_TRUE(sent().front().contains(u"gold -tin"_s));
    menu->close();
}

TEST_F(SearchesOfTheView, TheLineOverTheResultsTellsWhatWasFoundAndTakesThePartsOut) {
    for (const auto& [key, text] : {std::pair{u"COUNT"_s, u"found %1"_s},
                                    {u"SINCE"_s, u"since %1"_s},
                                    {u"UNTIL"_s, u"until %1"_s},
                                    {u"TOOK"_s, u"%1 ms"_s},
                                    {u"TAKE_OUT"_s, u"not %1"_s}})
        backEnd.texts[u"IDS_NEWSCTRLVIEW_FOUND_"_s + key] = text;
    openSearch({{u"SearchQueries"_s, true}, {u"SearchLine"_s, true}});
    auto* line = qobject_cast<ChipLine*>(dlgItem(view.get(), ids::searchLine));
    const auto told = [&] {
        QCoreApplication::processEvents();
        QStringList parts;
        for (const ChipLineText::Chip& chip : line->told().chips)
            parts += chip.text;
        return parts.join(u'/');
    };
    const auto answer = [&](const QString& query) {
        CSearch found = condition({query});
        found.language = SearchLanguage::Query;
        for (const auto service : std::vector<unsigned char>{1, 2})
            view->RespSearchHeadLineTable(found, service);
    };
    ASSERT_TRUE(line->isVisible());
    EXPECT_EQ(told(), QString());
    const int top = view->sheetOf(3)->y();
    EXPECT_GE(top, line->geometry().bottom()) << "the rows begin below it";
    backEnd.searchTables[1] = {entryOf(1, 9, 0, 1)};
    backEnd.searchTables[2] = {entryOf(2, 9, 10, 1)};
    quickSearch(u"gold -tin (a | b)"_s);
    answer(u"gold -tin (a | b)"_s);
    EXPECT_EQ(told(), u"gold/-tin/(a | b)"_s);
    EXPECT_EQ(line->told().chips.front().action, u"not gold"_s);
    EXPECT_EQ(line->told().sum, u"found 2"_s);
    EXPECT_TRUE(line->told().details.contains(u"since 2026/03/02 · until "_s));
    EXPECT_TRUE(line->told().details.endsWith(u" ms"_s));

    backEnd.searchTables[1].push_back(entryOf(1, 8, 0, 2));
    backEnd.searchTables[2].clear();
    answer(u"gold -tin (a | b)"_s);
    told();
    EXPECT_EQ(line->told().sum, u"found 2"_s);
    EXPECT_TRUE(line->told().details.contains(u" 2 · since"_s)) << "now all are of one service";
    const QWidget* next = dlgItem(view.get(), ids::dealsSearchButton);
    do {
        next = next->nextInFocusChain();
    } while (!next->isVisible() || !(next->focusPolicy() & Qt::TabFocus));
    EXPECT_EQ(next->accessibleName(), u"not gold"_s) << "the keyboard goes there from the buttons";

    view->onCommand(ids::firstServiceCommand);
    sent();
    auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
    emit line->taken(1);
    EXPECT_EQ(edit->text(), u"gold (a | b)"_s);
    EXPECT_TRUE(sent().front().contains(u"gold (a | b) as a query"_s));
    emit line->taken(1);
    EXPECT_EQ(told(), u"gold"_s);
    view->ChangeSymbol(view.get(), 0, 16, u"2330"_s, {});
    EXPECT_EQ(told(), u"gold/2330 Aster Chips"_s);
    sent();
    emit line->taken(1);
    EXPECT_FALSE(sent().front().contains(u"2330"_s)) << "the symbol counts no more";
    EXPECT_EQ(told(), u"gold"_s);
    emit line->taken(0);
    EXPECT_EQ(sent(), QStringList()) << "nothing is left to be searched for";
    EXPECT_EQ(told(), QString());
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(titles(3), QStringList());
    answer(u"gold"_s);
    EXPECT_EQ(titles(3), QStringList()) << "the answer came too late";
    view->SwitchFunction(0);
    EXPECT_FALSE(line->isVisible());
    EXPECT_LT(view->sheetOf(0)->y(), top) << "other lists need no line";
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
