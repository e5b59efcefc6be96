// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The box of searches and the line over what they find: what is typed, dropped down, kept under names, taken
// out.
#include "host/controls/chip_line.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/search_fixture.h"
#include "tests/support/conditions.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace wirepane {

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
    EXPECT_EQ(rows(), 200) << "the newest stand until all services have answered";
    EXPECT_EQ(sum(), u"newest 200"_s);
    view->RespSearchHeadLineTable(query, 2);
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(sum(), u"found 2"_s);
    backEnd.findings.clear();
    openSearch({{u"SearchQueries"_s, true}});
    QTest::keyClicks(dlgItem(view.get(), ids::searchEdit), u"gold"_s);
    EXPECT_EQ(backEnd.findings.size(), 0U) << "a view without the option";
}

TEST_F(SearchesOfTheView, TheNewestOfASearchStandUntilEveryServiceHasAnswered) {
    const CHeadlineTable newest = entryOf(2, 9, 10, 1);
    const CHeadlineTable older = entryOf(1, 9, 0, 1);
    openSearch({{u"SearchAsYouType"_s, true}});
    const auto rows = [&] { return view->sheetOf(3)->model()->rowCount(); };
    const auto search = [&](const QString& word) {
        backEnd.searchTables.clear();
        auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
        edit->setText(word);
        QTest::keyClick(edit, Qt::Key_Return);
        CSearch sent = condition({word});
        sent.method = numberOf(SearchMethod::All);
        return sent;
    };
    struct Case {
        QString word;
        QString events;  // a, b: service 1, 2 answers; s: the newest so far, A: the newest
        QList<int> rows;
    };
    const Case cases[] = {
        {u"gold"_s, u"sAab"_s, {1, 2, 2, 3}},
        {u"lead"_s, u"asb"_s, {1, 1, 3}},
        {u"none"_s, u"abA"_s, {1, 3, 3}},
    };
    for (const Case& each : cases) {
        const CSearch sent = search(each.word);
        EXPECT_EQ(rows(), 0) << each.word.toStdString();
        const auto found = backEnd.findings.back();
        EXPECT_EQ(found.services, (std::vector<unsigned char>{1, 2}));
        for (int i = 0; i < each.events.size(); ++i) {
            switch (each.events[i].unicode()) {
                case u'a':
                    backEnd.searchTables[1] = {older};
                    view->RespSearchHeadLineTable(sent, 1);
                    break;
                case u'b':
                    backEnd.searchTables[2] = {entryOf(2, 9, 20, 9), newest};
                    view->RespSearchHeadLineTable(sent, 2);
                    break;
                case u's':
                    found.told({newest}, false);
                    break;
                default:
                    found.told({newest, older}, true);
            }
            EXPECT_EQ(rows(), each.rows[i]) << each.word.toStdString() << i;
            if (i == 0)
                view->sheetOf(3)->setActiveSelection(0, -1);
        }
        EXPECT_EQ(view->sheetOf(3)->currentIndex().row(), each.events.startsWith(u's') ? 1 : 0)
            << "the row that the user is on stays under him: " << each.word.toStdString();
    }
    // Another search is sent, or typed: nobody waits for the newest of that before.
    search(u"zinc"_s);
    search(u"tin"_s);
    EXPECT_TRUE(backEnd.findings[backEnd.findings.size() - 2].isDropped());
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
    openSearch({{u"SearchQueries"_s, true}, {u"NamedSearches"_s, true}, {u"AlertLooks"_s, true}});
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
    const QMenu* choices =
        lineOf(*menu, u"IDS_NEWSCTRLVIEW_SAVED_MANAGE"_s)->menu()->actions().front()->menu();
    lineOf(*choices, u"IDS_NEWSCTRLVIEW_SAVED_AS_ALERT"_s)->trigger();
    EXPECT_EQ(backEnd.asked.back(), u"alert 黃金 & co: gold -tin"_s);
    menu->close();
}

TEST_F(SearchesOfTheView, ASearchWithANameIsShownAgainWhenTheViewIsOpenedAgain) {
    CSearch metals = condition({u"gold -tin"_s});
    metals.language = SearchLanguage::Query;
    const QMap<QString, QVariant> stored{
        {u"SearchQueries"_s, true},
        {u"NamedSearches"_s, true},
        {u"SavedSearches"_s, QStringList(u"Metals\t"_s + metals.GetString())},
        {u"NamedSearch"_s, u"Metals"_s}};
    const auto keptName = [this] {
        view->SaveViewInfo(&settings, u"Layout"_s, 0, 0);
        return settings.values[u"NamedSearch"_s].toString();
    };
    openSearch(stored, 0);
    EXPECT_TRUE(sent().empty()) << "another mode is shown";
    EXPECT_EQ(keptName(), u"Metals"_s) << "it still waits";
    view->SwitchFunction(3);
    ASSERT_EQ(sent().size(), 2);
    EXPECT_EQ(qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit))->text(), u"gold -tin"_s);
    EXPECT_EQ(keptName(), u"Metals"_s);
    quickSearch(u"lead"_s);
    EXPECT_EQ(keptName(), QString());

    openSearch(stored);
    EXPECT_EQ(pending(), (QList<int>{1, 2})) << "the mode that the view opens with";
    QMap<QString, QVariant> deleted = stored;
    deleted[u"SavedSearches"_s] = QStringList();
    openSearch(deleted);
    EXPECT_TRUE(sent().empty());
    QMap<QString, QVariant> bare = stored;
    bare.remove(u"NamedSearches"_s);
    openSearch(bare);
    EXPECT_TRUE(sent().empty());
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

}  // namespace wirepane
