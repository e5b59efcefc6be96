// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What is created by the enabled functions, and what a switch of the mode does, without a view.
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/arrangement.h"
#include "news_view/modes.h"
#include "news_view/story_stage.h"
#include "news_view/view_builder.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"
#include "tests/news_view/fake_view.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Ids = std::vector<unsigned char>;

class ModeSwitchTest : public testing::Test {
protected:
    ModeSwitchTest() {
        view.hasPane = false;
        for (const unsigned char service : backEnd.services)
            backEnd.categories[service] = {{u"1"_s, u"Markets"_s}, {u"2"_s, u"Economy"_s}};
        view.services.load(backEnd);
        tick({1, 2});
    }

    void tick(const Ids& ticked) {
        for (std::size_t i = 0; i < view.services.currentServices().size(); ++i) {
            const unsigned char service = view.services.currentServices()[i].service;
            view.services.select(i, std::find(ticked.begin(), ticked.end(), service) != ticked.end());
        }
        view.services.copyToSaved();
    }
    Ids ticked(const std::vector<ServiceEntry>& entries) const {
        Ids services;
        for (const ServiceEntry& entry : entries) {
            if (entry.selected)
                services.push_back(entry.service);
        }
        return services;
    }
    void build(std::uint32_t functions) {
        view.settings.functions = functions;
        builder.createControls();
    }
    // The modes whose grids are there, by number; whose tabs are, from left to right.
    static QList<int> grids(FakeView& of) {
        QList<int> numbers;
        for (const ListKind& kind : listKinds) {
            if (of.grid(kind.index) != nullptr)
                numbers.append(static_cast<int>(kind.index));
        }
        return numbers;
    }
    static QList<int> tabs(const FakeView& of) {
        QList<int> numbers;
        const auto* strip = of.controls.find<CXTPTabControl>(ids::tabStrip);
        for (int i = 0; strip != nullptr && i < strip->count(); ++i)
            numbers.append(strip->itemData(i));
        return numbers;
    }
    bool isShown(int id) const {
        const QWidget* control = dlgItem(&view.window, id);
        return control != nullptr && !control->isHidden();
    }
    void switchTo(ListIndex mode) {
        view.calls.clear();
        modes.switchTo(mode);
        view.shown = modes.shown();
    }
    std::function<void()> note(const QString& call) {
        return [this, call] { view.calls.append(call); };
    }
    static QString named(const QString& call, ListIndex list) {
        return call + u' ' + QString::number(static_cast<int>(list));
    }
    void giveWindow() { stage.setDialog(new TRVNewsStory(view, &view.window)); }

    FakeBackEnd backEnd;
    FakeView view{backEnd, FakeView::Grids::None};
    StoryStage stage;
    bool rowsOfDay = true;
    Modes modes{view,
                view.parts(),
                stage,
                {[this](ListIndex list) { view.calls.append(named(u"again"_s, list)); },
                 [this](ListIndex list) {
                     view.calls.append(named(u"day"_s, list));
                     return rowsOfDay;
                 },
                 [this] {
                     view.calls.append(u"symbol news"_s);
                     return true;
                 },
                 note(u"register warrants"_s), note(u"fill categories"_s), note(u"offer symbols"_s),
                 note(u"hide"_s), note(u"services"_s), [] {}}};
    ViewBuilder builder{
        view.window,
        view.parts(),
        stage,
        {[] { return QDate(2026, 3, 2); },
         [this](CSuperSheetWnd&, ListIndex list) { view.calls.append(named(u"grid"_s, list)); },
         note(u"dates"_s), note(u"search edit"_s), [] {}, note(u"categories"_s)}};
};

}  // namespace

// --- What is created ---

