// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a user of the keyboard, the mouse and a screen reader finds in the news view.
#include "host/controls/s_date_time_ctrl.h"
#include "host/views/news_control_ids.h"
#include "story/trv_news_story.h"
#include "tests/news_view/view_fixture.h"
#include "tests/support/accessible_names.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

class HandsOnTest : public NewsViewTest {
protected:
    void openWithNews(int rows, int showType, int mask = 0x7F) {
        for (int i = 0; i < rows; ++i)
            addNews(1, 9, i, i + 1, 1, u"2330"_s);
        open({{u"EnabledFunctions"_s, mask}, {u"NewsShowType"_s, showType}, {u"SymbolID"_s, u"2330"_s}});
        focusGrid();
    }

    CSuperSheetWnd* grid() { return view->pGetCurrSheetView(); }
    int storyRow() { return state(u"storyRow"_s).toInt(); }
    int mode() { return state(u"mode"_s).toInt(); }
    QPoint middle(int row) { return grid()->visualRect(grid()->model()->index(row, 0)).center(); }
    bool dialogVisible() { return view->storyState(true)[u"visible"_s].toBool(); }
    static void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    // Turns the wheel over a place of the view that is no control's.
    void turnWheel(const QPoint& angle) const {
        const QPoint place(500, 2);
        QWheelEvent wheel(place, view->mapToGlobal(place), {}, angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.get(), &wheel);
        EXPECT_TRUE(wheel.isAccepted());
    }
};

TEST_F(HandsOnTest, AScreenReaderFindsANameForEverything) {
    openWithNews(3, 2);
    for (const int shown : {0, 1, 2, 3, 5}) {
        view->SwitchFunction(shown);
        EXPECT_GT(checkAccessibleNames(*view), 5) << shown;
    }
    auto* dialog = view->findChild<TRVNewsStory*>();
    dialog->show();
    EXPECT_EQ(checkAccessibleNames(*dialog), 6) << "title, text and four buttons";
    dialog->hide();
    view->SwitchFunction(0);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(grid());
    ASSERT_NE(table->tableInterface(), nullptr);
    EXPECT_EQ(table->tableInterface()->rowCount(), 3);
    QAccessibleInterface* title = table->tableInterface()->cellAt(0, grid()->column(u"title"_s));
    EXPECT_EQ(title->text(QAccessible::Name), u"s1 9:02"_s);
    EXPECT_EQ(title->role(), QAccessible::Cell);
}

TEST_F(HandsOnTest, ShortcutsReachWhatTheMouseReaches) {
    openWithNews(3, 1);
    std::set<QString> keys;
    for (const QShortcut* shortcut : view->findChildren<QShortcut*>())
        EXPECT_TRUE(keys.insert(shortcut->key().toString()).second) << "two commands by one key";
    hit(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(mode(), 1);
    hit(Qt::Key_PageUp, Qt::ControlModifier);
    hit(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(mode(), tabModes().last());
    hit(Qt::Key_F3);
    EXPECT_EQ(mode(), 3);
    EXPECT_EQ(QApplication::focusWidget(), dlgItem(view.get(), ids::searchEdit));
    hit(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), grid());
    hit(Qt::Key_F8);
    EXPECT_EQ(mode(), 0);
    auto* picker = qobject_cast<SDateTimeCtrl*>(dlgItem(view.get(), ids::datePicker));
    EXPECT_TRUE(picker->isDropped());
    QApplication::activePopupWidget()->close();
    grid()->setFocus();
    hit(Qt::Key_E, Qt::ControlModifier);
    EXPECT_FALSE(state(u"showCategory"_s).toBool());
    grid()->setActiveSelection(0, -1);
    hit(Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(storyRow(), 1);
    backEnd.asked.clear();
    hit(Qt::Key_F5);
    EXPECT_EQ(backEnd.asked.filter(u"again"_s).size(), 5);
    const QString tip = dlgItem(view.get(), ids::showTypeButton)->toolTip();
    EXPECT_TRUE(tip.endsWith(u"(F9)"_s)) << tip.toStdString();
}

TEST_F(HandsOnTest, ClicksShowTheStoryWhereItBelongs) {
    openWithNews(3, 1);
    for (const bool inDialog : {false, true}) {
        view->SwitchFunction(0);
        view->SetStoryShowType(inDialog ? 0 : 1);
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, middle(1));
        EXPECT_EQ(storyRow(), 1) << inDialog;
        EXPECT_EQ(dialogVisible(), inDialog);
        QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, middle(2));
        EXPECT_EQ(dialogVisible(), inDialog);
    }
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, Qt::ControlModifier, middle(0));
    std::vector<int> rows;
    grid()->vGetAllSelectionNdx(rows);
    EXPECT_EQ(rows, (std::vector<int>{0, 2})) << "a selection that is being made stays";
}

