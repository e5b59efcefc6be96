// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Which keys of a news view go where: the decision alone, and with real keys.
#include "host/controls/super_sheet_wnd.h"
#include "host/views/news_control_ids.h"
#include "news_view/key_routing.h"
#include "tests/news_view/view_fixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr KeyRoute left{};

KeyRoute consumed(bool atRelease, bool toGrid, bool showStory) {
    return {.consumed = true, .atRelease = atRelease, .toGrid = toGrid, .showStory = showStory};
}

}  // namespace

TEST(KeyRouting, FollowsModeFocusAndStory) {
    for (int mode = 0; mode < listCount; ++mode) {
        for (const KeyboardFocus focus : {KeyboardFocus::Grid, KeyboardFocus::View, KeyboardFocus::Control}) {
            const bool grid = focus == KeyboardFocus::Grid;
            for (const bool story : {false, true}) {
                const KeySituation at{static_cast<ListIndex>(mode), NewsType::Full, story, focus};
                for (const int key : {Qt::Key_Return, Qt::Key_Enter})
                    EXPECT_EQ(routeKey(key, {}, at),
                              grid && mode != 2 && mode != 3 ? consumed(false, true, false) : left);
                for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown})
                    EXPECT_EQ(routeKey(key, {}, at), consumed(true, grid, story));
                for (const int key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Right})
                    EXPECT_EQ(routeKey(key, Qt::ShiftModifier, at), consumed(false, grid, story));
                for (const int key : {Qt::Key_A, Qt::Key_F5, Qt::Key_Tab})
                    EXPECT_EQ(routeKey(key, {}, at), left);
                EXPECT_EQ(routeKey(Qt::Key_Down, Qt::AltModifier, at), left);
            }
        }
    }
    const KeyRoute toView{.consumed = true, .toView = true};
    for (const NewsType newsType : {NewsType::Full, NewsType::TwoColumns, NewsType::Symbol, NewsType::Bare}) {
        const bool takes = newsType >= NewsType::Symbol;
        EXPECT_EQ(routeKey(Qt::Key_A, {}, {ListIndex::Symbol, newsType, false, KeyboardFocus::Grid}),
                  takes ? toView : left);
        EXPECT_EQ(routeKey(Qt::Key_A, {}, {ListIndex::Symbol, newsType, false, KeyboardFocus::Control}),
                  left);
    }
}

TEST(KeysAtRelease, ActOncePerPressAndPerRepeat) {
    struct Case {
        const char* what;
        const char* keys;  // p press, r release, P and R those of auto-repeat
        int acts;
    };
    const Case cases[] = {
        {"a press", "pr", 1},
        {"held, releases between the repeats", "pRPRPr", 3},
        {"held, no releases between the repeats", "pPPr", 3},
        {"pressed elsewhere", "r", 0},
        {"released elsewhere", "ppr", 1},
    };
    for (const Case& c : cases) {
        KeysAtRelease keys;
        int acts = 0;
        for (const char* key = c.keys; *key != 0; ++key)
            acts += *key == 'p' || *key == 'P' ? keys.press(7, *key == 'P') : keys.release(7);
        EXPECT_EQ(acts, c.acts) << c.what;
    }
}

// A view with five headlines, in the front, its grid focused.
class KeysTest : public NewsViewTest {
protected:
    void openWithNews(int showType, int newsType = 0) {
        for (int i = 0; i < 5; ++i)
            addNews(1, 9, i, i + 1, 1, u"2330"_s);
        open({{u"EnabledFunctions"_s, 0x7F}, {u"NewsShowType"_s, showType}, {u"SymbolID"_s, u"2330"_s}},
             newsType);
        focusGrid();
    }

    CSuperSheetWnd* grid() { return view->pGetCurrSheetView(); }
    int row() { return grid()->cptGetFocusNdx().y(); }
    int storyRow() { return state(u"storyRow"_s).toInt(); }
    template <class Control>
    Control* control(int id) {
        return qobject_cast<Control*>(dlgItem(view.get(), id));
    }
};

