// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Keys, the wheel, shortcuts and the context menu over a list, without a view.
#include "news_view/list_input.h"

#include "host/controls/s_button.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "host/views/virtual_base_view.h"
#include "news_view/context_menu.h"
#include "news_view/control_set.h"
#include "news_view/shortcuts.h"
#include "news_view/story_stage.h"
#include "search/news_relate_symbol_quote_view.h"
#include "tests/news_view/fake_view.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Five headlines in a grid that has the keyboard, a line beside it.
class ListInputTest : public testing::Test {
protected:
    ListInputTest() {
        for (std::int32_t i = 1; i <= 5; ++i)
            view.add(i);
        view.read();
        view.window.show();
        view.window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view.window));
        grid().setFocus();
        grid().setActiveSelection(2, -1);
        view.calls.clear();
    }

    CSuperSheetWnd& grid() { return *view.grid(); }
    int row() { return grid().cptGetFocusNdx().y(); }
    static QKeyEvent key(int code, Qt::KeyboardModifiers held = {}) { return {QEvent::KeyPress, code, held}; }
    qsizetype storiesShown() { return view.calls.count(u"show story"_s); }

    FakeBackEnd backEnd;
    FakeView view{backEnd};
    QLineEdit line{&view.window};
    StoryStage stage;
    NewsType newsType = NewsType::Full;
    bool paneShows = true;
    int menus = 0;
    ListInput input{
        view,
        {view.window, stage, [this] { return newsType; }, [this] { return paneShows; }, [this] { ++menus; }}};
};

}  // namespace

TEST_F(ListInputTest, KeysMoveTheListAndShowItsStory) {
    QTest::keyPress(&grid(), Qt::Key_Down);
    EXPECT_EQ(row(), 2) << "it acts when it is let go";
    QTest::keyRelease(&grid(), Qt::Key_Down);
    EXPECT_EQ(row(), 3);
    EXPECT_EQ(storiesShown(), 1);
    QTest::keyPress(&grid(), Qt::Key_Home);
    EXPECT_EQ(row(), 0) << "at once";
    EXPECT_EQ(storiesShown(), 2);
    QTest::keyRelease(&grid(), Qt::Key_Home);
    EXPECT_EQ(storiesShown(), 2);
    paneShows = false;
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(row(), 1);
    EXPECT_EQ(storiesShown(), 2) << "a window does not follow keys";

    line.setFocus();
    QTest::keyClick(&line, Qt::Key_Down);
    EXPECT_EQ(row(), 1) << "the list has not the keyboard";
}

TEST_F(ListInputTest, KeysElsewhereAreLeftAlone) {
    QLineEdit elsewhere;
    elsewhere.show();
    EXPECT_FALSE(input.takeRelease(key(Qt::Key_Down))) << "pressed elsewhere";
    QTest::keyClick(&elsewhere, Qt::Key_Down);
    QTest::keyClick(&elsewhere, Qt::Key_Home);
    EXPECT_EQ(storiesShown(), 0);

    auto* quotes = new CNewsRelateSymbolQuoteView(&view.window);
    stage.setQuotes(quotes);
    quotes->setFocusPolicy(Qt::StrongFocus);
    quotes->show();
    EXPECT_TRUE(input.takeBefore(key(Qt::Key_Home)));
    quotes->setFocus();
    EXPECT_FALSE(input.takeBefore(key(Qt::Key_Home))) << "the quotes have keys of their own";
}

TEST_F(ListInputTest, AKeyThatNobodyTookIsTheLists) {
    struct Case {
        const char* what;
        QKeyEvent event;
        bool taken;
        int stories, menus;
    };
    const Case cases[] = {
        {"Return", key(Qt::Key_Return), true, 1, 0},
        {"Enter", key(Qt::Key_Enter), true, 1, 0},
        {"the menu key", key(Qt::Key_Menu), true, 0, 1},
        {"Shift and F10", key(Qt::Key_F10, Qt::ShiftModifier), true, 0, 1},
        {"F10", key(Qt::Key_F10), false, 0, 0},
        {"a letter", key(Qt::Key_C), false, 0, 0},
    };
    for (const Case& c : cases) {
        view.calls.clear();
        menus = 0;
        EXPECT_EQ(input.takePress(c.event), c.taken) << c.what;
        EXPECT_EQ(storiesShown(), c.stories) << c.what;
        EXPECT_EQ(menus, c.menus) << c.what;
    }
    QApplication::clipboard()->setText(u"kept"_s);
    grid().selectRows({1, 2}, 2);
    EXPECT_TRUE(input.takePress(key(Qt::Key_C, Qt::ControlModifier)));
    const QStringList copied = QApplication::clipboard()->text().split(u'\n');
    EXPECT_EQ(copied.size(), 2);
    EXPECT_TRUE(copied.front().endsWith(u"Title 4"_s));
    EXPECT_TRUE(copied.back().endsWith(u"Title 3"_s));
    grid().deselectRows();
    input.copyRows();
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith(u"Title 3"_s)) << "no row is selected";
    grid().clearFocus();
    EXPECT_TRUE(input.takePress(key(Qt::Key_Return))) << "nothing has the keyboard";
    view.window.setFocusPolicy(Qt::StrongFocus);
    view.window.setFocus();
    EXPECT_TRUE(input.takePress(key(Qt::Key_Return))) << "the view itself has it";
    line.setFocus();
    for (const Case& c : cases)
        EXPECT_FALSE(input.takePress(c.event)) << c.what << " in a control";
}

