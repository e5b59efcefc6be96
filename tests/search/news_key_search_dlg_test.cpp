// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The dialog of key sets, worked with mouse and keys.
#include "search/news_key_search_dlg.h"

#include "search/search_ids.h"
#include "tests/search/dialog_fixture.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString textAnd = u"IDS_DIALOG-DEAL-SEARCH_AND_BUTTON"_s;
const QString textOr = u"IDS_DIALOG-DEAL-SEARCH_OR_BUTTON"_s;
const QString textAll = u"IDS_DIALOG-DEAL-SEARCH_ALL_NEWSTYPE"_s;
const QString newSet = u"IDS_DIALOG-DEAL-SEARCH_ADD_KEYSET"_s;
const QString sameSet = u"IDS_DIALOG-DEAL-SEARCH_EDIT_KEYSET"_s;
const QString question = u"delete %1?"_s;

class KeySetDialog : public DialogTest {
protected:
    KeySetDialog() {
        backEnd.texts[u"IDS_DIALOG-DEAL-SEARCH_REQDEL_KEY"_s] = question;
        stored = {{1, {CNewsKey::everyNewsType}, {u"X"_s}},
                  {2, {7}, {u"Y"_s, u"Z"_s}},
                  {2, {7}, {u"Y"_s, u"Z"_s}},
                  {1, {3}, {u"W"_s}}};
    }

    void open(bool takesQueries = false) {
        dialog = std::make_unique<CNewsKeySearchDlg>(
            KeywordList{u"GOLD"_s, u"OIL"_s},
            CategoryMap{{3, u"Markets"_s}, {7, u"Deals"_s}, {12, u"Policy"_s}}, stored, nullptr,
            takesQueries);
        show(*dialog);
    }
    void addKeyword(const QString& keyword) {
        at<QLineEdit>(search_ids::keywordEdit).setFocus();
        type(search_ids::keywordEdit, keyword);
        press(search_ids::keywordEdit, Qt::Key_Return);
    }
    // A click on the check box of a row.
    void clickBox(int id, int row) const {
        auto& view = at<QAbstractItemView>(id);
        const QRect cell = view.visualRect(view.model()->index(row, 0));
        const int half = view.style()->pixelMetric(QStyle::PM_IndicatorWidth) / 2;
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + half + 3, cell.center().y()));
    }
    QString saveText() const { return at<QPushButton>(search_ids::saveKeySet).text(); }

    std::vector<CNewsKey> stored;
    std::unique_ptr<CNewsKeySearchDlg> dialog;
};

}  // namespace

TEST_F(KeySetDialog, AnAlertIsMadeOfTheOneThatIsComposed) {
    open();
    std::vector<CNewsKey> proposed;
    dialog->offerAlert([&](const CNewsKey& keySet) { proposed.push_back(keySet); });
    addKeyword(u"TIN"_s);
    click(search_ids::allNewsTypes);
    click(search_ids::alertOfKeySet);
    EXPECT_EQ(proposed, std::vector{CNewsKey(CNewsKey::all, {3, 7, 12}, {u"TIN"_s})});
    EXPECT_EQ(dialog->composedKeySets().size(), stored.size()) << "it is not saved by that";
}

TEST_F(KeySetDialog, ShowsNewsTypesAndKeySetsAndStartsANewOne) {
    open();
    EXPECT_EQ(texts(search_ids::newsTypes), (QStringList{u"Markets"_s, u"Deals"_s, u"Policy"_s}));
    EXPECT_EQ(rows(search_ids::keySets),
              (QStringList{textAnd + u'|' + textAll + u"|X"_s, textOr + u"|Deals |Y, Z"_s,
                           textOr + u"|Deals |Y, Z"_s, textAnd + u"|Markets |W"_s}));
    EXPECT_EQ(ticked(search_ids::newsTypes), QList<int>());
    EXPECT_EQ(ticked(search_ids::keySets), QList<int>());
    EXPECT_FALSE(at<QCheckBox>(search_ids::allNewsTypes).isChecked());
    EXPECT_FALSE(at<QCheckBox>(search_ids::allKeySets).isChecked());
    EXPECT_TRUE(at<QRadioButton>(search_ids::methodAnd).isChecked());
    EXPECT_EQ(texts(search_ids::keywords), QStringList());
    EXPECT_EQ(saveText(), newSet);
    EXPECT_EQ(focus(), search_ids::keywordEdit);
    EXPECT_EQ(at<QLabel>(search_ids::newsTypesCaption).text(), u"IDS_DIALOG-DEAL-SEARCH_NEWSTYPE"_s);
}

