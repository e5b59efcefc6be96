// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the control row tells of a list, in which order, and what it offers to do about it.
#include "headline_list/language_keys.h"
#include "host/controls/s_button.h"
#include "host/views/news_control_ids.h"
#include "news_view/list_notices.h"
#include "search/adv_search_dlg.h"
#include "search/news_key_search_dlg.h"
#include "search/search_ids.h"
#include "search/search_keys.h"
#include "search/warn_term_dlg.h"
#include "tests/news_view/view_fixture.h"
#include "tests/support/conditions.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString itemsKey = u"WarningSearchItems"_s;
const QString recentKey = u"!RVNEWS_NEWSSEARCH_NEARTENSEARCHINFO"_s;
const QString keySetsKey = u"!RVNEWS_NEWSKEY_KEYWORDSETTING"_s;

class Notices : public NewsViewTest {
protected:
    Notices() {
        backEnd.texts[u"IDS_NEWSCTRLVIEW_NOTICE_NARROWED"_s] = u"only %1"_s;
        backEnd.texts[u"IDS_NEWSCTRLVIEW_NOTICE_FILTERED"_s] = u"filtered"_s;
        backEnd.texts[u"IDS_NEWSCTRLVIEW_NOTICE_UNFILTERED"_s] = u"unfiltered"_s;
        backEnd.texts[u"IDS_NEWSCTRLVIEW_NOTICE_BEFORE_BREAK"_s] = u"of %1"_s;
        backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_OFFLINE_SINCE"_s] = u"offline since"_s;
        backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_REPLASE_NEWS"_s] = u""_s;
        backEnd.add(1, localTime(2026, 3, 2, 9, 1), 1, u"Gold of the morning"_s, 1);
        backEnd.add(1, localTime(2026, 3, 2, 9, 2), 2, u"Tin of the morning"_s, 1);
        backEnd.add(2, localTime(2026, 3, 2, 9, 3), 1, u"Gold again"_s, 1);
        backEnd.add(2, localTime(2026, 3, 2, 9, 4), 2, u"Tin again"_s, 1);
    }

    void openMode(const QByteArray& switches, int mode, QMap<QString, QVariant> stored = {}) {
        writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\n" + switches);
        stored[u"Sheet0ServiceCheck1"_s] = true;
        openActive(stored, mode);
    }
    // The relation list with the ticked key set GOLD, of service 1.
    void openRelation(QMap<QString, QVariant> stored = {}, const QString& word = u"GOLD"_s) {
        stored[keySetsKey] = QStringList{u"C:1 T:-999 K:"_s + word};
        openMode("ShowNormalSearch=1\n", 0, stored);
        view->SwitchFunction(4);
        EXPECT_EQ(titles(4), QStringList()) << "key sets are kept without their ticks";
        runDialog<CNewsKeySearchDlg>(ids::relationSearchButton, [this](CNewsKeySearchDlg& dialog) {
            for (const auto* label : dialog.findChildren<QLabel*>())
                tellsOfCapitals |= label->isVisible() && label->text() == search_keys::capitalsNote;
            press(dialog, search_ids::allKeySets);
            press(dialog, search_ids::ok);
        });
    }
    void link(const QString& code) { view->ChangeSymbol(view.get(), 0, 16, code, {}); }
    // What was searched for in the only ticked service, without what is the same each time.
    QStringList sent() {
        return asked(u"search 1 3 0/1 "_s).replaceInStrings(u"search 1 3 0/1 "_s, QString());
    }
    // As it stands there, which is also what scripts read.
    QString notice() const {
        const auto* line = qobject_cast<QLabel*>(dlgItem(view.get(), ids::notice));
        const QString text = line->isVisible() ? line->text() : QString();
        EXPECT_EQ(state(u"notice"_s).toString(), text);
        return text;
    }
    SButton& button(int id) const { return *qobject_cast<SButton*>(dlgItem(view.get(), id)); }
    void click(int id) const {
        ASSERT_TRUE(button(id).isVisible()) << id;
        QTest::mouseClick(&button(id), Qt::LeftButton);
    }

    bool tellsOfCapitals = false;  // the dialog of key sets has, once
};

}  // namespace

