// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The dialogs of warning terms, worked with mouse and keys.
#include "search/warn_term_dlg.h"

#include "search/search_ids.h"
#include "search/warn_term_config_dlg.h"
#include "tests/search/dialog_fixture.h"
#include "tests/support/conditions.h"

#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString headlines = u"IDS_DIALOG-DEAL-SEARCH_HEADLINE_SEARCH"_s;
const QString stories = u"IDS_DIALOG-DEAL-SEARCH_STORY_SEARCH"_s;
const QString both = u"IDS_DIALOG-DEAL-SEARCH_HEARLINE_AND_STORY_SEARCH"_s;
const QString textAnd = u"IDS_DIALOG-DEAL-SEARCH_AND_BUTTON"_s;
const QString textOr = u"IDS_DIALOG-DEAL-SEARCH_OR_BUTTON"_s;

class WarnTerms : public DialogTest {
protected:
    WarnTerms() {
        items.items = {condition({u"gold"_s, u"oil"_s}, 0, 1), condition({u"rate"_s}, 1, 2),
                       condition({u"tin"_s}, 7, 0)};
        items.chosen = 2;
    }

    void open(bool takesQueries = false) {
        dialog = std::make_unique<CWarnTermDlg>(items, items.items[1], nullptr, takesQueries);
        show(*dialog);
    }
    // Works the dialog of one item, which `work` opens: its line becomes `keywords`, the buttons are clicked.
    void editItem(const QString& keywords, const std::vector<int>& buttons,
                  const std::function<void()>& work) const {
        answer<CWarnTermConfigDlg>(
            [&](CWarnTermConfigDlg& item) {
                auto* edit = qobject_cast<QLineEdit*>(dlgItem(&item, search_ids::warningEdit));
                edit->setText(keywords);
                for (const int id : buttons)
                    qobject_cast<QAbstractButton*>(dlgItem(&item, id))->click();
            },
            work);
    }
    void add(const QString& keywords, const std::vector<int>& buttons) const {
        editItem(keywords, buttons, [this] { click(search_ids::addWarning); });
    }

    WarningItems items;
    std::unique_ptr<CWarnTermDlg> dialog;
};

}  // namespace

TEST_F(WarnTerms, AreListedWithTheOneInForceInBold) {
    open();
    EXPECT_EQ(rows(search_ids::warnings),
              (QStringList{u"1|"_s + headlines + u'|' + textAnd + u"|gold, oil"_s,
                           u"2|"_s + stories + u'|' + textOr + u"|rate"_s, u"3|"_s + both + u"||tin"_s}));
    const QAbstractItemModel& model = *at<QAbstractItemView>(search_ids::warnings).model();
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(model.index(row, 3).data(Qt::FontRole).value<QFont>().bold(), row == 1);
    EXPECT_EQ(focus(), search_ids::warnings);
    EXPECT_EQ(defaultButton(), search_ids::ok);
}

TEST_F(WarnTerms, AnAlertIsMadeOfTheSelectedOne) {
    open();
    std::vector<CSearch> proposed;
    EXPECT_EQ(dlgItem(dialog.get(), search_ids::alertOfWarning), nullptr) << "nobody takes it";
    dialog->offerAlert([&](const CSearch& term) { proposed.push_back(term); });
    at<QTableWidget>(search_ids::warnings).clearSelection();
    click(search_ids::alertOfWarning);
    EXPECT_TRUE(proposed.empty());
    at<QTableWidget>(search_ids::warnings).selectRow(2);
    click(search_ids::alertOfWarning);
    EXPECT_EQ(proposed, std::vector{items.items[2]});
}

TEST_F(WarnTerms, AreAddedWithKeywordsOnly) {
    open();
    add(u" rate,cut "_s, {search_ids::warningOr, search_ids::warningBoth, search_ids::ok});
    EXPECT_EQ(rows(search_ids::warnings).value(3), u"4|"_s + both + u'|' + textOr + u"|rate, cut"_s);
    add(u" , "_s, {search_ids::warningStories, search_ids::ok});
    add(u"never"_s, {search_ids::cancel});
    EXPECT_EQ(rows(search_ids::warnings).size(), 4);
    add(u"new"_s, {search_ids::ok});
    EXPECT_EQ(dialog->items().items.back(), condition({u"new"_s}, 0, 1));
    EXPECT_EQ(dialog->items().items[3], condition({u"rate"_s, u"cut"_s}, 2, 2));
}