TEST_F(ModeSwitchTest, TheEnabledFunctionsDecideWhatIsThere) {
    struct Case {
        const char* what;
        std::uint32_t functions;
        ApplicationSwitches switches;
        QList<int> grids;
        QList<int> tabs;
        QList<int> controls;  // some that are created
        QList<int> lacking;   // and some that are not
    };
    const Case cases[] = {
        {"everything",
         0x7F,
         {true, true},
         {0, 1, 2, 3, 4, 5, 6},
         {0, 1, 2, 3, 4, 6, 5},
         {ids::tabStrip, ids::relationSearchButton, ids::warningSearchButton},
         {}},
        {"all news alone has no tabs", 0x01, {}, {0}, {}, {ids::datePicker}, {ids::tabStrip}},
        {"categories", 0x03, {}, {0, 1}, {0, 1}, {ids::datePicker, ids::categoryCombo}, {ids::symbolCombo}},
        {"symbols", 0x04, {}, {2}, {}, {ids::serviceCombo, ids::symbolCombo}, {ids::datePicker}},
        {"searches without their switch",
         0x08,
         {},
         {3},
         {},
         {ids::searchEdit, ids::searchButton, ids::dealsSearchButton, ids::relationSearchButton},
         {ids::warningSearchButton}},
        {"key sets by their switch", 0x09, {true, false}, {0, 3, 4}, {0, 3, 4}, {}, {}},
        {"warning terms by theirs",
         0x41,
         {false, true},
         {0, 6},
         {0, 6},
         {ids::warningSearchButton},
         {ids::searchEdit}},
        {"their button without", 0x41, {}, {0}, {0}, {ids::warningSearchButton}, {}},
        {"warrants alone are of a day", 0x20, {}, {5}, {}, {ids::datePicker}, {ids::tabStrip}},
        {"warrants among others", 0x22, {}, {1, 5}, {1, 5}, {ids::categoryCombo}, {ids::datePicker}},
        {"no function is not one function", 0, {}, {}, {}, {ids::tabStrip}, {ids::datePicker}},
    };
    for (const Case& c : cases) {
        FakeView fresh{backEnd, FakeView::Grids::None};
        fresh.services.load(backEnd);
        fresh.settings.functions = c.functions;
        fresh.switches = c.switches;
        ViewBuilder ofFresh(fresh.window, fresh.parts(), stage,
                            {[] { return QDate(2026, 3, 2); }, [](CSuperSheetWnd&, ListIndex) {}, [] {},
                             [] {}, [] {}, [] {}});
        ofFresh.createControls();
        EXPECT_EQ(grids(fresh), c.grids) << c.what;
        EXPECT_EQ(tabs(fresh), c.tabs) << c.what;
        for (const int id : c.controls)
            EXPECT_NE(dlgItem(&fresh.window, id), nullptr) << c.what << ", " << id;
        for (const int id : c.lacking)
            EXPECT_EQ(dlgItem(&fresh.window, id), nullptr) << c.what << ", " << id;
    }
}

TEST_F(ModeSwitchTest, WhatTheUserMayNotSeeIsNotThere) {
    backEnd.unauthorised = {16};
    backEnd.services = {1, 2};
    view.services.load(backEnd);
    build(0x26);
    EXPECT_EQ(grids(view), QList<int>{1});
    EXPECT_EQ(tabs(view), QList<int>{1});
    EXPECT_EQ(dlgItem(&view.window, ids::symbolCombo), nullptr);
}

TEST_F(ModeSwitchTest, WhatIsCreatedIsConnectedOnce) {
    build(0x0B);
    QStringList connected = view.calls;
    connected.sort();
    EXPECT_EQ(connected, (QStringList{u"categories"_s, u"dates"_s, u"grid 0"_s, u"grid 1"_s, u"grid 3"_s,
                                      u"search edit"_s}));
    EXPECT_EQ(dlgItem(&view.window, ids::serviceButton)->width(), 80);
}

// --- What a switch does ---