TEST_F(KeysTest, KeysOfTheListStayWithTheListInEveryMode) {
    openWithNews(0);
    const QMap<int, QList<int>> focusable{{0, {ids::datePicker, ids::serviceButton, ids::tabStrip}},
                                          {1, {ids::categoryCombo, ids::showTypeButton}},
                                          {2, {ids::serviceCombo, ids::symbolCombo}},
                                          {3, {ids::searchEdit, ids::searchButton}}};
    for (auto mode = focusable.begin(); mode != focusable.end(); ++mode) {
        view->SwitchFunction(mode.key());
        const QDate date = state(u"pickedDate"_s).toDate();
        for (const int id : *mode) {
            QWidget* focused = control<QWidget>(id);
            const int rowBefore = row();
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                      Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Right}) {
                focused->setFocus();
                QTest::keyClick(focused, key);
                EXPECT_EQ(row(), rowBefore) << id << " " << key;
                EXPECT_EQ(state(u"mode"_s).toInt(), mode.key()) << id << " " << key;
                EXPECT_TRUE(focused->hasFocus()) << id << " " << key;
            }
        }
        EXPECT_EQ(state(u"pickedDate"_s).toDate(), date);
    }
}

TEST_F(KeysTest, EnterBelongsToTheFocus) {
    openWithNews(1);
    grid()->setActiveSelection(2, -1);
    view->RecvNewHeadLine(nullptr, {}, {});
    push(1, 10, 0, 9);
    EXPECT_EQ(storyRow(), -1);
    QTest::keyClick(grid(), Qt::Key_Return);
    EXPECT_EQ(storyRow(), 3);
    view->SwitchFunction(3);
    auto* edit = control<QLineEdit>(ids::searchEdit);
    edit->setFocus();
    backEnd.asked.clear();
    QTest::keyClicks(edit, u"chips"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_FALSE(backEnd.asked.filter(u"search"_s).isEmpty());
}

TEST_F(KeysTest, WhatTheSearchEditRefusesIsTold) {
    openWithNews(0);
    view->SwitchFunction(3);
    auto* edit = control<QLineEdit>(ids::searchEdit);
    edit->setFocus();
    QTest::keyClicks(edit, u"a b"_s);
    EXPECT_EQ(edit->text(), u"ab"_s);
    const QVariantMap shown = state(u"shortTip"_s).toMap();
    EXPECT_TRUE(shown[u"visible"_s].toBool());
    EXPECT_EQ(shown[u"text"_s].toString(), u"IDS_NEWSCTRLVIEW_STRING_INVALIDATE_VALUE"_s);
}

TEST_F(KeysTest, PageButtonsGoRoundAndRound) {
    openWithNews(1);
    grid()->setActiveSelection(3, -1);
    const int expected[] = {4, 0, 1, 0, 4};
    const int buttons[] = {ids::pageDownButton, ids::pageDownButton, ids::pageDownButton, ids::pageUpButton,
                           ids::pageUpButton};
    for (int i = 0; i < 5; ++i) {
        QTest::mouseClick(control<QWidget>(buttons[i]), Qt::LeftButton);
        EXPECT_EQ(row(), expected[i]) << i;
        EXPECT_EQ(storyRow(), expected[i]) << i;
    }
}

TEST_F(KeysTest, TheContextMenuOffersWhatThePlaceAllows) {
    openWithNews(1);
    struct Case {
        const char* what;
        int mode, showType;
        bool onRow;
        QList<int> commands;  // 0: a separator
    };
    const Case cases[] = {
        {"below the rows", 0, 1, false, {5061, 0, 2053}},
        {"stories in their dialog", 0, 0, true, {5061, 0, 2053, 2051, 9270, 9271, 9272}},
        {"a search", 3, 1, false, {5061}},
    };
    for (const Case& c : cases) {
        view->SetStoryShowType(static_cast<unsigned short>(c.showType));
        view->SwitchFunction(c.mode);
        const QPoint point = c.onRow ? grid()->visualRect(grid()->model()->index(0, 0)).center()
                                     : grid()->viewport()->rect().bottomLeft();
        EXPECT_TRUE(view->OnContextMenu(grid()->viewport()->mapToGlobal(point)));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << c.what;
        QList<int> commands;
        for (const QAction* action : menu->actions())
            commands.append(action->isSeparator() ? 0 : action->data().toInt());
        EXPECT_EQ(commands, c.commands) << c.what;
        EXPECT_TRUE(menu->actions().front()->isChecked()) << c.what;
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

}  // namespace wirepane
