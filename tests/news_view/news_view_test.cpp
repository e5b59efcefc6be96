// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/sync_info.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/registered_message.h"
#include "host/controls/s_button.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "story/story_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QTest>

#include <gtest/gtest.h>

namespace wirepane {

TEST_F(NewsViewTest, OpensWithTheDayNewestFirst) {
    addNews(1, 9, 0, 1);
    addNews(2, 9, 10, 1);
    addNews(16, 8, 0, 1, 2);
    addNews(52, 9, 20, 1);
    open();
    EXPECT_EQ(titles(0), (QStringList{QStringLiteral("s2 9:10"), QStringLiteral("s1 9:00"),
                                      QStringLiteral("s16 8:00")}));
    EXPECT_EQ(cellText(*view->sheetOf(0), 2, QLatin1StringView("category")), QStringLiteral("Economy"));
    EXPECT_EQ(backEnd.registrations[view.get()], (std::set<unsigned char>{1, 2, 16, 22, 122}));
    CHeadlineTable entry;
    EXPECT_TRUE(view->bGetHeadlineTable(entry, 0, 2));
    EXPECT_EQ(entry.service, 16);
    EXPECT_FALSE(view->bGetHeadlineTable(entry, 0, 3));
    EXPECT_FALSE(view->bGetHeadlineTable(entry, 7, 0));
    EXPECT_EQ(view->iGetHeadlineTableSize(0), 3);
    EXPECT_EQ(view->iGetHeadlineTableSize(7), -1);
    EXPECT_EQ(keyOf(view->GetHeadlineTable(99)), HeadlineKey());
    NewsReceiver* receiver = view.get();
    view.reset();
    EXPECT_EQ(backEnd.registrations.count(static_cast<NewsReceiver*>(receiver)), 0U);
}

TEST_F(NewsViewTest, ListsAreReadAsTheirModeSays) {
    addNews(1, 9, 0, 1, 1, QStringLiteral("2330"));
    addNews(52, 9, 5, 1);
    open({{QStringLiteral("EnabledFunctions"), 0x7F}, {QStringLiteral("SymbolID"), QStringLiteral("2330")}});
    const auto tablesAsked = [this](int mode) {
        backEnd.asked.clear();
        view->SwitchFunction(mode);
        return backEnd.asked.filter(QStringLiteral("table "));
    };
    EXPECT_EQ(tablesAsked(0), QStringList()) << "all news was read when the view opened";
    EXPECT_EQ(tablesAsked(2).size(), 10) << "for the combo's choice, and for the switch";
    const QStringList symbol = tablesAsked(2);
    EXPECT_EQ(symbol.size(), 5);
    EXPECT_EQ(symbol.front(), QStringLiteral("table 1 symbol 2330"));
    EXPECT_EQ(titles(2), QStringList{QStringLiteral("s1 9:00")});
    EXPECT_EQ(tablesAsked(2), symbol) << "read at every switch";
    EXPECT_EQ(tablesAsked(5), QStringList{QStringLiteral("table 52 0 20260302")});
    EXPECT_EQ(titles(5), QStringList{QStringLiteral("s52 9:05")});
    EXPECT_EQ(cellText(*view->sheetOf(5), 0, QLatin1StringView("category")), QStringLiteral("Issue"));
    EXPECT_EQ(cellText(*view->sheetOf(5), 0, QLatin1StringView("time")), QStringLiteral("03/02 09:05"));
    EXPECT_EQ(tablesAsked(5).size(), 1);
    EXPECT_EQ(tablesAsked(0), QStringList());
    std::vector<unsigned char> active;
    view->vGetNewsActiveService(active);
    EXPECT_EQ(active, (std::vector<unsigned char>{1, 2, 16, 22, 122}))
        << "the warrant mode leaves the user's choice";
    tablesAsked(1);
    EXPECT_EQ(titles(1), QStringList{QStringLiteral("s1 9:00")});
}

TEST_F(NewsViewTest, TheSymbolModeFollowsItsLinkGroup) {
    addNews(1, 9, 0, 1, 1, QStringLiteral("2330"));
    addNews(1, 9, 1, 2, 1, QStringLiteral("6214"));
    addNews(1, 9, 2, 3, 1, QStringLiteral("4001"));
    open({{QStringLiteral("FocusedTab"), 2}, {QStringLiteral("SymbolID"), QStringLiteral("unknown")}});
    view->setLinkGroup(3);
    EXPECT_EQ(titles(2), QStringList{QStringLiteral("s1 9:01")}) << "an unknown symbol falls back to 6214";
    const auto change = [this](const QWidget* sender, unsigned char group, unsigned char service,
                               const QString& code) {
        backEnd.asked.clear();
        view->ChangeSymbol(sender, group, service, code, {});
        return !backEnd.asked.filter(QStringLiteral(" symbol ")).isEmpty();
    };
    EXPECT_FALSE(change(nullptr, 2, 16, QStringLiteral("2330"))) << "another link group";
    EXPECT_TRUE(change(nullptr, 3, 16, QStringLiteral("2330")));
    EXPECT_EQ(titles(2), QStringList{QStringLiteral("s1 9:00")});
    EXPECT_FALSE(change(nullptr, 3, 16, QStringLiteral("2330"))) << "the same symbol again reloads nothing";
    EXPECT_TRUE(change(view.get(), 9, 122, QStringLiteral("4001"))) << "its own change is taken in any group";
    EXPECT_EQ(titles(2), QStringList{QStringLiteral("s1 9:02")});
    unsigned char service = 0;
    QString code;
    EXPECT_EQ(view->GetCurrSymbolInfo(service, code), 1);
    EXPECT_EQ(service, 122);
    EXPECT_EQ(code, QStringLiteral("4001"));
    view->setLinkGroup(0);
    EXPECT_FALSE(change(nullptr, 0, 16, QStringLiteral("2330"))) << "a view that is not linked";
}

TEST_F(NewsViewTest, TheLastTickedServiceStaysTicked) {
    addNews(1, 9, 0, 1);
    addNews(2, 9, 1, 1);
    open();
    const auto choose = [this](int command) {
        view->onCommand(command);
        return titles(0);
    };
    EXPECT_EQ(choose(5050), QStringList{QStringLiteral("s2 9:01")});
    EXPECT_EQ(backEnd.registrations[view.get()], (std::set<unsigned char>{2, 16, 22, 122}));
    choose(5052);
    choose(5053);
    choose(5055);
    backEnd.asked.clear();
    EXPECT_EQ(choose(5051), QStringList{QStringLiteral("s2 9:01")});
    EXPECT_EQ(backEnd.asked, QStringList()) << "nothing is reloaded";
    EXPECT_EQ(backEnd.registrations[view.get()], std::set<unsigned char>{2});
    EXPECT_EQ(choose(5050), (QStringList{QStringLiteral("s2 9:01"), QStringLiteral("s1 9:00")}));
    EXPECT_EQ(choose(5060).size(), 2) << "a command without a service";
}

TEST_F(NewsViewTest, AUserPicksACategoryAndATab) {
    addNews(1, 9, 0, 1, 1);
    addNews(1, 9, 1, 2, 2);
    open({{QStringLiteral("FocusedTab"), 1}, {QStringLiteral("CategoryID"), QStringLiteral("2")}});
    EXPECT_EQ(titles(1), QStringList{QStringLiteral("s1 9:01")}) << "opens with the stored category";
    auto* combo = qobject_cast<SCComboBox*>(dlgItem(view.get(), ids::categoryCombo));
    ASSERT_NE(combo, nullptr);
    pick(*combo, 0);
    EXPECT_EQ(titles(1), QStringList{QStringLiteral("s1 9:00")});

    auto* strip = qobject_cast<CXTPTabControl*>(dlgItem(view.get(), ids::tabStrip));
    ASSERT_NE(strip, nullptr);
    QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(3).center());
    EXPECT_EQ(view->state()[QStringLiteral("mode")].toInt(), 3);
}

