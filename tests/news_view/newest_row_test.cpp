// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The newest row is gone to for a reader who has gone to none himself, where the host says so.
#include "tests/news_view/view_fixture.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class NewestRowTest : public NewsViewTest {
protected:
    void addDay() {
        for (int i = 0; i < 60; ++i)
            addNews(1, 9, i % 30, i + 1);
    }
    void openWithNews(bool follows = true) {
        openActive({{u"FollowNewest"_s, follows}, {u"NewsShowType"_s, 2}});
    }
    void push(int sequence) {
        NewsViewTest::push(1, 10, sequence % 60, sequence);
        QApplication::processEvents();
        settle();
    }
    CSuperSheetWnd& grid() { return *view->pGetCurrSheetView(); }
    // The title of the row that is gone to; empty: none is.
    QString read() {
        QApplication::processEvents();
        const int row = grid().cptGetFocusNdx().y();
        return row < 0 ? QString() : titles(state(u"mode"_s).toInt()).value(row);
    }
};

TEST_F(NewestRowTest, IsReadUntilTheReaderGoesToARow) {
    struct Case {
        const char* what;
        std::function<void()> touch;
        bool goesOn;
    };
    const Case cases[] = {
        {"nothing", [] {}, true},
        {"a click on the very row that is shown",
         [&] {
             QTest::mouseClick(grid().viewport(), Qt::LeftButton, {},
                               grid().visualRect(grid().model()->index(0, 0)).center());
         },
         false},
        {"a key", [&] { QTest::keyClick(&grid(), Qt::Key_Down); }, false},
        {"scrolling away", [&] { grid().verticalScrollBar()->setValue(5); }, false},
        {"another mode and back",
         [&] {
             view->SwitchFunction(1);
             view->SwitchFunction(0);
         },
         true},
        {"another day and back",
         [&] {
             QTest::keyClick(&grid(), Qt::Key_Down);
             view->bChangeDate(QDate(2026, 3, 1));
             view->bChangeDate(QDate(2026, 3, 2));
         },
         true},
    };
    addDay();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        openWithNews();
        EXPECT_EQ(read(), titles(0).front());
        push(1001);
        EXPECT_EQ(read(), u"pushed 1001"_s);
        focusGrid();
        c.touch();
        const QString before = read();
        push(1002);
        EXPECT_EQ(read(), c.goesOn ? u"pushed 1002"_s : before);
        EXPECT_EQ(state(u"storyRow"_s).toInt() == 0, c.goesOn) << "and its story is shown";
    }
}

TEST_F(NewestRowTest, IsLeftAloneByAViewWhoseSettingsSayNothing) {
    addDay();
    openWithNews(false);
    EXPECT_EQ(read(), QString());
    push(1001);
    EXPECT_EQ(read(), QString());
}

TEST_F(NewestRowTest, OfAnEmptyListComesWithTheFirstNews) {
    openWithNews();
    EXPECT_EQ(read(), QString());
    push(1001);
    EXPECT_EQ(read(), u"pushed 1001"_s);
}

}  // namespace

}  // namespace wirepane
