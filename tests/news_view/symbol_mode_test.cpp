// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The symbol mode of a view, its categories and its service menu, without the view.
#include "news_view/symbol_mode.h"

#include "headline_list/language_keys.h"
#include "host/controls/sc_combo_box.h"
#include "host/views/news_control_ids.h"
#include "news_view/category_mode.h"
#include "news_view/service_menu.h"
#include "tests/news_view/owner_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const CSymbolInfo chips{16, u"2330"_s};
const CSymbolInfo foods{16, u"6214"_s};

class SymbolModeTest : public OwnerTest {
protected:
    SymbolModeTest() {
        backEnd.symbols[16] = {{u"2330"_s, u"Aster Chips"_s}, {u"6214"_s, u"Lantern Foods"_s}};
        backEnd.symbols[122] = {{u"4001"_s, u"Young Board"_s}};
        controls.CreateControls(ListIndex::Symbol, QRect(0, 0, 120, 20), QFont());
        controls.createServiceButton(QRect(0, 0, 20, 20));
        view.shown = ListIndex::Symbol;
        settings.functions = symbolNewsMask | 1;
    }

    void open(const QString& code = u"2330"_s) {
        linkedCode = code;
        mode.start(false, true);
        mode.offer();
        told.clear();
        asked();
        calls();
    }
    QStringList read() { return asked().filter(u"symbol "_s); }
    bool isShown(int id) { return !controls.find<QWidget>(id)->isHidden(); }

    QString linkedCode;
    QStringList told;
    bool supported = true;
    SymbolMode mode{view,
                    parts,
                    {[this] { told.append(u"lay out"_s); }, [this] { told.append(u"controls"_s); },
                     [this] { return supported; }, [this](bool isSupported) { supported = isSupported; },
                     [this] { return linkedCode; },
                     [this](const CSymbolInfo& symbol) { told.append(u"chose "_s + symbol.code); }}};
};

}  // namespace

TEST_F(SymbolModeTest, TheSymbolToStartWithIsTheLinkedOrTheSavedOne) {
    struct Case {
        const char* what;
        QString linked;
        bool fromLink, only;
        CSymbolInfo current;
    };
    settings.symbolId = u"4001"_s;
    settings.symbolService = 122;
    const Case cases[] = {
        {"its market is the saved one's", {}, false, false, {122, {}}},
        {"of a linked one it is not known", u"2330"_s, false, false, {16, {}}},
        {"asked for by a link nothing is saved", {}, true, false, {16, {}}},
        {"a view of one symbol's news shows it", u"2330"_s, false, true, chips},
        {"the saved one is linked", u"4001"_s, false, true, {122, u"4001"_s}},
    };
    for (const Case& c : cases) {
        linkedCode = c.linked;
        mode.start(c.fromLink, c.only);
        EXPECT_EQ(mode.current(), c.current) << c.what;
        EXPECT_EQ(mode.isFromLink(), c.fromLink) << c.what;
    }
    mode.keep();
    EXPECT_EQ(settings.symbolId, u"4001"_s);
    EXPECT_EQ(settings.symbolService, 122);
    linkedCode.clear();
    mode.start(true, false);
    mode.offer();
    mode.readFirst();
    EXPECT_EQ(mode.current(), foods) << "a link without a symbol leaves it to the combo";
}

TEST_F(SymbolModeTest, TheUsersChoiceIsReadAndTellsTheLinkGroup) {
    open();
    auto& combo = *controls.find<QComboBox>(ids::symbolCombo);
    combo.setCurrentIndex(1);
    mode.symbolChosen();
    EXPECT_EQ(mode.current(), foods);
    EXPECT_EQ(told, QStringList{u"chose 6214"_s});
    EXPECT_EQ(read(), bothTables(u"symbol 6214"_s));
    EXPECT_EQ(calls(), QStringList{u"clear story"_s}) << "the list shows its own story";
    mode.symbolChosen();
    EXPECT_EQ(read(), QStringList()) << "the same one";
    view.shown = ListIndex::All;
    combo.setCurrentIndex(0);
    mode.symbolChosen();
    EXPECT_EQ(calls(), (QStringList{u"clear story"_s, u"show story"_s}))
        << "the reader of another list reads on";
    withoutGrid(ListIndex::Symbol);
    combo.setCurrentIndex(1);
    mode.symbolChosen();
    EXPECT_EQ(mode.current(), chips);
}

TEST_F(SymbolModeTest, AnotherMarketsSymbolsAreOffered) {
    open();
    auto& markets = *controls.find<SCComboBox>(ids::serviceCombo);
    ASSERT_GE(markets.count(), 2);
    mode.serviceChosen();
    EXPECT_EQ(told, QStringList()) << "the same market";
    markets.setCurrentIndex(markets.count() - 1);
    mode.serviceChosen();
    EXPECT_NE(mode.current().market, 16);
    EXPECT_TRUE(told.contains(u"lay out"_s));
}