TEST_F(ListInputTest, LettersGoToAViewOfSymbolNews) {
    line.setFocus();
    EXPECT_FALSE(input.takeBefore(key(Qt::Key_A)));
    for (const NewsType type : {NewsType::Symbol, NewsType::Bare}) {
        newsType = type;
        EXPECT_FALSE(input.takeBefore(key(Qt::Key_A))) << "in a control";
        grid().setFocus();
        EXPECT_TRUE(input.takeBefore(key(Qt::Key_A)));
        line.setFocus();
    }
}

TEST_F(ListInputTest, TheWheelTurnsTheListWhereNothingElseTakesIt) {
    for (std::int32_t i = 10; i <= 59; ++i)
        view.add(i);
    view.read();
    grid().vSetColWidth(grid().model()->columnCount() - 1, 3000);
    grid().setActiveSelection(0, -1);
    const QScrollBar& up = *grid().verticalScrollBar();
    const QScrollBar& sideways = *grid().horizontalScrollBar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return up.maximum() > 0 && sideways.maximum() > 0; }));
    const auto turn = [&](const QPoint& place, const QPoint& angle) {
        input.takeWheel(QWheelEvent(place, view.window.mapToGlobal(place), {}, angle, Qt::NoButton,
                                    Qt::NoModifier, Qt::NoScrollPhase, false));
    };
    const QPoint free(300, 50);
    const QPoint overGrid = grid().geometry().center();
    turn(overGrid, {0, -120});
    EXPECT_EQ(up.value(), 0) << "the list has had it";
    turn(free, {0, -120});
    EXPECT_GT(up.value(), 0);
    line.setFocus();
    turn(free, {-120, 0});
    EXPECT_EQ(sideways.value(), 0) << "without the keyboard";
    grid().setFocus();
    turn(free, {-120, 0});
    EXPECT_GT(sideways.value(), 0);
    turn(free, {120, 0});
    EXPECT_EQ(sideways.value(), 0);
}