TEST_F(WarnTerms, CanBeQueries) {
    items.items.front() = condition({u"gold -tin"_s}, 2, 1);
    items.items.front().language = SearchLanguage::Query;
    open(true);
    const QString textQuery = u"IDS_DIALOG-DEAL-SEARCH_QUERY_BUTTON"_s;
    EXPECT_EQ(rows(search_ids::warnings).front(), u"1|"_s + both + u'|' + textQuery + u"|gold -tin"_s);
    add(u"title:gold, -on:today"_s, {search_ids::methodQuery, search_ids::ok});
    EXPECT_EQ(rows(search_ids::warnings).value(3),
              u"4|"_s + headlines + u'|' + textQuery + u"|title:gold, -on:today"_s);
    answer<CWarnTermConfigDlg>(
        [](CWarnTermConfigDlg& item) {
            auto* wanted = qobject_cast<QLineEdit*>(dlgItem(&item, search_ids::warningEdit));
            auto* excluded = qobject_cast<QLineEdit*>(dlgItem(&item, search_ids::excluded));
            EXPECT_EQ(wanted->text() + u'/' + excluded->text(), u"gold/tin"_s);
            wanted->setText(u"gold silver"_s);
            qobject_cast<QAbstractButton*>(dlgItem(&item, search_ids::warningOr))->click();
            qobject_cast<QAbstractButton*>(dlgItem(&item, search_ids::ok))->click();
        },
        [this] { clickRow(search_ids::warnings, 0, true); });
    ASSERT_TRUE(QTest::qWaitFor([this] { return dialog->items().items.back().scope == 2; }));
    EXPECT_EQ(dialog->items().items.back().query(), u"(\"gold\" | \"silver\") -\"tin\""_s);
}

TEST_F(WarnTerms, GoToTheEndWhenTheyAreEditedAndKeepTheirNumbersWhenOthersGo) {
    open();
    click(search_ids::editWarning);
    click(search_ids::deleteWarning);
    EXPECT_EQ(QApplication::activeModalWidget(), dialog.get()) << "nothing is selected";
    EXPECT_EQ(rows(search_ids::warnings).size(), 3);

    const auto editFirst = [this] { clickRow(search_ids::warnings, 0, true); };
    answer<CWarnTermConfigDlg>(
        [](CWarnTermConfigDlg& item) {
            EXPECT_EQ(qobject_cast<QLineEdit*>(dlgItem(&item, search_ids::warningEdit))->text(),
                      u"gold, oil"_s);
            EXPECT_TRUE(qobject_cast<QRadioButton*>(dlgItem(&item, search_ids::warningAnd))->isChecked());
            EXPECT_TRUE(
                qobject_cast<QRadioButton*>(dlgItem(&item, search_ids::warningHeadlines))->isChecked());
            EXPECT_EQ(item.minimumSize(), item.maximumSize());
            item.accept();
        },
        editFirst);
    EXPECT_EQ(rows(search_ids::warnings).front().back(), u'l') << "nothing was changed";
    editItem(u"gold"_s, {search_ids::ok}, editFirst);
    ASSERT_TRUE(QTest::qWaitFor([this] { return rows(search_ids::warnings).front().startsWith(u'2'); }));
    EXPECT_EQ(rows(search_ids::warnings).value(2), u"3|"_s + headlines + u'|' + textAnd + u"|gold"_s);
    EXPECT_EQ(dialog->items().chosen, 1);

    clickRow(search_ids::warnings, 0);
    click(search_ids::deleteWarning);
    const QStringList left = rows(search_ids::warnings);
    ASSERT_EQ(left.size(), 2);
    EXPECT_TRUE(left[0].startsWith(u"3|"_s));
    EXPECT_TRUE(left[1].startsWith(u"3|"_s));
    EXPECT_EQ(dialog->items().chosen, 0);
    EXPECT_EQ(dialog->chosenItem(), items.items[1]) << "what is in force stays so";
}

TEST_F(WarnTerms, OkPutsTheSelectedOneInForce) {
    open();
    answerBox(u"IDS_DIALOG-DEAL-SEARCH_ERRMSG"_s, QMessageBox::Ok, [this] { click(search_ids::ok); });
    EXPECT_EQ(result, -1);
    clickRow(search_ids::warnings, 2);
    click(search_ids::ok);
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(dialog->chosenItem(), condition({u"tin"_s}, 2, 2)) << "the method is the one before";
    EXPECT_EQ(dialog->items().chosen, 3);
    EXPECT_EQ(dialog->items().items.size(), 4U) << "it asks for something new";
}

TEST_F(WarnTerms, CancelKeepsWhatIsInForceAndTheItems) {
    open();
    add(u"new"_s, {search_ids::ok});
    clickRow(search_ids::warnings, 0);
    press(search_ids::warnings, Qt::Key_Escape);
    EXPECT_EQ(result, QDialog::Rejected);
    EXPECT_EQ(dialog->chosenItem(), items.items[1]);
    EXPECT_EQ(dialog->items().chosen, 2);
    EXPECT_EQ(dialog->items().items.size(), 4U);
}

}  // namespace wirepane