TEST_F(NewsViewTest, OpensWithAModeThatExists) {
    struct Case {
        const char* what;
        QMap<QString, QVariant> stored;
        int newsType;
        int mode;
    };
    const QString mask = QStringLiteral("EnabledFunctions");
    const QString tab = QStringLiteral("FocusedTab");
    const Case cases[] = {
        {"the stored one", {{tab, 3}}, 0, 3},
        {"one without a grid", {{tab, 5}, {mask, 0x0E}}, 0, 1},
        {"a number that is no mode", {{tab, 99}}, 0, 0},
        {"symbol news only", {}, 1, 2},
        {"symbol news only, by type", {}, 2, 2},
        {"without a pane", {}, 3, 0},
        {"a mask without functions", {{mask, 0}}, 0, 0},
    };
    for (const Case& c : cases) {
        open(c.stored, c.newsType);
        EXPECT_EQ(view->state()[QStringLiteral("mode")].toInt(), c.mode) << c.what;
        EXPECT_EQ(dlgItem(view.get(), ids::showTypeButton) != nullptr, c.newsType == 0) << c.what;
        EXPECT_EQ(dlgItem(view.get(), ids::firstChildView + ids::storyPane) != nullptr, c.newsType == 0)
            << c.what;
    }
    backEnd.unauthorised = {16};
    open({{tab, 2}});
    EXPECT_EQ(view->state()[QStringLiteral("mode")].toInt(), 0)
        << "the symbol mode needs the right to see service 16";
    EXPECT_EQ(view->sheetOf(2), nullptr);
    for (const int noMode : {7, -1})
        view->SwitchFunction(noMode);
    EXPECT_EQ(view->state()[QStringLiteral("mode")].toInt(), 0) << "a number outside the modes";
}

