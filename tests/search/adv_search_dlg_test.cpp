// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The advanced search dialog, worked with mouse and keys.
#include "search/adv_search_dlg.h"

#include "host/controls/quote_trv_change_symbol.h"
#include "host/controls/registered_message.h"
#include "host/controls/xtp_tab_control.h"
#include "search/search_ids.h"
#include "tests/search/dialog_fixture.h"
#include "tests/support/conditions.h"

#include <QRadioButton>
#include <QTableWidget>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class AdvancedSearch : public DialogTest {
protected:
    AdvancedSearch() {
        backEnd.symbols[16] = {{u"2330"_s, u"Aster Chips"_s}, {u"6214"_s, u"Lantern Foods"_s}};
        backEnd.symbols[22] = {{u"00700"_s, u"Harbour Holdings"_s}};
        edited = condition({u"gold"_s, u"oil"_s});
        pool = {u"gold"_s, u"golden"_s, u"silver"_s};
        recent = {condition({u"first"_s}, 2, 1), condition({u"last"_s, u"word"_s}, 1, 2)};
    }

    void open() {
        dialog = std::make_unique<CAdvSearchDlg>(edited, pool, recent, nullptr);
        show(*dialog);
    }

    // What the caller takes back.
    void takeBack() { dialog->readResult(edited, pool, recent); }

    void showSymbolTab() const {
        QTest::keyClick(dialog.get(), Qt::Key_Tab, Qt::ControlModifier);
        ASSERT_EQ(at<CXTPTabControl>(search_ids::tabs).curSel(), 1);
    }

    CSearch edited;
    KeywordList pool;
    RecentSearches recent;
    std::unique_ptr<CAdvSearchDlg> dialog;
};

}  // namespace

TEST_F(AdvancedSearch, OpensWithTheConditionAndTheKeyboardInTheKeywordLine) {
    edited.scope = 7;
    open();
    EXPECT_EQ(focus(), search_ids::keywordEdit);
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"gold"_s, u"oil"_s}));
    EXPECT_EQ(texts(search_ids::pool), (QStringList{u"gold"_s, u"golden"_s, u"silver"_s}));
    EXPECT_TRUE(at<QRadioButton>(search_ids::methodAnd).isChecked());
    EXPECT_TRUE(at<QRadioButton>(search_ids::scopeBoth).isChecked()) << "an unknown scope is both";
    const auto& list = at<QTableWidget>(search_ids::recent);
    ASSERT_EQ(list.rowCount(), 2);
    EXPECT_EQ(list.item(0, 2)->text(), u"last word "_s) << "newest first";
    EXPECT_EQ(list.item(1, 2)->text(), u"first "_s);
}

TEST_F(AdvancedSearch, TypedKeywordsJoinConditionAndPoolOnce) {
    open();
    type(search_ids::keywordEdit, u"gol"_s);
    EXPECT_EQ(texts(search_ids::pool), (QStringList{u"gold"_s, u"golden"_s}));
    type(search_ids::keywordEdit, u"fish"_s);
    EXPECT_EQ(texts(search_ids::pool), QStringList());
    press(search_ids::keywordEdit, Qt::Key_Return);
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"gold"_s, u"oil"_s, u"golfish"_s}));
    EXPECT_EQ(selected(search_ids::keywords), QStringList{u"golfish"_s});
    EXPECT_EQ(selected(search_ids::pool), QStringList{u"golfish"_s});
    EXPECT_EQ(texts(search_ids::pool).size(), 4) << "what is cleared in code does not filter";
    type(search_ids::keywordEdit, u"oil"_s);
    press(search_ids::keywordEdit, Qt::Key_Enter);
    EXPECT_EQ(selected(search_ids::keywords), QStringList{u"oil"_s});
    press(search_ids::keywordEdit, Qt::Key_Return);
    takeBack();
    EXPECT_EQ(edited.keywords, (KeywordList{u"gold"_s, u"oil"_s, u"golfish"_s}));
    EXPECT_EQ(pool, (KeywordList{u"gold"_s, u"golden"_s, u"silver"_s, u"golfish"_s, u"oil"_s}));
    EXPECT_EQ(result, -1) << "Enter in the keyword line closes nothing";
}