TEST_F(KeySetDialog, ANewKeySetNeedsANewsTypeAndAKeyword) {
    open();
    const auto save = [this] { click(search_ids::saveKeySet); };
    answerBox(u"IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSTYPE"_s, QMessageBox::Ok, save);
    clickBox(search_ids::newsTypes, 2);
    answerBox(u"IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSKEY"_s, QMessageBox::Ok, save);
    EXPECT_EQ(rows(search_ids::keySets).size(), 4);
    addKeyword(u"TIN"_s);
    save();
    EXPECT_EQ(rows(search_ids::keySets).value(4), textAnd + u"|Policy |TIN"_s);
    EXPECT_EQ(ticked(search_ids::keySets), QList<int>{4});
    EXPECT_EQ(texts(search_ids::keywords), QStringList());
    addKeyword(u"TIN"_s);
    save();
    EXPECT_EQ(rows(search_ids::keySets).size(), 5) << "it is there already";
    EXPECT_EQ(dialog->tickedKeySets(), (std::vector{CNewsKey(1, {12}, {u"TIN"_s})}));
    EXPECT_EQ(dialog->offeredKeywords(), (KeywordList{u"GOLD"_s, u"OIL"_s, u"TIN"_s}));
}

TEST_F(KeySetDialog, AClickedKeySetIsWorkedOnUntilItIsSavedOrLeft) {
    open();
    at<QListWidget>(search_ids::newsTypes).selectAll();
    clickRow(search_ids::keySets, 1);
    EXPECT_EQ(selected(search_ids::newsTypes), QStringList());
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"Y"_s, u"Z"_s}));
    EXPECT_TRUE(at<QRadioButton>(search_ids::methodOr).isChecked());
    EXPECT_EQ(ticked(search_ids::newsTypes), QList<int>{1});
    EXPECT_EQ(saveText(), sameSet);
    press(search_ids::keySets, Qt::Key_Up);
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"X"_s}) << "arrows choose too";
    EXPECT_EQ(ticked(search_ids::newsTypes), (QList<int>{0, 1, 2}));
    EXPECT_TRUE(at<QCheckBox>(search_ids::allNewsTypes).isChecked());

    addKeyword(u"V"_s);
    click(search_ids::methodOr);
    clickBox(search_ids::newsTypes, 0);
    EXPECT_FALSE(at<QCheckBox>(search_ids::allNewsTypes).isChecked());
    press(search_ids::newsTypes, Qt::Key_Return);
    EXPECT_EQ(rows(search_ids::keySets).front(), textOr + u"|Deals Policy |X, V"_s);
    EXPECT_EQ(ticked(search_ids::keySets), QList<int>{0});
    EXPECT_EQ(saveText(), newSet);
    EXPECT_EQ(dialog->composedKeySets().size(), 4U);

    for (const bool byKey : {false, true}) {
        clickRow(search_ids::keySets, 3);
        EXPECT_EQ(saveText(), sameSet);
        if (byKey)
            press(search_ids::keySets, Qt::Key_Escape);
        else
            clickRow(search_ids::keySets, 3, false, Qt::RightButton);
        EXPECT_EQ(saveText(), newSet) << byKey;
        EXPECT_EQ(texts(search_ids::keywords), QStringList()) << byKey;
    }
    at<QAbstractItemView>(search_ids::keySets).setFocus();
    press(search_ids::keySets, Qt::Key_Down);
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"W"_s})
        << "the last row, by a key that leads nowhere";
    press(search_ids::keySets, Qt::Key_Escape);
    addKeyword(u"HALF"_s);
    clickRow(search_ids::keySets, 3, false, Qt::RightButton);
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"HALF"_s}) << "what is composed anew is not lost";
    EXPECT_EQ(result, -1);
}

TEST_F(KeySetDialog, TakesQueriesAndWhatMustNotBeThere) {
    stored.resize(1);
    open(true);
    clickBox(search_ids::newsTypes, 0);
    addKeyword(u"GOLD"_s);
    type(search_ids::keywordEdit, u"TIN"_s);
    click(search_ids::exclude);
    EXPECT_EQ(texts(search_ids::excluded), QStringList{u"TIN"_s});
    click(search_ids::saveKeySet);
    const QString textQuery = u"IDS_DIALOG-DEAL-SEARCH_QUERY_BUTTON"_s;
    EXPECT_EQ(rows(search_ids::keySets).value(1), textQuery + u"|Markets |\"GOLD\" -\"TIN\""_s);
    EXPECT_EQ(texts(search_ids::excluded), QStringList()) << "the next one begins anew";

    clickRow(search_ids::keySets, 1);
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"GOLD"_s});
    EXPECT_EQ(texts(search_ids::excluded), QStringList{u"TIN"_s});
    addKeyword(u"from:today"_s);
    click(search_ids::methodQuery);
    const auto save = [this] { click(search_ids::saveKeySet); };
    const QString fault = u"ERROR_QUERY_NOT_OF_HEADLINES\n\nIDS_NEWSCTRLVIEW_STRING_SEARCH_AS_TEXT"_s;
    answerBox(fault, QMessageBox::No, save);
    EXPECT_EQ(texts(search_ids::keywords), (QStringList{u"GOLD"_s, u"from:today"_s})) << "he goes on";
    answerBox(fault, QMessageBox::Yes, save);
    EXPECT_EQ(dialog->composedKeySets().back(), CNewsKey(1, {3}, {u"GOLD"_s, u"from:today"_s}));
}