TEST_F(NewsViewTest, SurvivesABackEndWithoutServices) {
    backEnd.services.clear();
    open({{QStringLiteral("EnabledFunctions"), 0x7F}});
    EXPECT_EQ(view->sheetOf(5), nullptr);
    for (int mode = 0; mode < listCount; ++mode)
        view->SwitchFunction(mode);
    EXPECT_EQ(view->state()[QStringLiteral("services")].toList().size(), 0);
}

TEST_F(NewsViewTest, ChangesWithin100MsAreOneRefresh) {
    addNews(1, 9, 0, 1);
    open();
    settle();
    backEnd.asked.clear();
    for (int i = 0; i < 5; ++i)
        view->vUpdateView();
    EXPECT_EQ(view->runningTimers(), std::vector<int>{ids::refreshTimer});
    ASSERT_TRUE(QTest::qWaitFor([this] { return view->runningTimers().empty(); }, 2000));
    EXPECT_EQ(backEnd.asked.size(), 5) << "one question to each of the five ticked services";
}

TEST_F(NewsViewTest, OnlyTheCurrentGridsWidthChangeRefreshes) {
    open();
    // The grid's own news of its width must not come before the test's.
    struct Deaf : QObject {
        bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::Resize; }
    } deaf;
    view->sheetOf(0)->installEventFilter(&deaf);
    view->sheetOf(0)->viewport()->installEventFilter(&deaf);
    const QEvent::Type changeSize = registerMessage(QStringLiteral("RVMSG_CHANGESIZE"));
    const auto sentBy = [&](int list) {
        view->endTimer(ids::refreshTimer);
        sendRegisteredMessage(view.get(), changeSize, reinterpret_cast<quintptr>(view->sheetOf(list)));
        return !view->runningTimers().empty();
    };
    view->resize(950, 700);
    EXPECT_TRUE(sentBy(0)) << "the current grid has another width";
    EXPECT_FALSE(sentBy(0)) << "the width is the stored one";
    view->resize(900, 700);
    EXPECT_FALSE(sentBy(1)) << "another mode's grid";
    EXPECT_FALSE(sentBy(0)) << "it has recorded the width already";
}