TEST(NoticeOrder, TheFirstOnesHaveTheRoom) {
    const QFontMetrics metrics{QFont()};
    const QString longText(40, u'w');
    ListNotices notices;
    notices.tell(NoticeKind::Hint, u"hint"_s);
    notices.tell(NoticeKind::Filtered, longText);
    notices.tell(NoticeKind::Offline, u"offline"_s);
    notices.tell(NoticeKind::Narrowed, {});
    EXPECT_EQ(notices.text(), u"offline · "_s + longText + u" · hint"_s);

    const auto placed = [&](int room) {
        QStringList texts;
        int end = 0;
        for (const PlacedNotice& notice : placeNotices(notices, room, metrics)) {
            EXPECT_GE(notice.left, end) << "one behind the other";
            end = notice.left + notice.width;
            EXPECT_LE(end, room);
            texts.append(notice.text);
        }
        return texts;
    };
    const int whole = metrics.horizontalAdvance(notices.text()) + 3;
    EXPECT_EQ(placed(whole), (QStringList{u"offline"_s, longText, u"hint"_s}));
    const QStringList cut = placed(whole / 2);
    ASSERT_EQ(cut.size(), 2) << "nothing behind what is cut";
    EXPECT_TRUE(cut[1].endsWith(u'…'));
    EXPECT_EQ(placed(metrics.horizontalAdvance(u"offline · ww"_s)), QStringList{u"offline"_s}) << "no crumbs";
    EXPECT_EQ(placed(0), QStringList());
    notices.tell(NoticeKind::Offline, {});
    EXPECT_EQ(notices.text(), longText + u" · hint"_s);
}

TEST_F(Notices, ANarrowedSearchSaysSoUntilAClickOrAnotherTextEndsIt) {
    openMode({}, 3);
    quickSearch(u"gold"_s);
    EXPECT_EQ(notice(), QString());
    EXPECT_FALSE(button(ids::endNarrowing).isVisible());
    link(u"2330"_s);
    EXPECT_EQ(notice(), u"only 2330 Aster Chips"_s);
    EXPECT_EQ(button(ids::endNarrowing).accessibleName(), u"only 2330 Aster Chips"_s);
    const QVariantMap told = state(u"notices"_s).toList().value(0).toMap();
    EXPECT_EQ(told[u"text"_s].toString(), u"only 2330 Aster Chips"_s);
    EXPECT_EQ(told[u"command"_s].toInt(), ids::endNarrowing);
    link(u"6214"_s);
    EXPECT_EQ(notice(), u"only 6214 Lantern Foods"_s) << "a further symbol takes its place";
    quickSearch(u"gold"_s);
    EXPECT_EQ(sent(), (QStringList{u"gold"_s, u"gold @16 2330"_s, u"gold @16 6214"_s, u"gold @16 6214"_s}));
    click(ids::endNarrowing);
    EXPECT_EQ(sent(), QStringList{u"gold"_s});
    EXPECT_EQ(notice(), QString());
    EXPECT_FALSE(button(ids::endNarrowing).isVisible());

    link(u"2330"_s);
    button(ids::endNarrowing).setFocus();
    QTest::keyClick(&button(ids::endNarrowing), Qt::Key_Return);
    EXPECT_EQ(sent(), (QStringList{u"gold @16 2330"_s, u"gold"_s})) << "by the keyboard, too";
    EXPECT_EQ(view->focusWidget(), view->sheetOf(3)) << "which goes to the list";

    link(u"6214"_s);
    quickSearch(u"oil"_s);
    EXPECT_EQ(sent(), (QStringList{u"gold @16 6214"_s, u"oil"_s})) << "another text is a new search";
    EXPECT_EQ(notice(), QString());
}

TEST_F(Notices, TheMenuOffersWhatANoticeWithoutRoomDoes) {
    openMode({}, 3);
    quickSearch(u"gold"_s);
    link(u"2330"_s);
    view->resize(200, 300);
    EXPECT_FALSE(button(ids::endNarrowing).isVisible());
    view->OnContextMenu(view->mapToGlobal(QPoint(20, view->height() / 2)));
    const auto actions = view->findChildren<QAction*>();
    const auto item = std::find_if(actions.begin(), actions.end(),
                                   [](const QAction* action) { return action->data() == ids::endNarrowing; });
    ASSERT_NE(item, actions.end());
    EXPECT_EQ((*item)->text(), u"only 2330 Aster Chips"_s);
    sent();
    (*item)->trigger();
    EXPECT_EQ(sent(), QStringList{u"gold"_s});
}