TEST_F(KeySetDialog, CheckBoxesTickAndDoNothingElse) {
    open();
    addKeyword(u"HALF"_s);
    clickBox(search_ids::keySets, 1);
    clickBox(search_ids::keySets, 3);
    at<QAbstractItemView>(search_ids::keySets).setFocus();
    press(search_ids::keySets, Qt::Key_Space);
    EXPECT_EQ(ticked(search_ids::keySets), QList<int>{1}) << "Space where the last click was";
    for (const bool isTicked : {true, false}) {
        at<QTableWidget>(search_ids::keySets).setCurrentCell(0, 2, QItemSelectionModel::NoUpdate);
        press(search_ids::keySets, Qt::Key_Space);
        EXPECT_EQ(ticked(search_ids::keySets).contains(0), isTicked);
    }
    EXPECT_EQ(saveText(), newSet);
    EXPECT_EQ(texts(search_ids::keywords), QStringList{u"HALF"_s});

    click(search_ids::allKeySets);
    EXPECT_EQ(ticked(search_ids::keySets), (QList<int>{0, 1, 2, 3}));
    clickBox(search_ids::keySets, 2);
    EXPECT_FALSE(at<QCheckBox>(search_ids::allKeySets).isChecked());
    click(search_ids::allNewsTypes);
    EXPECT_EQ(ticked(search_ids::newsTypes), (QList<int>{0, 1, 2}));
    EXPECT_EQ(selected(search_ids::newsTypes).size(), 3);
    click(search_ids::allNewsTypes);
    EXPECT_EQ(ticked(search_ids::newsTypes), QList<int>());
    EXPECT_EQ(selected(search_ids::newsTypes).size(), 0);

    at<QAbstractItemView>(search_ids::keywords).setFocus();
    press(search_ids::keywords, Qt::Key_Return);
    EXPECT_EQ(result, QDialog::Accepted);
    const std::vector<CNewsKey> chosen = dialog->tickedKeySets();
    ASSERT_EQ(chosen.size(), 3U);
    EXPECT_EQ(chosen[0].newsTypes, (std::vector{3, 7, 12}));
    EXPECT_EQ(chosen[2], stored[3]) << "in the order of the rows";
}

TEST_F(KeySetDialog, DeletesWithAllThatAreEqualAfterAsking) {
    open();
    click(search_ids::deleteKeySets);
    EXPECT_EQ(QApplication::activeModalWidget(), dialog.get()) << "nothing is ticked";
    clickBox(search_ids::keySets, 0);
    clickBox(search_ids::keySets, 3);
    clickRow(search_ids::keySets, 2);
    const auto deleteTicked = [this] { click(search_ids::deleteKeySets); };
    answerBox(u"delete 2?"_s, QMessageBox::No, deleteTicked);
    EXPECT_EQ(rows(search_ids::keySets).size(), 4);
    EXPECT_EQ(saveText(), sameSet) << "nothing changes";
    answerBox(u"delete 2?"_s, QMessageBox::Yes, deleteTicked);
    EXPECT_EQ(dialog->composedKeySets(), (std::vector{stored[1], stored[2]}));
    EXPECT_EQ(saveText(), newSet);

    const auto clickTwice = [this] { clickRow(search_ids::keySets, 1, true); };
    answerBox(u"delete 1?"_s, QMessageBox::No, clickTwice);
    ASSERT_TRUE(QTest::qWaitFor([this] { return saveText() == newSet; }));
    EXPECT_EQ(dialog->composedKeySets().size(), 2U);
    answerBox(u"delete 1?"_s, QMessageBox::Yes, clickTwice);
    ASSERT_TRUE(QTest::qWaitFor([this] { return rows(search_ids::keySets).isEmpty(); }))
        << "the other one is equal";
    EXPECT_TRUE(dialog->composedKeySets().empty());
    EXPECT_EQ(texts(search_ids::keywords), QStringList());
}

TEST_F(KeySetDialog, EnterSavesWhereAKeySetIsComposedAndEndsElsewhere) {
    open();
    const std::pair<int, int> cases[] = {{search_ids::keywordEdit, search_ids::addTyped},
                                         {search_ids::pool, search_ids::add},
                                         {search_ids::keywords, search_ids::ok},
                                         {search_ids::newsTypes, search_ids::saveKeySet},
                                         {search_ids::allNewsTypes, search_ids::saveKeySet},
                                         {search_ids::methodOr, search_ids::saveKeySet},
                                         {search_ids::keySets, search_ids::ok},
                                         {search_ids::allKeySets, search_ids::ok},
                                         {search_ids::deleteKeySets, search_ids::deleteKeySets}};
    for (const auto& [control, button] : cases) {
        dlgItem(window, control)->setFocus();
        EXPECT_EQ(defaultButton(), button) << control;
    }
    EXPECT_EQ(saveText(), newSet) << "being in the list chooses nothing";
    addKeyword(u"A"_s);
    answerBox(u"IDS_DIALOG-DEAL-SEARCH_REQDELALL_KEY"_s, QMessageBox::Yes,
              [this] { click(search_ids::removeAllOfKeySet); });
    EXPECT_EQ(texts(search_ids::keywords), QStringList());
}

}  // namespace wirepane