TEST_F(SymbolModeTest, AMarketThatComesLaterLeavesTheChoice) {
    settings.symbolService = 122;
    backEnd.unauthorised = {16};
    settings.symbolId = u"4001"_s;
    open(u"4001"_s);
    mode.take({1, u"TXF"_s});
    backEnd.unauthorised.clear();
    mode.takeUpdates({{16, u"2330"_s}});
    auto& markets = *controls.find<SCComboBox>(ids::serviceCombo);
    EXPECT_EQ(markets.itemText(0), u"台灣證券");
    EXPECT_EQ(markets.currentText(), u"興櫃股票") << "the first until then";
    switchOn(ViewOption::MarketNames);
    mode.nameMarkets();
    EXPECT_EQ(markets.currentText(), langText(backEnd, keys::emergingBoard));
    EXPECT_NE(markets.currentText(), u"興櫃股票");
}

TEST_F(SymbolModeTest, AMarketThatComesLaterIsChosenWhereTheSymbolIsOfIt) {
    backEnd.unauthorised = {122};
    open();
    mode.take({122, u"4001"_s});
    backEnd.unauthorised.clear();
    mode.takeUpdates({{122, u"4001"_s}});
    EXPECT_EQ(controls.find<SCComboBox>(ids::serviceCombo)->currentText(), u"興櫃股票");
    EXPECT_EQ(mode.chosen(), (CSymbolInfo{122, u"4001"_s})) << "and both combos name the same market";
}

TEST_F(SymbolModeTest, ALinkedSymbolIsFollowedWhereItHasNews) {
    open();
    EXPECT_TRUE(mode.take(foods));
    EXPECT_EQ(mode.chosen(), foods);
    EXPECT_EQ(read(), bothTables(u"symbol 6214"_s)) << "read once";
    EXPECT_EQ(told, QStringList()) << "nobody chose here";
    mode.follow(foods, true);
    EXPECT_EQ(read(), QStringList());
    view.shown = ListIndex::All;
    EXPECT_FALSE(mode.take(chips));
    EXPECT_EQ(read(), QStringList());
    mode.follow(chips, false);
    EXPECT_EQ(read(), bothTables(u"symbol 2330"_s));

    const CSymbolInfo future{1, u"TXF"_s};
    for (const NewsType type : {NewsType::Full, NewsType::Symbol}) {
        newsType = type;
        EXPECT_FALSE(mode.take(future));
        mode.follow(future, false);
        EXPECT_EQ(supported, type != NewsType::Symbol) << "a view of symbol news alone has nothing to show";
        EXPECT_EQ(read(), QStringList());
    }
    EXPECT_FALSE(isShown(ids::symbolCombo));
    mode.follow(chips, true);
    EXPECT_TRUE(supported);
    settings.functions = 1;
    mode.follow(foods, false);
    EXPECT_EQ(read(), QStringList()) << "the mode is not enabled";
}

TEST_F(SymbolModeTest, OtherViewsTakeTheChosenSymbolWhileTheModeIsShown) {
    EXPECT_EQ(mode.forOthers(), std::nullopt) << "there are no symbols yet";
    open();
    EXPECT_EQ(mode.forOthers(), chips);
    controls.find<QComboBox>(ids::symbolCombo)->setCurrentIndex(-1);
    EXPECT_EQ(mode.forOthers(), (CSymbolInfo{16, u"#001"_s}));
    view.shown = ListIndex::All;
    EXPECT_EQ(mode.forOthers(), std::nullopt);
}

TEST_F(SymbolModeTest, FirstSymbolsOfAMarketBringTheModeToLife) {
    settings.focusedTab = static_cast<int>(ListIndex::Symbol);
    backEnd.symbols.clear();
    open({});
    EXPECT_FALSE(supported);
    mode.hideWithoutUse();
    EXPECT_TRUE(view.grid(ListIndex::Symbol)->isHidden());
    backEnd.symbols[16] = {{u"6214"_s, u"Lantern Foods"_s}};
    mode.takeUpdates({{1, u"TXF"_s}});
    EXPECT_FALSE(supported);
    mode.takeUpdates({{16, u"6214"_s}});
    EXPECT_TRUE(supported);
    EXPECT_TRUE(told.contains(u"controls"_s));
    EXPECT_EQ(mode.chosen(), foods);
}

// --- Categories ---

namespace {

class CategoryModeTest : public OwnerTest {
protected:
    CategoryModeTest() {
        backEnd.categories[1] = {{u"1"_s, u"Markets"_s}, {u"2"_s, u"Economy"_s}};
        backEnd.categories[52] = {{u"0"_s, u"Issue"_s}};
        backEnd.categories[2] = {{u"2"_s, u"Economy"_s}, {u"3"_s, u"Metals"_s}};
        backEnd.categories[16] = {{u"9"_s, u"Unticked"_s}};
        controls.createCategoryCombo(QRect(0, 0, 120, 200));
        view.shown = ListIndex::Category;
        mode.bInitialTransferCatObject();
        mode.bInitialTransferWarrantCatObject();
    }
    QComboBox& combo() { return *controls.find<QComboBox>(ids::categoryCombo); }
    QStringList read() { return asked().filter(u"table"_s); }