TEST_F(AdvancedSearch, SelectedKeywordsComeAndGo) {
    open();
    clickRow(search_ids::pool, 2, true);
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"gold"_s, u"oil"_s, u"silver"_s}));
    EXPECT_EQ(focus(), search_ids::keywordEdit);
    at<QListWidget>(search_ids::pool).selectAll();
    click(search_ids::add);
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"gold"_s, u"oil"_s, u"silver"_s, u"golden"_s}));
    EXPECT_EQ(selected(search_ids::keywords), (QStringList{u"gold"_s, u"silver"_s, u"golden"_s}));
    EXPECT_EQ(selected(search_ids::pool), QStringList());
    click(search_ids::remove);
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"oil"_s});
    clickRow(search_ids::keywords, 0, true);
    EXPECT_EQ(texts(search_ids::keywords), QStringList());
    clickRow(search_ids::pool, 1, true);
    clickRow(search_ids::pool, 1);
    at<QLineEdit>(search_ids::keywordEdit).setText(u"left over"_s);
    click(search_ids::removeFromPool);
    EXPECT_EQ(texts(search_ids::pool), (QStringList{u"gold"_s, u"silver"_s}));
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"golden"_s}) << "the condition has its own";
    EXPECT_EQ(at<QLineEdit>(search_ids::keywordEdit).text(), QString());
}

TEST_F(AdvancedSearch, AsksBeforeAllKeywordsGo) {
    open();
    const QString question = u"IDS_DIALOG-DEAL-SEARCH_REQDELALL"_s;
    answerBox(question, QMessageBox::No, [this] { click(search_ids::removeAll); });
    EXPECT_EQ(texts(search_ids::keywords).size(), 2);
    answerBox(question, QMessageBox::Yes, [this] { click(search_ids::removeAll); });
    EXPECT_EQ(texts(search_ids::keywords).size(), 0);
    EXPECT_TRUE(at<QRadioButton>(search_ids::methodAnd).isChecked());
    click(search_ids::removeAll);
    EXPECT_EQ(QApplication::activeModalWidget(), dialog.get()) << "nothing is left to ask about";

    for (const int row : {2, 0})
        at<QListWidget>(search_ids::pool).item(row)->setSelected(true);
    click(search_ids::add);
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"gold"_s, u"silver"_s}))
        << "from the top down, however they were selected";
}

TEST_F(AdvancedSearch, SymbolsAreFoundAfterAPauseAndGiveCodeAndName) {
    backEnd.candidates = {u"[22]00700 Harbour Holdings"_s, u"2330 Aster Chips"_s, u"Lonely"_s};
    open();
    const QRect place = at<QListWidget>(search_ids::pool).geometry();
    showSymbolTab();
    EXPECT_EQ(at<QListWidget>(search_ids::candidates).geometry(), place) << "nothing moves";
    EXPECT_EQ(focus(), search_ids::symbolEdit);
    EXPECT_FALSE(at<QListWidget>(search_ids::pool).isVisible());
    backEnd.asked.clear();
    type(search_ids::symbolEdit, u"233"_s);
    EXPECT_EQ(texts(search_ids::candidates), QStringList());
    ASSERT_TRUE(QTest::qWaitFor([this] { return at<QListWidget>(search_ids::candidates).count() == 3; }));
    EXPECT_EQ(backEnd.asked, QStringList{u"candidates 233"_s}) << "once, for all that was typed";
    EXPECT_EQ(selected(search_ids::candidates), QStringList{u"2330 Aster Chips"_s});
    press(search_ids::symbolEdit, Qt::Key_Return);
    EXPECT_EQ(selected(search_ids::keywords), (QStringList{u"2330"_s, u"AsterChips"_s}));
    EXPECT_EQ(selected(search_ids::candidates), QStringList());
    clickRow(search_ids::candidates, 2, true);
    EXPECT_EQ(texts(search_ids::keywords),
              (QStringList{u"gold"_s, u"oil"_s, u"2330"_s, u"AsterChips"_s, u"Lonely"_s}));
    EXPECT_EQ(focus(), search_ids::symbolEdit);
    at<QLineEdit>(search_ids::symbolEdit).selectAll();
    press(search_ids::symbolEdit, Qt::Key_Delete);
    EXPECT_EQ(texts(search_ids::candidates), QStringList());
}

