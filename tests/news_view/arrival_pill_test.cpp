// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/arrival_pill.h"

#include "headline_list/intake.h"
#include "headline_list/news_key.h"
#include "headline_list/relation_matcher.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/list_hold.h"
#include "tests/news_view/fake_view.h"
#include "tests/support/answering.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

class ArrivalPillTest : public testing::Test {
protected:
    ArrivalPillTest() {
        for (int number = 1; number <= 59; ++number)
            view.add(number);
        setOption(true);
        pill.watch(*view.grid(), ListIndex::All);
        view.read();
        view.listOf(ListIndex::All).vFillHeadlineTable();
        view.window.show();
        QApplication::processEvents();
    }
    void setOption(bool on) {
        MemoryCfgIO stored;
        stored.setViewInfo({}, u"ArrivalPill"_s, on);
        stored.setViewInfo({}, u"HoldLists"_s, on);
        view.settings.options = ViewOptions::read(stored, {});
    }
    void come(int count) {
        for (int i = 0; i < count; ++i, ++next) {
            const CHeadline headline{1, localTime(2026, 3, 2, 10, 0) + next, next, u"Fresh"_s, 0, 1, 0};
            pill.noteMoved(ListIndex::All, view.listOf(ListIndex::All).vProcessNewHeadline(headline, false));
            hold.noteCome(ListIndex::All, {headline, none, none});
        }
        QApplication::processEvents();
    }
    // What the pill says; empty: it is not there.
    QString said() const {
        const auto* button = qobject_cast<const QAbstractButton*>(dlgItem(&view.window, ids::showNewest));
        return button != nullptr && button->isVisible() ? button->text() : QString();
    }

    FakeBackEnd backEnd;
    FakeView view{backEnd};
    const CommonParts parts = view.parts();
    RelationMatcher keySets;
    ListHold hold{view, parts, [this]() -> const RelationMatcher& { return keySets; },
                  [this] { pill.followSoon(); }};
    ArrivalPill pill{
        view,
        parts,
        {[this](ListIndex list) { return hold.heldAt(list); }, [this](ListIndex list) { hold.letGo(list); }}};
    const QString none;
    int next = 100;
};

TEST_F(ArrivalPillTest, CountsWhatComesAboveTheRowsOnScreenUntilTheReaderGoesThere) {
    come(2);
    EXPECT_EQ(said(), QString()) << "they came on screen";
    view.grid()->setFirstVisibleRow(20);
    come(3);
    EXPECT_EQ(pill.count(), 3);
    EXPECT_FALSE(said().isEmpty());
    EXPECT_EQ(view.grid()->firstVisibleRow(), 23) << "what is read stays where it is";
    // Below the first row on screen.
    const CHeadline late{1, localTime(2026, 3, 2, 9, 1), 999, u"Late"_s, 0, 1, 0};
    pill.noteMoved(ListIndex::All, view.listOf(ListIndex::All).vProcessNewHeadline(late, false));
    EXPECT_EQ(pill.count(), 3);
    view.grid()->setFirstVisibleRow(2);
    QApplication::processEvents();
    EXPECT_EQ(pill.count(), 2) << "the others have been scrolled into sight";
    EXPECT_TRUE(pill.carryOut(ids::showNewest));
    QApplication::processEvents();
    EXPECT_EQ(view.grid()->firstVisibleRow(), 0);
    EXPECT_EQ(said(), QString());
}

TEST_F(ArrivalPillTest, GoesWithItsListAndTakesTheKeyboardNowhere) {
    view.grid()->setFirstVisibleRow(20);
    come(1);
    auto* button = qobject_cast<QAbstractButton*>(dlgItem(&view.window, ids::showNewest));
    ASSERT_NE(button, nullptr);
    EXPECT_FALSE(button->accessibleName().isEmpty());
    const QRect band(view.grid()->mapTo(&view.window, QPoint()), QSize(view.grid()->width(), 30));
    EXPECT_TRUE(band.contains(button->geometry())) << "no row is covered";
    view.window.activateWindow();
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    QApplication::processEvents();
    EXPECT_TRUE(view.grid()->hasFocus());
    EXPECT_FALSE(button->isVisible());

    view.grid()->setFirstVisibleRow(20);
    come(1);
    pill.forget(ListIndex::All);
    QApplication::processEvents();
    EXPECT_EQ(said(), QString()) << "the rows are others now";
}

TEST_F(ArrivalPillTest, SaysWhatWaitsWhileTheListIsHeldAndLetsItGo) {
    const auto press = [this] {
        EXPECT_TRUE(hold.carryOut(ids::holdList));
        QApplication::processEvents();
    };
    const std::vector<CNewsKey> wanted{CNewsKey(CNewsKey::any, {CNewsKey::everyNewsType}, {u"FRESH"_s})};
    backEnd.texts[u"IDS_NEWSCTRLVIEW_HELD_LIST"_s] = u"Held"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_HELD_WAITING"_s] = u"%1 waiting"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_HELD_MATCHING"_s] = u"%1 waiting, %2 match"_s;
    view.grid()->setActiveSelection(2, -1);
    press();
    EXPECT_EQ(said(), u"Held"_s);
    come(2);
    EXPECT_EQ(said(), u"2 waiting"_s);
    keySets = RelationMatcher(wanted);
    come(1);
    EXPECT_EQ(said(), u"3 waiting, 1 match"_s);
    EXPECT_EQ(view.grid()->firstVisibleRow(), 3) << "it stood at its top, and stands still";
    EXPECT_EQ(view.grid()->cptGetFocusNdx().y(), 5) << "the same headline";
    EXPECT_EQ(view.listOf(ListIndex::All).headlineTable().size(), 62) << "nothing is held back";
    view.grid()->setFirstVisibleRow(1);
    QApplication::processEvents();
    EXPECT_EQ(said(), u"1 waiting, 1 match"_s) << "two are on screen now";
    press();
    EXPECT_EQ(view.grid()->firstVisibleRow(), 0) << "it goes on where it stood";
    EXPECT_EQ(said(), QString());
    come(1);
    EXPECT_EQ(view.grid()->firstVisibleRow(), 0);

    view.grid()->setFirstVisibleRow(20);
    press();
    keySets = RelationMatcher();
    backEnd.looks[next].isWanted = true;
    come(1);
    EXPECT_EQ(said(), u"1 waiting, 1 match"_s) << "an alert rule wants it";
    press();
    EXPECT_EQ(view.grid()->firstVisibleRow(), 21) << "it stood further down";
    press();
    EXPECT_TRUE(pill.carryOut(ids::showNewest));
    EXPECT_EQ(view.grid()->firstVisibleRow(), 0);
    EXPECT_FALSE(hold.isHeld(ListIndex::All));
}

TEST_F(ArrivalPillTest, IsNotThereUnasked) {
    setOption(false);
    view.grid()->setFirstVisibleRow(20);
    come(3);
    EXPECT_EQ(dlgItem(&view.window, ids::showNewest), nullptr);
    pill.carryOut(ids::showNewest);
    EXPECT_EQ(view.grid()->firstVisibleRow(), 23);
    hold.carryOut(ids::holdList);
    EXPECT_FALSE(hold.isHeld(ListIndex::All));
}

}  // namespace
}  // namespace wirepane