TEST_F(HandsOnTest, TheWheelTurnsTheListFromAnywhereInTheView) {
    openWithNews(60, 0, 0x01);
    for (int turn = 0; turn < 100; ++turn)
        turnWheel({0, -120});
    EXPECT_EQ(grid()->verticalScrollBar()->value(), grid()->verticalScrollBar()->maximum());
}

TEST_F(HandsOnTest, TheTitleIsTheHosts) {
    // What the view leaves to its host, seen by the window around it.
    class Seen : public QObject {
    public:
        bool eventFilter(QObject*, QEvent* event) override {
            types.insert(event->type());
            return false;
        }
        std::set<QEvent::Type> types;
    } seen;
    openWithNews(3, 0);
    grid()->setActiveSelection(0, -1);
    view->setTitleShown(true);
    view->resize(990, 700);
    const QPoint band(300, view->titleHeight() / 2);
    ASSERT_EQ(view->childAt(band), nullptr);
    frame.installEventFilter(&seen);
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, band);
    QTest::mouseDClick(view.get(), Qt::LeftButton, {}, band);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, band, view->mapToGlobal(band));
    QApplication::sendEvent(view.get(), &menu);
    for (const QEvent::Type type :
         {QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick, QEvent::ContextMenu})
        EXPECT_EQ(seen.types.count(type), 1U) << type;
    EXPECT_FALSE(dialogVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(view->OnContextMenu(view->mapToGlobal(QPoint(300, view->titleHeight()))));
    QApplication::activePopupWidget()->close();
}

TEST_F(HandsOnTest, WhatClosesGivesTheKeyboardBack) {
    openWithNews(3, 0);
    const auto closeWaiting = [this] {
        QTimer::singleShot(0, view.get(), [] { QApplication::activeModalWidget()->close(); });
    };
    struct Case {
        const char* what;
        int mode;
        int holder;  // the control that has the keyboard; 0: the list
        Qt::Key opens;
        Qt::KeyboardModifiers held;
    };
    const Case cases[] = {
        {"the menu of services", 0, 0, Qt::Key_F7, {}},
        {"the context menu", 0, 0, Qt::Key_Menu, {}},
        {"the calendar", 0, 0, Qt::Key_F8, {}},
        {"the calendar over its line", 0, ids::datePicker, Qt::Key_F8, {}},
        {"a window of a story", 0, 0, Qt::Key_Return, {}},
        {"a search dialog", 3, 0, Qt::Key_F3, Qt::ShiftModifier},
        {"a search dialog over the search box", 3, ids::searchEdit, Qt::Key_F3, Qt::ShiftModifier},
    };
    for (const Case& c : cases) {
        view->SwitchFunction(c.mode);
        QWidget* holder = c.holder == 0 ? grid() : dlgItem(view.get(), c.holder);
        grid()->setActiveSelection(0, -1);
        holder->setFocus();
        if (c.mode == 3)
            closeWaiting();
        hit(c.opens, c.held);
        if (QWidget* popup = QApplication::activePopupWidget()) {
            QTest::keyClick(popup, Qt::Key_Escape);
        } else if (auto* story = view->findChild<TRVNewsStory*>(); story->isVisible()) {
            story->activateWindow();
            QTest::keyClick(story, Qt::Key_Escape);
        } else {
            EXPECT_EQ(c.mode, 3) << c.what << " did not open";
        }
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << c.what;
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == holder; })) << c.what;
    }
}

}  // namespace wirepane