TEST_F(NewsViewTest, TheStoryTakesItsShareInThreeWays) {
    open();
    auto* button = qobject_cast<SButton*>(dlgItem(view.get(), ids::showTypeButton));
    ASSERT_NE(button, nullptr);
    const auto gridSize = [this] { return view->sheetOf(0)->size(); };
    EXPECT_EQ(view->GetStoryShowType(), 1);
    EXPECT_EQ(gridSize().width(), 500);
    EXPECT_EQ(view->GetSheetWidth(), 500);
    const int whole = gridSize().height();
    button->click();
    EXPECT_EQ(view->GetStoryShowType(), 2);
    EXPECT_EQ(gridSize(), QSize(1000, whole - 200));
    button->click();
    EXPECT_EQ(view->GetStoryShowType(), 0);
    EXPECT_EQ(gridSize(), QSize(1000, whole));
    EXPECT_EQ(view->GetSheetWidth(), 1000);
    button->click();
    EXPECT_EQ(view->GetStoryShowType(), 1);
}

TEST_F(NewsViewTest, HidingTheCategoryColumnKeepsTheColumn) {
    open({{QStringLiteral("ShowCategory"), false}});
    const int column = view->sheetOf(0)->column(QStringLiteral("category"));
    ASSERT_GE(column, 0);
    EXPECT_EQ(view->sheetOf(0)->colWidth(column), 0);
    view->ChangeCurrViewCategoryState(true);
    EXPECT_EQ(view->sheetOf(0)->colWidth(column), 50);
}

TEST_F(NewsViewTest, WhatIsSavedOpensTheSame) {
    open({{QStringLiteral("Sheet0ServiceCheck2"), true}, {QStringLiteral("NewsShowType"), 2}});
    view->SwitchFunction(5);
    MemoryCfgIO saved;
    view->SaveViewInfo(&saved, QStringLiteral("Layout"), 0, 0);
    EXPECT_FALSE(saved.values.isEmpty());
    open(saved.values);
    EXPECT_EQ(view->GetStoryShowType(), 2);
    view->SwitchFunction(0);
    std::vector<unsigned char> active;
    view->vGetNewsActiveService(active);
    EXPECT_EQ(active, std::vector<unsigned char>{2});
}

TEST_F(NewsViewTest, ReadsOnWhileHeadlinesArrive) {
    addNews(1, 9, 0, 1);
    addNews(1, 9, 10, 2);
    for (const int sequence : {1, 2}) {
        const CHeadlineTable entry{localTime(2026, 3, 2, 9, sequence == 1 ? 0 : 10), sequence, 1, 0, 0};
        backEnd.addStory({entry.time, QStringLiteral("story %1").arg(sequence), entry});
    }
    open();
    auto* pane = dlgItem(view.get(), ids::firstChildView + ids::storyPane);
    ASSERT_NE(pane, nullptr);
    const auto story = [pane] {
        return static_cast<MyRichEdit*>(dlgItem(pane, story_ids::storyText))->literalText();
    };
    focusGrid();
    QTest::keyClick(view->sheetOf(0), Qt::Key_Down);
    EXPECT_TRUE(story().contains(QStringLiteral("story 2"))) << story().toStdString();
    QTest::keyClick(view->sheetOf(0), Qt::Key_Down);
    EXPECT_TRUE(story().contains(QStringLiteral("story 1")));
    EXPECT_EQ(view->state()[QStringLiteral("storyRow")].toInt(), 1);

    push(1, 9, 20, 3);
    push(1, 8, 0, 4);
    push(52, 9, 21, 1);
    push(99, 9, 22, 1);
    EXPECT_EQ(titles(0), (QStringList{QStringLiteral("pushed 3"), QStringLiteral("s1 9:10"),
                                      QStringLiteral("s1 9:00"), QStringLiteral("pushed 4")}));
    EXPECT_EQ(view->sheetOf(0)->cptGetFocusNdx().y(), 2) << "the selected headline stays selected";
    EXPECT_TRUE(story().contains(QStringLiteral("story 1"))) << "and its story stays on show";
    QTest::keyClick(view->sheetOf(0), Qt::Key_Up);
    EXPECT_TRUE(story().contains(QStringLiteral("story 2")));

    push(1, 9, 0, 1);
    EXPECT_EQ(titles(0).front(), QStringLiteral("pushed 1")) << "a headline sent again moves to the top";
    EXPECT_EQ(titles(0).size(), 4);
    backEnd.connected = false;
    push(1, 9, 30, 9);
    EXPECT_EQ(titles(0).size(), 4) << "nothing is taken while the back end is disconnected";
}

}  // namespace wirepane
