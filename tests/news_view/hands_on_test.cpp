// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a user of the keyboard, the mouse and a screen reader finds in the news view.
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_date_time_ctrl.h"
#include "news_view/control_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;

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
    bool dialogVisible() { return view->StoryState(true)[u"visible"_s].toBool(); }
    static void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    // Every control that the keyboard reaches has a role and a name; those that were seen are counted.
    static int checkNames(QAccessibleInterface* of) {
        int seen = 0;
        const QAccessible::State state = of->state();
        if (state.focusable && !state.invisible) {
            ++seen;
            EXPECT_NE(of->role(), QAccessible::NoRole);
            EXPECT_FALSE(of->text(QAccessible::Name).isEmpty())
                << of->object()->metaObject()->className() << " role " << of->role();
        }
        if (of->role() == QAccessible::Table)
            return seen;
        for (int i = 0; i < of->childCount(); ++i) {
            QAccessibleInterface* child = of->child(i);
            if (child != nullptr && child->object() != nullptr)
                seen += checkNames(child);
        }
        return seen;
    }
};

TEST_F(HandsOnTest, AScreenReaderFindsANameForEverything) {
    openWithNews(3, 2);
    for (const int shown : {0, 1, 2, 3, 5}) {
        view->SwitchFunction(shown);
        EXPECT_GT(checkNames(QAccessible::queryAccessibleInterface(view.get())), 5) << shown;
    }
    view->SwitchFunction(0);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(grid());
    ASSERT_NE(table->tableInterface(), nullptr);
    EXPECT_EQ(table->tableInterface()->rowCount(), 3);
    EXPECT_EQ(table->tableInterface()->cellAt(0, 2)->text(QAccessible::Name), u"s1 9:02"_s);
    EXPECT_EQ(table->tableInterface()->cellAt(0, 2)->role(), QAccessible::Cell);
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
    EXPECT_EQ(QApplication::focusWidget(), GetDlgItem(view.get(), ids::searchEdit));
    hit(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), grid());
    hit(Qt::Key_F8);
    EXPECT_EQ(mode(), 0);
    auto* picker = qobject_cast<SDateTimeCtrl*>(GetDlgItem(view.get(), ids::datePicker));
    EXPECT_TRUE(picker->bIsDropped());
    QApplication::activePopupWidget()->close();
    grid()->setFocus();
    hit(Qt::Key_E, Qt::ControlModifier);
    EXPECT_FALSE(state(u"showCategory"_s).toBool());
    grid()->vSetActiveSelection(0, -1);
    hit(Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(storyRow(), 1);
    backEnd.asked.clear();
    hit(Qt::Key_F5);
    EXPECT_EQ(backEnd.asked.filter(u"again"_s).size(), 5);
    const QString tip = GetDlgItem(view.get(), ids::showTypeButton)->toolTip();
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
    const QPoint place(500, 2);
    for (int turn = 0; turn < 100; ++turn) {
        QWheelEvent wheel(place, view->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.get(), &wheel);
        EXPECT_TRUE(wheel.isAccepted());
    }
    EXPECT_EQ(grid()->verticalScrollBar()->value(), grid()->verticalScrollBar()->maximum());
}

TEST_F(HandsOnTest, TheStoryScrollsByItsKeys) {
    MyRichEdit story;
    story.resize(300, 100);
    story.vSetText(u"line\n"_s.repeated(200));
    story.show();
    const QScrollBar* bar = story.verticalScrollBar();
    QTest::keyClick(&story, Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 1);
    QTest::keyClick(&story, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(bar->value(), bar->maximum());
    QTest::keyClick(&story, Qt::Key_Up);
    EXPECT_EQ(bar->value(), bar->maximum() - 1);
    QTest::keyClick(&story, Qt::Key_Home);
    EXPECT_EQ(bar->value(), 0);
}