TEST_F(AdvancedSearch, ThePickerReportsSymbols) {
    open();
    showSymbolTab();
    expectRoomForEach();
    const auto tellOfNewSymbols = [this] {
        sendRegisteredMessage(dialog.get(), registerMessage(u"MSG_SYMBOLUPDATE_TREEDLG"_s), 0);
    };
    tellOfNewSymbols();
    click(search_ids::picker);
    auto* picker = dialog->findChild<QuoteTRVChangeSymbol*>();
    ASSERT_NE(picker, nullptr);
    EXPECT_TRUE(picker->isVisible());
    auto* search = qobject_cast<QLineEdit*>(dlgItem(picker, QuoteTRVChangeSymbol::searchEdit));
    auto* tree = qobject_cast<QTreeWidget*>(dlgItem(picker, QuoteTRVChangeSymbol::symbolTree));
    ASSERT_EQ(tree->topLevelItemCount(), 2) << "a branch for each market";
    QTest::keyClicks(search, u"lantern"_s);
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    ASSERT_EQ(tree->topLevelItem(0)->childCount(), 1);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(selected(search_ids::keywords), (QStringList{u"6214"_s, u"Lantern Foods"_s}));

    search->clear();
    QTreeWidgetItem* market = tree->topLevelItem(1);
    market->setExpanded(true);
    ASSERT_EQ(market->childCount(), 1);
    emit tree->itemDoubleClicked(market->child(0), 0);
    EXPECT_EQ(selected(search_ids::keywords), (QStringList{u"00700"_s, u"Harbour Holdings"_s}));
    emit tree->itemDoubleClicked(market, 0);
    EXPECT_EQ(texts(search_ids::keywords).size(), 6) << "a market is no symbol";

    backEnd.symbols[22].push_back({u"00005"_s, u"Bay Bank"_s});
    tellOfNewSymbols();
    QTest::keyClicks(search, u"bay"_s);
    EXPECT_EQ(tree->topLevelItemCount(), 1);
    picker->close();
    click(search_ids::picker);
    EXPECT_EQ(dialog->findChildren<QuoteTRVChangeSymbol*>().size(), 1) << "the same one again";
}

TEST_F(AdvancedSearch, EnterPressesTheButtonOfWhereTheKeyboardIs) {
    open();
    const std::pair<int, int> cases[] = {
        {search_ids::keywordEdit, search_ids::addTyped}, {search_ids::pool, search_ids::add},
        {search_ids::keywords, search_ids::ok},          {search_ids::remove, search_ids::remove},
        {search_ids::scopeStories, search_ids::ok},      {search_ids::recent, search_ids::ok}};
    for (const auto& [control, button] : cases) {
        dlgItem(dialog.get(), control)->setFocus();
        EXPECT_EQ(defaultButton(), button) << control;
    }
    EXPECT_EQ(at<QTableWidget>(search_ids::recent).selectedItems().size(), 0)
        << "being there chooses nothing";
    showSymbolTab();
    at<QListWidget>(search_ids::candidates).setFocus();
    EXPECT_EQ(defaultButton(), search_ids::add);
    at<QListWidget>(search_ids::keywords).setFocus();
    press(search_ids::keywords, Qt::Key_Return);
    EXPECT_EQ(result, QDialog::Accepted);
}

TEST_F(AdvancedSearch, OkReadsTheControlsAndKeepsTheSearch) {
    edited = CSearch();
    edited.keywords = {u"gold"_s};
    edited.symbols = {{16, u"2330"_s}};
    open();
    click(search_ids::scopeStories);
    click(search_ids::ok);
    EXPECT_EQ(result, QDialog::Accepted);
    takeBack();
    EXPECT_EQ(edited, condition({u"gold"_s}, 1, 2))
        << "no method is any keyword, and no symbol what is not shown";
    ASSERT_EQ(recent.size(), 3U);
    EXPECT_EQ(recent.back(), edited);
}

TEST_F(AdvancedSearch, CancelKeepsWhatWasEditedButNotTheSearch) {
    open();
    type(search_ids::keywordEdit, u"tin"_s);
    press(search_ids::keywordEdit, Qt::Key_Return);
    click(search_ids::methodOr);
    press(search_ids::keywordEdit, Qt::Key_Escape);
    EXPECT_EQ(result, QDialog::Rejected);
    takeBack();
    EXPECT_EQ(edited, condition({u"gold"_s, u"oil"_s, u"tin"_s}, 0, 1)) << "the choices are read at OK alone";
    EXPECT_EQ(pool.back(), u"tin"_s);
    EXPECT_EQ(recent.size(), 2U);
}

TEST_F(AdvancedSearch, ARecentSearchIsLoadedByAClickAndRunByTwo) {
    open();
    clickRow(search_ids::recent, 1);
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"first"_s});
    EXPECT_TRUE(at<QRadioButton>(search_ids::scopeBoth).isChecked());
    EXPECT_TRUE(at<QRadioButton>(search_ids::methodAnd).isChecked());
    press(search_ids::recent, Qt::Key_Up);
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"last"_s, u"word"_s})) << "arrows choose too";
    clickRow(search_ids::keywords, 0, true);
    clickRow(search_ids::recent, 0);
    EXPECT_EQ(texts(search_ids::keywords).size(), 2) << "loaded anew";
    clickRow(search_ids::recent, 1, true);
    EXPECT_EQ(result, -1) << "not from within the click";
    ASSERT_TRUE(QTest::qWaitFor([this] { return result == QDialog::Accepted; }));
    takeBack();
    EXPECT_EQ(edited, condition({u"first"_s}, 2, 1));
    EXPECT_EQ(recent.size(), 2U) << "it is kept already, and stays where it is";
    EXPECT_EQ(recent.front(), edited);
}

}  // namespace wirepane