TEST_F(ModeSwitchTest, ASwitchShowsItsPartsAndReadsWhatItsModeSays) {
    view.switches.showNormalSearch = true;
    build(0x7F);
    switchTo(ListIndex::All);
    EXPECT_EQ(view.calls, QStringList()) << "there is no place for stories yet";
    giveWindow();
    struct Case {
        ListIndex mode;
        QStringList first, again;  // what is called, the pane apart
        QList<int> controls;
    };
    const Case cases[] = {
        {ListIndex::All, {u"day 0"_s}, {}, {ids::serviceButton, ids::datePicker}},
        {ListIndex::Category,
         {u"fill categories"_s, u"show story"_s},
         {u"show story"_s},
         {ids::serviceButton, ids::categoryCombo}},
        {ListIndex::Symbol,
         {u"hide"_s, u"offer symbols"_s, u"symbol news"_s},
         {u"hide"_s, u"offer symbols"_s, u"symbol news"_s},
         {ids::serviceButton, ids::serviceCombo, ids::symbolCombo}},
        {ListIndex::Search,
         {},
         {},
         {ids::serviceButton, ids::searchEdit, ids::searchButton, ids::dealsSearchButton}},
        {ListIndex::Relation, {u"day 4"_s}, {}, {ids::serviceButton, ids::relationSearchButton}},
        {ListIndex::Warrant, {u"register warrants"_s, u"day 5"_s}, {u"register warrants"_s, u"day 5"_s}, {}},
    };
    for (const bool first : {true, false}) {
        for (const Case& c : cases) {
            switchTo(c.mode);
            QStringList calls = view.calls;
            for (const QString& everyTime : {u"services"_s, u"place notices"_s, u"refresh"_s})
                EXPECT_EQ(calls.removeAll(everyTime), 1) << everyTime.toStdString();
            EXPECT_EQ(calls, first ? c.first : c.again) << static_cast<int>(c.mode);
            EXPECT_EQ(modes.shown(), c.mode);
            EXPECT_EQ(view.settings.focusedTab, static_cast<int>(c.mode));
            for (const ListKind& kind : listKinds) {
                const CSuperSheetWnd* grid = view.grid(kind.index);
                EXPECT_TRUE(grid == nullptr || grid->isHidden() == (kind.index != c.mode));
            }
            for (const Case& other : cases) {
                for (const int id : other.controls)
                    EXPECT_EQ(isShown(id), c.controls.contains(id)) << id;
            }
        }
    }
}

TEST_F(ModeSwitchTest, ThePaneShowsTheStoryOfTheNewMode) {
    build(0x03);
    giveWindow();
    view.hasPane = true;
    switchTo(ListIndex::All);
    EXPECT_EQ(view.calls.mid(0, 2), (QStringList{u"clear story"_s, u"show story"_s}));
    switchTo(ListIndex::Category);
    EXPECT_EQ(view.calls.first(), u"clear story"_s);
    EXPECT_EQ(view.calls.count(u"show story"_s), 1) << "when its list is read";
}

TEST_F(ModeSwitchTest, ServicesGoThroughTheWarrantModeUnchanged) {
    build(0x23);
    giveWindow();
    switchTo(ListIndex::All);
    switchTo(ListIndex::Warrant);
    EXPECT_EQ(ticked(view.services.currentServices()), Ids{52});
    EXPECT_EQ(ticked(view.services.savedServices()), (Ids{1, 2}));
    switchTo(ListIndex::Category);
    EXPECT_EQ(ticked(view.services.currentServices()), (Ids{1, 2}));
    tick({});
    switchTo(ListIndex::All);
    EXPECT_EQ(ticked(view.services.currentServices()), Ids{1}) << "one is ticked";
    EXPECT_EQ(ticked(view.services.savedServices()), Ids{1});
}

TEST_F(ModeSwitchTest, AListThatMissedSomethingIsReadAgain) {
    build(0x03);
    giveWindow();
    view.lists.noteMissed(ListIndex::All);
    switchTo(ListIndex::Category);
    EXPECT_FALSE(view.calls.contains(u"again 0"_s));
    switchTo(ListIndex::All);
    EXPECT_EQ(view.calls.first(), u"again 0"_s);
}

TEST_F(ModeSwitchTest, TheSearchSwitchesDecideWhichListIsRead) {
    view.switches = {false, true};
    build(0x49);
    giveWindow();
    switchTo(ListIndex::WarningTerm);
    EXPECT_FALSE(view.calls.contains(u"day 6"_s)) << "nothing is read: it is filled anew";
    EXPECT_EQ(modes.shown(), ListIndex::WarningTerm);
    EXPECT_FALSE(modes.read(ListIndex::WarningTerm));
    EXPECT_TRUE(modes.read(ListIndex::Search));
    EXPECT_FALSE(modes.read(ListIndex::Category)) << "it has no grid";
}