TEST_F(Notices, TheNarrowingOfAWarningTermStaysWithIt) {
    CSearch narrowed = condition({u"gold"_s});
    narrowed.symbols = {{16, u"2330"_s}};
    const QStringList kept{narrowed.GetString()};
    openMode("ShowWarningSearch=1\n", 6,
             {{itemsKey, kept}, {recentKey, kept}, {u"WarningSearchItemOrder"_s, 1}});
    view->OnDealsSearch();
    EXPECT_EQ(sent(), QStringList{u"gold"_s}) << "an item that an older version has kept narrowed";
    link(u"2330"_s);
    EXPECT_EQ(notice(), u"only 2330 Aster Chips"_s);
    link(u"6214"_s);
    EXPECT_EQ(notice(), u"only 2330 Aster Chips"_s) << "a narrowed warning term follows no other symbol";
    runDialog<CWarnTermDlg>(ids::warningSearchButton, [](CWarnTermDlg& dialog) { dialog.reject(); });
    view->OnDealsSearch();
    EXPECT_EQ(sent(), (QStringList{u"gold @16 2330"_s, u"gold @16 2330"_s, u"gold @16 2330"_s}));

    view->SwitchFunction(3);
    runDialog<CAdvSearchDlg>(ids::dealsSearchButton, [](CAdvSearchDlg& dialog) {
        qobject_cast<QLineEdit*>(dlgItem(&dialog, search_ids::keywordEdit))->setText(u"oil"_s);
        press(dialog, search_ids::addTyped);
        press(dialog, search_ids::ok);
    });
    EXPECT_EQ(sent(), QStringList{u"gold|oil"_s});
    EXPECT_EQ(notice(), QString());
    view->SaveViewInfo(&settings, u"Layout"_s, 0, 0);
    const QStringList stored =
        settings.values[itemsKey].toStringList() + settings.values[recentKey].toStringList();
    EXPECT_EQ(stored.size(), 3);
    EXPECT_EQ(stored.filter(u"2330"_s), QStringList());

    view->SwitchFunction(6);
    EXPECT_EQ(notice(), u"only 2330 Aster Chips"_s);
    click(ids::endNarrowing);
    EXPECT_EQ(sent(), QStringList{u"gold"_s});
    EXPECT_EQ(notice(), QString());
}

TEST_F(Notices, WarningTermsStandFastWhereTheSettingsSaySo) {
    openMode("ShowWarningSearch=1\n", 6,
             {{itemsKey, QStringList{condition({u"gold"_s}).GetString()}},
              {u"WarningSearchItemOrder"_s, 1},
              {u"WarningTermsStandFast"_s, true}});
    view->OnDealsSearch();
    sent();
    link(u"2330"_s);
    EXPECT_EQ(sent(), QStringList());
    EXPECT_EQ(notice(), QString());
    view->SwitchFunction(3);
    quickSearch(u"gold"_s);
    link(u"6214"_s);
    EXPECT_EQ(sent(), (QStringList{u"gold"_s, u"gold @16 6214"_s})) << "the search of the same words does";
    view->SwitchFunction(6);
    view->OnDealsSearch();
    EXPECT_EQ(sent(), QStringList{u"gold"_s});
}

TEST_F(Notices, AListReadUnderAnotherListsFilterSaysSoAndShowsAll) {
    openRelation({{u"CategoryID"_s, u"1"_s}});
    view->SwitchFunction(1);
    view->SwitchFunction(4);
    view->onCommand(ids::firstServiceCommand + 1);
    EXPECT_EQ(titles(4), (QStringList{u"Gold again"_s, u"Gold of the morning"_s}));
    EXPECT_EQ(notice(), QString()) << "its own filter is what it is for";
    const QStringList all{u"Tin again"_s, u"Gold again"_s, u"Tin of the morning"_s, u"Gold of the morning"_s};
    view->SwitchFunction(1);
    EXPECT_EQ(notice(), u"filtered"_s);
    view->OnSelchangeComboIndex();
    EXPECT_EQ(notice(), QString()) << "the user has chosen a category anew";
    view->SwitchFunction(4);
    view->onCommand(ids::firstServiceCommand + 2);
    for (const int list : {0, 1}) {
        view->SwitchFunction(list);
        EXPECT_EQ(titles(list), titles(4)) << list;
        EXPECT_EQ(notice(), u"filtered"_s) << list;
        click(ids::readUnfiltered);
        EXPECT_EQ(titles(list), all) << list;
        EXPECT_EQ(notice(), QString()) << list;
    }
    view->SwitchFunction(4);
    view->onCommand(ids::firstServiceCommand + 2);
    view->SwitchFunction(0);
    EXPECT_EQ(notice(), u"filtered"_s);
    const CHeadlineTableInfo sentAgain{1, 0, u"20260302"_s};
    view->vRecvAllHeadlineTableRecovery(&sentAgain);
    EXPECT_EQ(notice(), QString()) << "all of it was sent again";
    view->onCommand(ids::firstServiceCommand + 1);
    view->onCommand(ids::firstServiceCommand + 1);
    EXPECT_EQ(notice(), QString());
    view->SwitchFunction(4);
    EXPECT_EQ(titles(4), all);
    EXPECT_EQ(notice(), u"unfiltered"_s);
    click(ids::readUnfiltered);
    EXPECT_EQ(titles(4), (QStringList{u"Gold again"_s, u"Gold of the morning"_s}));
    EXPECT_EQ(notice(), QString());
}

