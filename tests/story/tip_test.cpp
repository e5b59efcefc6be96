// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/quote_static_ex.h"
#include "host/controls/window_id.h"
#include "story/quote_dlg_tip_msg.h"
#include "story/story_ids.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

namespace wirepane {

namespace {

class TipTest : public testing::Test {
protected:
    TipTest() {
        window.resize(1000, 600);
        grid.setGeometry(10, 10, 900, 500);
        grid.setFocusPolicy(Qt::StrongFocus);
        edit.setFocusPolicy(Qt::StrongFocus);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        tip.CreateByID(nullptr);
    }

    void show(const QString& text, int ms, int top = 30, int left = 40, bool toTheLeft = false) {
        tip.vSetInfo(nullptr, text, Qt::white, Qt::darkRed, ms);
        tip.vShow(&grid, top, left, toTheLeft);
    }
    QString shownText() const { return static_cast<QLabel*>(dlgItem(&tip, story_ids::tipText))->text(); }

    QWidget window;
    QWidget grid{&window};
    QWidget edit{&window};
    CQuoteDlgTipMsg& tip = *new CQuoteDlgTipMsg(&window);
};

}  // namespace

TEST_F(TipTest, SizesItselfToItsText) {
    show(QStringLiteral("abc"), 1000);
    EXPECT_EQ(tip.size(), QSize(100, std::max(22, tip.fontMetrics().height() + 8)));
    EXPECT_EQ(tip.parentWidget(), &grid);
    EXPECT_EQ(tip.pos(), QPoint(40, 30));

    const QString line = QStringLiteral("<b>No markup</b> & no more than one line of it");
    show(line, 1000, 30, 700, true);
    EXPECT_EQ(tip.width(), tip.fontMetrics().horizontalAdvance(line) + 10);
    EXPECT_EQ(tip.geometry().right() + 1, 700);
    EXPECT_EQ(shownText(), line);

    show(QString(2000, u'x'), 1000);
    EXPECT_EQ(tip.width(), 800);
    EXPECT_LT(shownText().size(), 200);
    EXPECT_GT(tip.fontMetrics().horizontalAdvance(shownText()), 600);
    show({}, 1000);
    EXPECT_EQ(tip.width(), 100);
}

TEST_F(TipTest, KeepsItsPlace) {
    show(QStringLiteral("one"), 5000, 30, 40);
    tip.move(500, 400);
    ASSERT_TRUE(QTest::qWaitFor([this] { return tip.pos() == QPoint(40, 30); }, 1000));
    show(QStringLiteral("two"), 5000, -1, 7);
    EXPECT_EQ(tip.pos(), QPoint(40, 30));
    show(QStringLiteral("either"), 5000, 7, -1);
    EXPECT_EQ(tip.pos(), QPoint(40, 30));
    show(QStringLiteral("three"), 5000, 0, 0);
    EXPECT_EQ(tip.pos(), QPoint(2, 2));
}

TEST_F(TipTest, GoesWhenItsTimeIsUpOrItIsClicked) {
    edit.setFocus();
    show(QStringLiteral("short"), 300);
    EXPECT_TRUE(tip.isVisible());
    EXPECT_TRUE(grid.hasFocus()) << "the keyboard goes to whom it is shown over";
    QTest::qWait(500);
    EXPECT_TRUE(tip.isVisible()) << "the grain is one second";
    ASSERT_TRUE(QTest::qWaitFor([this] { return !tip.isVisible(); }, 1500));

    // A second that is begun is a whole one: two beats of a timer that may come a twentieth early, not one.
    QElapsedTimer time;
    time.start();
    show(QStringLiteral("longer"), 1001);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !tip.isVisible(); }, 4000));
    EXPECT_GT(time.elapsed(), 1850);
    time.restart();
    show(QStringLiteral("one second"), 1000);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !tip.isVisible(); }, 4000));
    EXPECT_GT(time.elapsed(), 900);
    EXPECT_LT(time.elapsed(), 1900);

    show(QStringLiteral("clicked"), 60'000);
    QTest::mouseClick(&tip, Qt::LeftButton);
    EXPECT_FALSE(tip.isVisible());
    show(QStringLiteral("stopped"), 60'000);
    tip.vStop();
    EXPECT_FALSE(tip.isVisible());
    tip.move(500, 400);
    QTest::qWait(250);
    EXPECT_EQ(tip.pos(), QPoint(500, 400)) << "nothing goes on while it is hidden";
}

TEST_F(TipTest, GivesTheKeyboardToItsOwnerWhereItIsShownOverNothing) {
    grid.setFocus();
    tip.vSetInfo(&edit, QStringLiteral("x"), Qt::white, Qt::black, 1000);
    tip.vShow(nullptr, 30, 40, false);
    EXPECT_TRUE(tip.isVisible());
    EXPECT_EQ(tip.parentWidget(), &window);
    EXPECT_TRUE(edit.hasFocus());
    tip.vSetInfo(nullptr, QStringLiteral("of nobody"), Qt::white, Qt::black, 1000);
    tip.vShow(nullptr, 50, 60, false);
    EXPECT_EQ(tip.pos(), QPoint(60, 50));
}

TEST_F(TipTest, IsAsHighAsItsFontNeedsAndNoLowerThanOthers) {
    for (const int pixels : {5, 40}) {
        QFont font;
        font.setPixelSize(pixels);
        tip.vSetFont(font);
        show(QStringLiteral("abc"), 1000);
        EXPECT_EQ(tip.height(), std::max(22, QFontMetrics(font).height() + 8));
        const auto* label = static_cast<QLabel*>(dlgItem(&tip, story_ids::tipText));
        EXPECT_EQ(label->font().pixelSize(), pixels);
        EXPECT_EQ(label->geometry(), QRect(QPoint(0, 0), tip.size()));
    }
}

TEST_F(TipTest, ADialogOfItsWindowIsNoOtherWindow) {
    QDialog story(&grid);
    story.show();
    story.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &story; }));
    show(QStringLiteral("told"), 1000);
    EXPECT_TRUE(tip.isVisible());
    EXPECT_EQ(QApplication::activeWindow(), &story) << "it keeps the keyboard";
    tip.vStop();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    show(QStringLiteral("elsewhere"), 1000);
    EXPECT_FALSE(tip.isVisible());
}

TEST_F(TipTest, IsPaintedInTheColoursThatItWasGiven) {
    show(QStringLiteral("abc"), 1000);
    const auto* label = static_cast<QLabel*>(dlgItem(&tip, story_ids::tipText));
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_EQ(label->palette().color(QPalette::Window), QColor(Qt::darkRed));
}

TEST_F(TipTest, NeverShowsOverAnotherWindow) {
    QWidget other;
    other.resize(300, 200);
    tip.vSetInfo(nullptr, QStringLiteral("elsewhere"), Qt::white, Qt::black, 1000);
    tip.vShow(&other, 10, 10, false);
    EXPECT_FALSE(tip.isVisible());
    EXPECT_EQ(tip.parentWidget(), &window);
}

}  // namespace wirepane