TEST_F(ModeSwitchTest, WhatWasFoundIsFilledIntoTheListThatTheSwitchesName) {
    view.switches = {true, true};
    build(0x49);
    giveWindow();
    const TableRuns found{{view.add(1)}};
    struct Case {
        ApplicationSwitches switches;
        ListIndex mode, filled;
    };
    const Case cases[] = {
        {{false, false}, ListIndex::Search, ListIndex::Search},
        {{true, false}, ListIndex::Search, ListIndex::Search},
        {{false, true}, ListIndex::Search, ListIndex::Search},
        {{false, true}, ListIndex::WarningTerm, ListIndex::WarningTerm},
        {{true, true}, ListIndex::Search, ListIndex::WarningTerm},
        {{true, true}, ListIndex::WarningTerm, ListIndex::WarningTerm},
    };
    for (const Case& c : cases) {
        view.switches = c.switches;
        switchTo(c.mode);
        for (const ListIndex list : {ListIndex::Search, ListIndex::WarningTerm}) {
            view.lists[list].setTable(TableRuns());
            view.lists[list].vFillHeadlineTable();
            view.lists[list].setTable(found);
        }
        EXPECT_TRUE(modes.read(ListIndex::Search));
        for (const ListIndex list : {ListIndex::Search, ListIndex::WarningTerm})
            EXPECT_EQ(view.grid(list)->rowCount(), list == c.filled ? 1 : 0)
                << c.switches.showNormalSearch << c.switches.showWarningSearch << static_cast<int>(c.mode);
    }
}

TEST_F(ModeSwitchTest, AListWithoutRowsEndsTheStatusText) {
    build(0x21);
    giveWindow();
    for (const bool rows : {true, false}) {
        rowsOfDay = rows;
        view.calls.clear();
        EXPECT_EQ(modes.read(ListIndex::All), rows);
        EXPECT_EQ(view.calls, rows ? QStringList{u"day 0"_s} : (QStringList{u"day 0"_s, u"status "_s}));
        view.calls.clear();
        EXPECT_TRUE(modes.read(ListIndex::Warrant)) << "it needs no rows";
        EXPECT_EQ(view.calls.contains(u"status "_s), !rows);
    }
}

TEST_F(ModeSwitchTest, OnlyAViewOfTwoColumnsLeavesTheKeyboard) {
    build(0x03);
    giveWindow();
    view.window.show();
    for (const int type : {1, 0, 2, 3}) {
        view.newsType = static_cast<NewsType>(type);
        dlgItem(&view.window, ids::serviceButton)->setFocus();
        switchTo(ListIndex::Category);
        EXPECT_EQ(view.window.focusWidget() == view.grid(ListIndex::Category), type != 1) << type;
    }
}

// --- Places ---

TEST_F(ModeSwitchTest, EverythingStandsWhereTheLayoutSays) {
    build(0x27);
    giveWindow();
    StoryShowType showType = StoryShowType::Right;
    Arrangement arrangement(view, view.parts(), stage,
                            {[] { return 16; }, [] { return 12; }, [&] { return showType; }});
    EXPECT_FALSE(arrangement.isPlaced());
    MemoryCfgIO settings;
    builder.createStoryPane(view, &settings, {});
    view.calls.clear();
    arrangement.place();
    const ViewLayout places = arrangement.layout();
    EXPECT_TRUE(arrangement.isPlaced());
    EXPECT_EQ(view.calls, (QStringList{u"place notices"_s, u"refresh"_s}));
    EXPECT_GE(places.tabStrip.top(), 12) << "below the title";
    EXPECT_EQ(view.grid()->geometry(), places.grid);
    EXPECT_EQ(view.grid(ListIndex::Symbol)->geometry(), places.gridWithoutControls);
    EXPECT_EQ(view.grid(ListIndex::Warrant)->geometry(), places.gridWithoutControls);
    EXPECT_EQ(stage.storyPane()->geometry(), places.storyPane);
    EXPECT_FALSE(stage.storyPane()->isHidden());
    EXPECT_EQ(arrangement.gridWidth(), view.window.width() / 2);
    showType = StoryShowType::None;
    arrangement.place();
    EXPECT_TRUE(stage.storyPane()->isHidden());
    EXPECT_EQ(arrangement.gridWidth(), view.window.width());
}

}  // namespace wirepane
