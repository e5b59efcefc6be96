// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Rules of how a view starts and what a switch of its mode does to the services: each where a user or a host
// meets it.
#include "host/contract/sync_info.h"
#include "host/controls/quote_combo_box_auto.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int symbolMode = static_cast<int>(ListIndex::Symbol);
using Ids = std::set<int>;

// A host whose link groups have a symbol each.
class GroupSymbols : public CSyncInfo {
public:
    GroupSymbols() { setSettingCFG(this); }
    QString SYS_cszGetCurrentSymbol(unsigned char group) override {
        return group == 3 ? u"2330"_s : u"6214"_s;
    }
};

class StartRules : public NewsViewTest {
protected:
    ~StartRules() override { view.reset(); }

    // The commands of the service menu, and those with a check mark.
    std::pair<Ids, Ids> menu() {
        view->SwitchFunction(state(u"mode"_s).toInt());
        view->onCommand(ids::serviceButton);
        auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        std::pair<Ids, Ids> commands;
        if (shown == nullptr)
            return commands;
        const QList<QAction*> actions = shown->actions();
        for (const QAction* action : actions) {
            commands.first.insert(action->data().toInt());
            if (action->isChecked())
                commands.second.insert(action->data().toInt());
        }
        shown->close();
        return commands;
    }
    Ids ticked() const {
        Ids result;
        for (const QVariant& service : state(u"services"_s).toList()) {
            if (service.toMap()[u"selected"_s].toBool())
                result.insert(service.toMap()[u"id"_s].toInt());
        }
        return result;
    }
    int entries(int id) const {
        const auto* combo = qobject_cast<QComboBox*>(dlgItem(view.get(), id));
        return combo != nullptr ? combo->count() : -1;
    }
};

}  // namespace

TEST_F(StartRules, TheServiceMenuLeavesTheWarrantsOutAndKeepsTheirCommandFree) {
    open();
    EXPECT_EQ(menu().first, (Ids{5050, 5051, 5052, 5053, 5055}));
}

TEST_F(StartRules, ASwitchTakesTheServicesOver) {
    struct Case {
        const char* what;
        QMap<QString, QVariant> stored;
        Ids ticked;
        Ids marked;
        std::set<unsigned char> registered;
    };
    const QString check = u"Sheet0ServiceCheck%1"_s;
    const Case cases[] = {
        {"the marks follow the ticks",
         {{check.arg(1), true}, {check.arg(16), true}},
         {1, 16},
         {5050, 5052},
         {1, 16}},
        {"the warrants are never ticked",
         {{check.arg(2), true}, {check.arg(52), true}},
         {2},
         {5051},
         {2, 52}},
        {"without a tick the first service is, and is not registered by that",
         {{check.arg(2), false}},
         {1},
         {5050},
         {}},
    };
    for (const Case& c : cases) {
        open(c.stored);
        EXPECT_EQ(ticked(), c.ticked) << c.what;
        EXPECT_EQ(menu().second, c.marked) << c.what;
        EXPECT_EQ(backEnd.registrations[view.get()], c.registered) << c.what;
        MemoryCfgIO saved;
        view->SaveViewInfo(&saved, u"Layout"_s, 0, 0);
        for (const unsigned char service : backEnd.services)
            EXPECT_EQ(saved.values[check.arg(service)].toBool(), c.ticked.count(service) > 0)
                << c.what << ", service " << int{service};
    }
}

TEST_F(StartRules, CombosAreFilledOnlyInViewsWithAllNews) {
    for (const int mask : {0x02, 0x03, 0x04, 0x05}) {
        const bool all = (mask & 1) != 0;
        const bool symbols = (mask & 4) != 0;
        open({{u"EnabledFunctions"_s, mask}, {u"FocusedTab"_s, symbols ? 2 : 1}});
        EXPECT_EQ(entries(ids::categoryCombo), symbols ? -1 : all ? 2 : 0) << mask;
        EXPECT_EQ(entries(ids::symbolCombo), symbols ? (all ? 2 : 0) : -1) << mask;
        EXPECT_EQ(entries(ids::serviceCombo), symbols ? (all ? 3 : 0) : -1) << mask;
    }
}

TEST_F(StartRules, TheNewsTypeDecidesWhatAViewIsFor) {
    GroupSymbols host;
    backEnd.texts[u"IDS_MMSEXTENSION-MAINFRM_NEWSCTRLVIEW"_s] = u"Symbol News"_s;
    struct Case {
        const char* what;
        int newsType;
        QString typeName;
        QString title;
        int becomes;
    };
    const Case cases[] = {
        {"an ordinary view", 0, {}, u"News"_s, 0},
        {"by its type name", 0, u"MULTITIMESALSE_SYMBOLNEWS"_s, {}, 2},
        {"the type name in other case is another", 0, u"multitimesalse_symbolnews"_s, {}, 0},
        {"by its title, whatever the case", 0, {}, u"SYMBOL news"_s, 2},
        {"two columns", 1, {}, {}, 1},
        {"without a pane", 3, {}, {}, 3},
    };
    for (const Case& c : cases) {
        open({{u"EnabledFunctions"_s, 0x7F}}, c.newsType, [&c](TRVNewsCtrlView& prepared) {
            prepared.setTypeName(c.typeName);
            prepared.setWindowTitle(c.title);
            prepared.setLinkGroup(3);
        });
        const bool symbolNews = c.becomes == 1 || c.becomes == 2;
        EXPECT_EQ(view->GetNewsType(), c.becomes) << c.what;
        EXPECT_EQ(state(u"mask"_s).toInt(), symbolNews ? 0x04 : 0x7F) << c.what;
        EXPECT_EQ(state(u"symbol"_s).toMap()[u"code"_s].toString(), symbolNews ? u"2330"_s : QString())
            << c.what;
    }
}

TEST_F(StartRules, AModeIsFoundByItsName) {
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_SEARCH_NEWS"_s] = u"Search"_s;
    open();
    EXPECT_EQ(view->iGetFunctionID(u"search"_s), 3);
    EXPECT_EQ(view->iGetFunctionID(u"IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS"_s), 2);
    EXPECT_EQ(view->iGetFunctionID(u"of no mode"_s), 0);
    backEnd.unauthorised = {16};
    EXPECT_EQ(view->iGetFunctionID(u"IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS"_s), 0);
}

TEST_F(StartRules, TheTitleColumnStretchesWhenTheHostSaysSo) {
    const auto width = [this] { return view->sheetOf(0)->colWidth(view->sheetOf(0)->column(u"title"_s)); };
    open();
    EXPECT_EQ(width(), 300);
    open({{u"StretchTitles"_s, true}});
    EXPECT_GT(width(), 300);
}

}  // namespace wirepane
