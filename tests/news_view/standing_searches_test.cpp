// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Key sets and warning terms in the news view: what the dialogs change, what arrives, what is kept.
#include "host/views/news_control_ids.h"
#include "search/news_key_search_dlg.h"
#include "search/search_ids.h"
#include "search/warn_term_dlg.h"
#include "tests/news_view/view_fixture.h"
#include "tests/support/conditions.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString keySetsKey = u"!RVNEWS_NEWSKEY_KEYWORDSETTING"_s;

class StandingSearchesOfTheView : public NewsViewTest {
protected:
    void openWith(const QByteArray& switches, int mode, QMap<QString, QVariant> stored = {}) {
        writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\n" + switches);
        stored[u"Sheet0ServiceCheck1"_s] = true;
        openActive(stored, mode);
    }
    static void saveKeySet(const QWidget& dialog, const QString& keyword) {
        auto* edit = qobject_cast<QLineEdit*>(dlgItem(&dialog, search_ids::keywordEdit));
        edit->setText(keyword);
        press(dialog, search_ids::addTyped);
        press(dialog, search_ids::saveKeySet);
    }
    void pushTitle(const QString& title, std::int32_t sequence) {
        CHeadline headline;
        headline.service = 1;
        headline.time = localTime(2026, 3, 2, 9, 30) + sequence;
        headline.sequence = sequence;
        headline.title = title;
        headline.categoryId = 1;
        backEnd.add(1, headline.time, sequence, title, 1);
        view->RecvNewHeadLine(&headline, u"1"_s, {});
    }
    QString hint(int list) const { return view->sheetOf(list)->accessibleDescription(); }
    QStringList sent() { return asked(u"search "_s); }
    QMap<QString, QVariant> saved() {
        view->SaveViewInfo(&settings, u"Layout"_s, 0, 0);
        return settings.values;
    }
};

}  // namespace

TEST_F(StandingSearchesOfTheView, OnlyWhatTickedKeySetsWantArrives) {
    backEnd.add(1, localTime(2026, 3, 2, 9, 1), 1, u"Gold of the morning"_s, 1);
    backEnd.add(1, localTime(2026, 3, 2, 9, 2), 2, u"Tin of the morning"_s, 1);
    openWith("ShowNormalSearch=1\n", 4);
    EXPECT_EQ(titles(4), QStringList());
    EXPECT_EQ(hint(4), u"IDS_NEWSCTRLVIEW_HINT_NO_KEY_SET"_s);
    runDialog<CNewsKeySearchDlg>(ids::relationSearchButton, [](CNewsKeySearchDlg& dialog) {
        press(dialog, search_ids::allNewsTypes);
        for (const QString& keyword : {u"GOLD"_s, u"RATE"_s, u"OIL"_s})
            saveKeySet(dialog, keyword);
        auto* list = qobject_cast<QAbstractItemView*>(dlgItem(&dialog, search_ids::keySets));
        list->model()->setData(list->model()->index(2, 0), Qt::Unchecked, Qt::CheckStateRole);
        press(dialog, search_ids::ok);
    });
    EXPECT_EQ(titles(4), QStringList{u"Gold of the morning"_s});
    EXPECT_EQ(hint(4), u"IDS_NEWSCTRLVIEW_HINT_NO_MATCH"_s);
    pushTitle(u"Rate cut"_s, 11);
    pushTitle(u"Oil is kept but not ticked"_s, 12);
    pushTitle(u"Something else"_s, 13);
    pushTitle(u"Marigolds"_s, 14);
    settle();
    const QStringList arrived{u"Marigolds"_s, u"Rate cut"_s, u"Gold of the morning"_s};
    EXPECT_EQ(titles(4), arrived);
    EXPECT_EQ(saved()[keySetsKey].toStringList(),
              (QStringList{u"C:1 T:1,2 K:GOLD"_s, u"C:1 T:1,2 K:RATE"_s, u"C:1 T:1,2 K:OIL"_s}));

    runDialog<CNewsKeySearchDlg>(ids::relationSearchButton, [this](CNewsKeySearchDlg& dialog) {
        pushTitle(u"Gold while the dialog is open"_s, 15);
        press(dialog, search_ids::allNewsTypes);
        saveKeySet(dialog, u"NEVER"_s);
        dialog.reject();
    });
    pushTitle(u"Gold again"_s, 16);
    EXPECT_EQ(titles(4), arrived) << "nothing is ticked any more, and nothing is read anew";
    EXPECT_EQ(saved()[keySetsKey].toStringList().size(), 3);
    EXPECT_EQ(saved()[u"!RVNEWS_NEWSSEARCH_KEYWORD"_s].toStringList(),
              (QStringList{u"GOLD"_s, u"RATE"_s, u"OIL"_s, u"NEVER"_s}));
}

TEST_F(StandingSearchesOfTheView, TheChosenWarningTermIsSentAndSurvivesARestart) {
    const QStringList kept{condition({u"gold"_s}).GetString(), condition({u"oil"_s}, 2).GetString()};
    openWith("ShowWarningSearch=1\n", 6, {{u"WarningSearchItems"_s, kept}});
    EXPECT_EQ(hint(6), u"IDS_NEWSCTRLVIEW_HINT_NO_WARNING_TERM"_s);
    const auto choose = [this](int row, int button) {
        runDialog<CWarnTermDlg>(ids::warningSearchButton, [&](CWarnTermDlg& dialog) {
            auto* list = qobject_cast<QAbstractItemView*>(dlgItem(&dialog, search_ids::warnings));
            list->selectionModel()->setCurrentIndex(
                list->model()->index(row, 0),
                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            press(dialog, button);
        });
    };
    choose(1, search_ids::ok);
    EXPECT_EQ(sent(), QStringList{u"search 1 3 2/1 oil"_s});
    EXPECT_EQ(hint(6), u"IDS_NEWSCTRLVIEW_HINT_WARNING_TERM"_s);
    choose(0, search_ids::cancel);
    EXPECT_EQ(sent(), QStringList());
    const QMap<QString, QVariant> stored = saved();
    EXPECT_EQ(stored[u"WarningSearchItems"_s].toStringList(), kept);
    EXPECT_EQ(stored[u"WarningSearchItemOrder"_s].toInt(), 2);

    openWith("ShowWarningSearch=1\n", 6, stored);
    choose(0, search_ids::cancel);
    view->OnDealsSearch();
    EXPECT_EQ(sent(), QStringList{u"search 1 3 2/1 oil"_s}) << "what was chosen before the restart";
    view->SwitchFunction(3);
    backEnd.asked.clear();
    view->OnDealsSearch();
    EXPECT_EQ(sent(), QStringList()) << "the search of the other list is not touched";
    runDialog<QDialog>(ids::dealsSearchButton, [](QDialog& dialog) { press(dialog, search_ids::ok); });
    EXPECT_EQ(sent(), QStringList{u"search 1 3 2/1 oil"_s}) << "the search dialog starts from it";
}

}  // namespace wirepane
