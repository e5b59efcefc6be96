// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Rules of what the lists are read from: each where a reader meets it.
#include "host/controls/sc_combo_box.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int symbolMode = static_cast<int>(ListIndex::Symbol);
constexpr int relationMode = static_cast<int>(ListIndex::Relation);
constexpr int warningMode = static_cast<int>(ListIndex::WarningTerm);

class ListRules : public NewsViewTest {
protected:
    ListRules() {
        addNews(1, 9, 0, 1, 1, u"2330"_s);
        addNews(2, 9, 1, 2, 1, u"2330"_s);
        backEnd.add(1, localTime(2026, 3, 1, 9, 0), 3, u"yesterday"_s, 1);
    }

    // Services 1 and 2 are ticked.
    void openWith(const QByteArray& switches, QMap<QString, QVariant> stored = {}) {
        writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\n" + switches);
        stored.insert({{u"EnabledFunctions"_s, 0x7F},
                       {u"SymbolID"_s, u"2330"_s},
                       {u"Sheet0ServiceCheck1"_s, true},
                       {u"Sheet0ServiceCheck2"_s, true}});
        open(stored);
    }
    QStringList tablesAt(const std::function<void()>& happens) {
        backEnd.asked.clear();
        happens();
        return backEnd.asked.filter(u"table "_s);
    }
    void tick(int index) { view->onCommand(ids::firstServiceCommand + index); }
    QStringList entries(int id) const {
        const auto& combo = *qobject_cast<SCComboBox*>(dlgItem(view.get(), id));
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i)
            texts.append(combo.itemText(i));
        return texts;
    }
};

}  // namespace

TEST_F(ListRules, ATickReadsEveryListThatDependsOnIt) {
    openWith("ShowNormalSearch=1\n");
    view->SwitchFunction(symbolMode);
    view->SwitchFunction(0);
    ASSERT_TRUE(view->bChangeDate({2026, 3, 1}));
    EXPECT_EQ(tablesAt([this] { tick(1); }), (QStringList{u"table 1 0 20260301"_s, u"table 1 1 1"_s,
                                                          u"table 1 symbol 2330"_s, u"table 1 0 20260302"_s}))
        << "all news of the picked day, the category, the symbol, key sets of today";
    EXPECT_EQ(titles(symbolMode), QStringList{u"s1 9:00"_s});
    EXPECT_EQ(titles(relationMode), QStringList{u"s1 9:00"_s});
}

TEST_F(ListRules, TheListOnShowDecidesWhetherKeySetsFilter) {
    openWith("ShowNormalSearch=1\n");
    view->SwitchFunction(symbolMode);
    view->SwitchFunction(relationMode);
    tick(1);
    EXPECT_EQ(view->iGetHeadlineTableSize(0), 0) << "no key set wants anything";
    EXPECT_EQ(view->iGetHeadlineTableSize(symbolMode), 0);
    view->SwitchFunction(3);
    tick(1);
    EXPECT_EQ(view->iGetHeadlineTableSize(0), 2);
    EXPECT_EQ(view->iGetHeadlineTableSize(symbolMode), 2);
    EXPECT_EQ(view->iGetHeadlineTableSize(relationMode), 2);
}

TEST_F(ListRules, NoSwitchReadsTheWarningTerms) {
    CSearch condition;
    condition.keywords = {u"x"_s};
    condition.method = 1;
    openWith("ShowWarningSearch=1\n", {{u"WarningSearchItems"_s, QStringList{condition.GetString()}},
                                       {u"WarningSearchItemOrder"_s, 1}});
    backEnd.searchTables[1] = {{localTime(2026, 3, 2, 9, 0), 1, 1, 0, 0}};
    EXPECT_EQ(tablesAt([this] { view->SwitchFunction(warningMode); }), QStringList());
    EXPECT_EQ(titles(warningMode), QStringList());
    view->OnDealsSearch();
    EXPECT_EQ(titles(warningMode), QStringList{u"s1 9:00"_s});
    backEnd.searchTables.clear();
    view->SwitchFunction(0);
    EXPECT_EQ(tablesAt([this] { view->SwitchFunction(warningMode); }), QStringList());
    EXPECT_EQ(titles(warningMode), QStringList{u"s1 9:00"_s}) << "they stand until they are searched again";
}

TEST_F(ListRules, TheSymbolModeTakesTheSymbolsThatHaveNews) {
    struct Case {
        const char* what;
        std::function<void()> given;
        QStringList markets;
        int market;  // to look at, of these
        QStringList symbols;
    };
    const QString taiwan = u"台灣證券"_s;
    const QString emerging = u"興櫃股票"_s;
    const QString hongKong = u"香港股市"_s;
    const Case cases[] = {
        {"an index of the exchange is none",
         [] {},
         {taiwan, emerging, hongKong},
         0,
         {u"2330 Aster Chips"_s, u"6214 Lantern Foods"_s}},
        {"nor one of the emerging board",
         [this] {
             backEnd.symbols[122].push_back({u"#900"_s, u"Board Index"_s});
         },
         {taiwan, emerging, hongKong},
         1,
         {u"4001 Young Board"_s}},
        {"of Hong Kong one category",
         [this] { backEnd.hongKongCategory = 2; },
         {taiwan, emerging, hongKong},
         2,
         {}},
        {"Hong Kong under its delayed service",
         [this] {
             backEnd.hongKongCategory = 1;
             backEnd.delayed[22] = 222;
             backEnd.symbols[222] = backEnd.symbols[22];
             backEnd.symbols.erase(22);
         },
         {taiwan, emerging, hongKong},
         2,
         {u"00700 Harbour Holdings"_s}},
        {"which the user must be allowed to see",
         [this] { backEnd.unauthorised = {222}; },
         {taiwan, emerging},
         1,
         {u"4001 Young Board"_s}},
    };
    for (const Case& c : cases) {
        c.given();
        openWith("");
        view->SwitchFunction(symbolMode);
        EXPECT_EQ(entries(ids::serviceCombo), c.markets) << c.what;
        auto* markets = qobject_cast<SCComboBox*>(dlgItem(view.get(), ids::serviceCombo));
        markets->setCurrentIndex(c.market);
        view->OnSelchangeComboService();
        EXPECT_EQ(entries(ids::symbolCombo), c.symbols) << c.what;
    }
}

}  // namespace wirepane