TEST_F(Notices, AFilteredListIsReadAnewWhenItIsShownWhereTheSettingsSaySo) {
    openRelation({{u"RebuildFilteredLists"_s, true}, {u"NewsShowType"_s, 1}});
    view->onCommand(ids::firstServiceCommand + 1);
    EXPECT_EQ(titles(0), titles(4)) << "not before it is shown";
    view->SwitchFunction(0);
    EXPECT_EQ(titles(0).size(), 4);
    EXPECT_EQ(notice(), QString());
}

TEST_F(Notices, QuietSourcesAreNamedOverEveryListWhereTheSettingsSaySo) {
    backEnd.texts[keys::noticeSilent] = u"silent: %1 since %2"_s;
    backEnd.texts[keys::noticeNothingNew] = u"nothing new since %1"_s;
    const auto saying = [this](std::vector<QuietSource> sources) {
        backEnd.quiet = std::move(sources);
        emit backEnd.quietTells.changed();
        return notice();
    };
    const std::int64_t nine = localTime(2026, 3, 2, 9, 0);
    const QuietSource silent{u"Harbour Post"_s, false, nine};
    const QuietSource stale{u"Daily"_s, true, nine + 60};
    openMode({}, 0, {{u"QuietSources"_s, true}});
    EXPECT_EQ(saying({silent}), u"silent: Harbour Post since 09:00"_s);
    view->SwitchFunction(1);
    EXPECT_EQ(notice(), u"silent: Harbour Post since 09:00"_s) << "over another list, too";
    EXPECT_EQ(saying({stale, {u"Weekly"_s, true, nine}}), u"nothing new since 09:01"_s);
    EXPECT_EQ(saying({stale, silent, {u"C"_s, false, nine - 86400}, {u"D"_s}, {u"E"_s}}),
              u"silent: Harbour Post, C, D… since 01/01 08:00"_s);
    EXPECT_EQ(saying({}), QString());
    view.reset();
    openMode({}, 0);
    EXPECT_EQ(saying({silent}), QString()) << "a view whose settings say nothing";
}

TEST_F(Notices, KeySetsMatchInAnyCaseWhereTheSettingsSaySo) {
    openRelation({}, u"gold"_s);
    EXPECT_EQ(titles(4), QStringList());
    EXPECT_TRUE(std::exchange(tellsOfCapitals, false));
    view.reset();
    openRelation({{u"KeySetsInAnyCase"_s, true}}, u"gold"_s);
    EXPECT_EQ(titles(4), QStringList{u"Gold of the morning"_s});
    EXPECT_FALSE(tellsOfCapitals);
}

TEST_F(Notices, WhatWasFoundBeforeABreakSaysFromWhenItIs) {
    openMode("ShowWarningSearch=1\n", 3,
             {{itemsKey, QStringList{condition({u"tin"_s}).GetString()}}, {u"WarningSearchItemOrder"_s, 1}});
    const auto breakOff = [this] {
        view->connectionChanged(false);
        view->connectionChanged(true);
    };
    breakOff();
    quickSearch(u"gold"_s);
    view->SwitchFunction(6);
    EXPECT_EQ(notice(), QString()) << "nothing was searched for";
    view->OnDealsSearch();
    EXPECT_EQ(notice(), QString()) << "searched since";
    host_clock::startAt(localTime(2026, 3, 2, 10, 0));
    view->connectionChanged(false);
    EXPECT_EQ(notice(), u"offline since 10:00"_s);
    view->connectionChanged(true);
    for (const auto& [list, word] : {std::pair{6, u"tin"_s}, std::pair{3, u"gold"_s}}) {
        view->SwitchFunction(list);
        EXPECT_EQ(notice(), u"of 03/02 09:30"_s) << list;
        sent();
        click(ids::searchAgain);
        EXPECT_EQ(sent(), QStringList{word});
        EXPECT_EQ(notice(), QString()) << list;
    }
    breakOff();
    view->SwitchFunction(0);
    EXPECT_EQ(notice(), QString()) << "another list is up to date";
}

TEST_F(Notices, AreShownAfterAVisitToSymbolNewsWithoutSymbols) {
    backEnd.symbols.clear();
    openMode({}, 2);
    EXPECT_EQ(state(u"dataState"_s).toInt(), 1);
    const QImage told = view->grab().toImage();
    backEnd.texts[keys::noData] = u" "_s;
    EXPECT_NE(view->grab().toImage(), told) << "that there is nothing to show is painted";
    for (const int mode : {2, 0}) {
        view->SwitchFunction(mode);
        const auto* line = qobject_cast<QLabel*>(dlgItem(view.get(), ids::notice));
        const QImage before = view->grab(line->geometry()).toImage();
        view->connectionChanged(false);
        EXPECT_EQ(line->text(), u"offline since 09:30"_s) << "as a screen reader reads it";
        EXPECT_TRUE(line->isVisible());
        EXPECT_NE(view->grab(line->geometry()).toImage(), before) << "in mode " << mode;
        view->connectionChanged(true);
    }
}

}  // namespace wirepane
