// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/arrival_pill.h"

#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/fake_view.h"
#include "tests/support/answering.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

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
        view.settings.options = ViewOptions::read(stored, {});
    }
    void come(int count) {
        for (int i = 0; i < count; ++i, ++next) {
            const CHeadline headline{1, localTime(2026, 3, 2, 10, 0) + next, next, u"Fresh"_s, 0, 1, 0};
            pill.noteMoved(ListIndex::All, view.listOf(ListIndex::All).vProcessNewHeadline(headline, false));
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
    ArrivalPill pill{view, parts};
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

TEST_F(ArrivalPillTest, IsNotThereUnasked) {
    setOption(false);
    view.grid()->setFirstVisibleRow(20);
    come(3);
    EXPECT_EQ(dlgItem(&view.window, ids::showNewest), nullptr);
    pill.carryOut(ids::showNewest);
    EXPECT_EQ(view.grid()->firstVisibleRow(), 23);
}

}  // namespace
}  // namespace wirepane