TEST_F(ListInputTest, TheContextMenuOpensAtARowOrBesideIt) {
    QList<bool> asked;
    CommandMenu menu(view.window, [](int) {});
    ContextMenu contextMenu(view, menu,
                            {view.window, [] { return 10; },
                             [&](bool onRow) {
                                 asked.append(onRow);
                                 return std::vector<MenuEntry>{{1, u"one"_s, {}}};
                             }});
    const auto close = [&] {
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QApplication::activePopupWidget()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    const auto globally = [&](const QPoint& point) { return view.window.mapToGlobal(point); };
    EXPECT_FALSE(contextMenu.openAt(globally({50, 0}))) << "in the title";
    EXPECT_FALSE(contextMenu.openAt(globally({50, 9})));
    EXPECT_FALSE(menu.isUp());
    EXPECT_TRUE(contextMenu.openAt(globally({50, 10})));
    contextMenu.openByKey();
    EXPECT_TRUE(menu.isUp());
    close();
    const QPoint rowAt = grid().visualRect(grid().model()->index(1, 0)).center();
    EXPECT_TRUE(contextMenu.openAt(grid().viewport()->mapToGlobal(rowAt)));
    close();
    contextMenu.openByKey();
    EXPECT_EQ(QApplication::activePopupWidget()->pos().y(),
              grid().viewport()->mapToGlobal(grid().visualRect(grid().model()->index(2, 0)).center()).y());
    close();
    view.window.hide();
    EXPECT_TRUE(contextMenu.openAt(globally({50, 20})));
    EXPECT_FALSE(menu.isUp()) << "over nothing that is to be seen";
    EXPECT_EQ(asked.mid(0, 1), QList<bool>{false});
    EXPECT_EQ(asked.last(), true) << "by key at the row of the keys";
    EXPECT_TRUE(asked.contains(true));
}

TEST_F(ListInputTest, EntriesOfAMenuCarryTheirCommandsOut) {
    QList<int> carriedOut;
    CommandMenu menu(view.window, [&](int command) { carriedOut.append(command); });
    menu.popUp({{7, u"seven"_s, true}, {}, {8, u"eight"_s, {}}}, {});
    menu.popUp({{9, u"nine"_s, {}}}, {});
    auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(shown, nullptr);
    const QList<QAction*> actions = shown->actions();
    ASSERT_EQ(actions.size(), 3) << "one menu at a time";
    EXPECT_TRUE(actions[0]->isChecked());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_FALSE(actions[2]->isCheckable());
    actions[2]->trigger();
    EXPECT_EQ(carriedOut, QList<int>{8});
}

TEST_F(ListInputTest, EveryShortcutDoesWhatItsControlDoes) {
    TRVVirtualBaseView window;
    ControlSet controls(window, backEnd);
    controls.createTabStrip({});
    controls.CreateControls(ListIndex::Search, {}, {});
    controls.CreateTypeBtn();
    for (const ListIndex mode : {ListIndex::All, ListIndex::Search, ListIndex::Category})
        controls.addTab(mode);
    controls.loadTexts();
    auto& strip = *controls.find<CXTPTabControl>(ids::tabStrip);
    QList<int> carriedOut;
    int tabsChosen = 0;
    Shortcuts shortcuts(
        view, {window, controls, stage, [&](int id) { carriedOut.append(id); }, [&] { ++tabsChosen; }});
    shortcuts.create();
    shortcuts.loadToolTips();
    const auto hit = [&](const QString& key) {
        for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
            if (shortcut->key() == QKeySequence(key))
                emit shortcut->activated();
        }
    };
    const std::pair<QString, int> commands[] = {
        {u"F5"_s, 2053},  {u"Shift+F5"_s, 2051}, {u"Ctrl+F5"_s, 2050},    {u"F7"_s, 3010},
        {u"F9"_s, 25458}, {u"Ctrl+E"_s, 5061},   {u"Alt+PgDown"_s, 8067}, {u"Alt+PgUp"_s, 8068},
    };
    for (const auto& [key, id] : commands) {
        carriedOut.clear();
        hit(key);
        EXPECT_EQ(carriedOut, QList<int>{id}) << key.toStdString();
    }
    carriedOut.clear();
    for (const auto& [key, tab] :
         {std::pair(u"Ctrl+PgDown"_s, 1), {u"Ctrl+PgUp"_s, 0}, {u"Ctrl+PgUp"_s, 2}, {u"Ctrl+PgDown"_s, 0}}) {
        hit(key);
        EXPECT_EQ(strip.curSel(), tab) << key.toStdString();
    }
    EXPECT_EQ(tabsChosen, 4);

    hit(u"F3"_s);
    EXPECT_EQ(strip.curSel(), 0) << "there is no list of the search mode";
    CSuperSheetWnd* found = createHeadlineSheet(&window, {}, NewsType::Full, backEnd);
    view.lists[ListIndex::Search].setGrid(found);
    hit(u"F3"_s);
    EXPECT_EQ(strip.curSel(), 1);
    EXPECT_EQ(tabsChosen, 5);
    hit(u"Shift+F3"_s);
    EXPECT_TRUE(carriedOut.isEmpty()) << "the button is not to be seen";
    window.show();
    hit(u"Shift+F3"_s);
    EXPECT_EQ(carriedOut, QList<int>{ids::dealsSearchButton});

    shortcuts.setTabOrder();
    QList<int> order;
    const QWidget* next = &strip;
    do {
        if (windowId(next) != 0 && next->parentWidget() == &window)
            order.append(windowId(next));
        next = next->nextInFocusChain();
    } while (next != &strip);
    EXPECT_EQ(order, (QList<int>{ids::tabStrip, ids::showTypeButton, ids::searchEdit, ids::searchButton,
                                 ids::dealsSearchButton}));

    const SButton& button = *controls.find<SButton>(ids::showTypeButton);
    EXPECT_EQ(button.toolTip(), button.text() + u" (F9)"_s);
}

}  // namespace wirepane