    CategoryMode mode{view, parts, [] { return nullptr; }};
};

}  // namespace

TEST_F(CategoryModeTest, TheComboOffersTheTickedServicesCategoriesOnce) {
    settings.categoryId = u"3"_s;
    mode.bInitialCategoryInfo();
    EXPECT_EQ(combo().count(), 3);
    EXPECT_EQ(mode.chosenId(), u"3"_s) << "the stored one";
    EXPECT_EQ(read(), bothTables(u"1 3"_s));
    combo().setCurrentIndex(1);
    mode.chosen();
    EXPECT_EQ(settings.categoryId, u"2"_s);
    EXPECT_EQ(read(), bothTables(u"1 2"_s));
    services.select(0, false);
    services.copyToSaved();
    mode.vRefreshCategoryCombo();
    EXPECT_EQ(mode.chosenId(), u"2"_s) << "by its name";
    EXPECT_EQ(combo().count(), 2);
    backEnd.categories[2] = {{u"3"_s, u"Metals"_s}};
    mode.vRefreshCategoryCombo();
    EXPECT_EQ(mode.chosenId(), u"3"_s) << "else the first";
    read();
    withoutGrid(ListIndex::Category);
    mode.vRefreshCategoryCombo();
    EXPECT_EQ(read(), QStringList());
}

TEST_F(CategoryModeTest, APushedCategoryIsLearnedOnceAtTheNextRefresh) {
    mode.bInitialCategoryInfo();
    read();
    CHeadline headline;
    headline.service = 1;
    backEnd.categories[1].push_back({u"4"_s, u"Grain"_s});
    mode.notePushed(headline, u"2"_s);
    mode.learn(false);
    EXPECT_EQ(combo().count(), 3) << "it is known";
    headline.service = 52;
    mode.notePushed(headline, u"4"_s);
    mode.learn(false);
    EXPECT_EQ(combo().count(), 3) << "warrants have categories of their own";
    headline.service = 1;
    mode.notePushed(headline, u"4"_s);
    mode.learn(false);
    EXPECT_EQ(combo().count(), 4);
    EXPECT_EQ(mode.chosenId(), u"1"_s);
    EXPECT_EQ(read(), QStringList()) << "the choice and its list stay";
}

TEST_F(CategoryModeTest, TheColumnFollowsTheUserInViewsOfThreeColumns) {
    view.shown = ListIndex::All;
    settings.showCategory = true;
    const int column = view.grid()->column(u"category"_s);
    mode.showColumn();
    EXPECT_EQ(view.grid()->colWidth(column), 50);
    mode.toggleColumn();
    EXPECT_EQ(view.grid()->colWidth(column), 0);
    newsType = NewsType::TwoColumns;
    mode.toggleColumn();
    EXPECT_TRUE(settings.showCategory);
    EXPECT_EQ(view.grid()->colWidth(column), 0);
}

TEST_F(CategoryModeTest, AnUnknownCategoryHasATextAndNoColour) {
    EXPECT_EQ(mode.nameOf(1, 77), QString(keys::recover));
    EXPECT_EQ(mode.idOf(1, u"Nobody's"_s), -1);
    QColor text, background;
    EXPECT_FALSE(mode.colourOf(1, u"Nobody's"_s, text, background));
    EXPECT_TRUE(mode.colourOf(52, u"Issue"_s, text, background)) << "the smallest number";
}

// --- The service menu ---

TEST_F(OwnerTest, TheServiceMenuKeepsTheLastTickAndStandsFastAmongWarrants) {
    int changes = 0;
    ServiceMenu menu(view, parts, {[](int) {}, [&] { ++changes; }});
    EXPECT_FALSE(menu.isFilled());
    menu.fill();
    EXPECT_TRUE(menu.isFilled());
    struct Case {
        const char* what;
        int service;  // its place
        ListIndex shown;
        bool isTicked, changes;
    };
    const Case cases[] = {
        {"off", 0, ListIndex::All, false, true},
        {"the last one", 1, ListIndex::All, true, false},
        {"on", 0, ListIndex::All, true, true},
        {"among warrants", 0, ListIndex::Warrant, true, false},
    };
    for (const Case& c : cases) {
        view.shown = c.shown;
        const int before = changes;
        menu.toggle(ids::firstServiceCommand + c.service);
        EXPECT_EQ(services.savedServices()[static_cast<std::size_t>(c.service)].selected, c.isTicked)
            << c.what;
        EXPECT_EQ(changes > before, c.changes) << c.what;
    }
    menu.toggle(ids::firstServiceCommand + 99);
    menu.toggle(0);
    EXPECT_EQ(changes, 2);
}

}  // namespace wirepane
