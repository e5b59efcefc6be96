// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a list, the pane and the ticks show after something else has happened: another list was read, another
// mode was shown, a linked view chose a symbol.
#include "headline_list/language_keys.h"
#include "host/contract/sync_info.h"
#include "host/controls/sc_combo_box.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int categoryMode = static_cast<int>(ListIndex::Category);
constexpr int symbolMode = static_cast<int>(ListIndex::Symbol);
constexpr int relationMode = static_cast<int>(ListIndex::Relation);
constexpr int warrantMode = static_cast<int>(ListIndex::Warrant);

class ListsInStep : public NewsViewTest {
protected:
    // News with a story that says whose it is.
    void addTold(unsigned char service, const QDate& day, int minute, std::int32_t sequence,
                 std::int32_t category = 1, const QString& symbol = {}) {
        const std::int64_t time = localTime(day.year(), day.month(), day.day(), 9, minute);
        const QString name = u"%1-%2"_s.arg(service).arg(sequence);
        backEnd.add(service, time, sequence, name, category, symbol);
        const CHeadlineTable entry{time, sequence, service, 0, 0};
        backEnd.addStory({time, u"story of "_s + name, entry});
    }

    void openShown(QMap<QString, QVariant> stored = {}) {
        stored.insert(u"EnabledFunctions"_s, 0x7F);
        open(stored);
        frame.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
    }

    void click(int row) {
        CSuperSheetWnd* sheet = view->pGetCurrSheetView();
        QTest::mouseClick(sheet->viewport(), Qt::LeftButton, {},
                          sheet->visualRect(sheet->model()->index(row, 0)).center());
    }
    QString story() const { return view->storyState(false)[u"story"_s].toString(); }
    SCComboBox& combo(int id) const { return *qobject_cast<SCComboBox*>(dlgItem(view.get(), id)); }
    void chooseCategory(int index) {
        combo(ids::categoryCombo).setCurrentIndex(index);
        view->OnSelchangeComboIndex();
    }
    std::set<int> ticked() const {
        std::set<int> result;
        for (const QVariant& service : state(u"services"_s).toList()) {
            if (service.toMap()[u"selected"_s].toBool())
                result.insert(service.toMap()[u"id"_s].toInt());
        }
        return result;
    }
    QStringList symbolRows() const { return titles(symbolMode); }
    QString combos() const {
        return combo(ids::serviceCombo).currentText() + u" / "_s + combo(ids::symbolCombo).currentText();
    }

    const QDate today{2026, 3, 2};
};

}  // namespace

// --- The story beside a headline ---

TEST_F(ListsInStep, AClickShowsTheStoryOfTheHeadlineThatStandsThere) {
    const QDate yesterday = today.addDays(-1);
    addTold(1, today, 10, 1, 1, u"2330"_s);
    addTold(1, today, 5, 2, 2, u"6214"_s);
    backEnd.origins[2] = {u"Exchange"_s, u"Paper"_s};
    addTold(1, yesterday, 10, 3, 3);
    addTold(52, today, 10, 4);
    addTold(52, yesterday, 10, 5);
    struct Case {
        const char* what;
        int mode;
        std::function<void()> happens;
        QString told;
    };
    const auto linked = [this] { view->ChangeSymbol(view.get(), 0, 16, u"6214"_s, {}); };
    const Case cases[] = {
        {"another category", categoryMode, [this] { chooseCategory(1); }, u"story of 1-2"_s},
        {"the symbol of a linked view", symbolMode, linked, u"story of 1-2"_s},
        {"the symbol list read again", symbolMode, [this] { view->GetSymbolNews(u"2330"_s); },
         u"story of 1-1"_s},
        {"another day", 0, [this, yesterday] { view->bChangeDate(yesterday); }, u"story of 1-3"_s},
        {"warrants of another day", warrantMode,
         [this, yesterday] {
             view->SwitchFunction(0);
             view->bChangeDate(yesterday);
             view->SwitchFunction(warrantMode);
         },
         u"story of 52-5"_s},
        {"a list that is read again", 0,
         [this] {
             addTold(1, today, 30, 20);
             view->InitialHeadlineTable(0);
         },
         u"story of 1-20"_s},
        {"a table that was sent again", 0,
         [this] {
             addTold(1, today, 31, 21);
             const CHeadlineTableInfo info{1, 0, u"20260302"_s};
             view->onCommand(ids::recoverHeadlineTable);
             view->vRecvAllHeadlineTableRecovery(&info);
         },
         u"story of 1-21"_s},
    };
    for (const Case& c : cases) {
        openShown({{u"SymbolID"_s, u"2330"_s}});
        view->SwitchFunction(c.mode);
        click(0);
        ASSERT_TRUE(story().contains(u"story of "_s)) << c.what;
        c.happens();
        click(0);
        EXPECT_TRUE(story().contains(c.told)) << c.what << ": " << story().toStdString();
        EXPECT_EQ(view->storyState(false)[u"origins"_s].toStringList().size(),
                  c.told.endsWith(u"1-2"_s) ? 2 : 0);
    }
}

TEST_F(ListsInStep, ALinkedSymbolLeavesTheStoryOfTheListOnShow) {
    addTold(1, today, 10, 1, 1, u"2330"_s);
    addTold(1, today, 5, 2, 1, u"4001"_s);
    openShown({{u"SymbolID"_s, u"2330"_s}});
    view->setLinkGroup(3);
    view->SwitchFunction(symbolMode);
    view->SwitchFunction(0);
    click(1);
    view->ChangeSymbol(nullptr, 3, 122, u"4001"_s, {});
    EXPECT_TRUE(story().contains(u"story of 1-2"_s)) << story().toStdString();
    EXPECT_EQ(state(u"storyRow"_s).toInt(), 1);
    view->SetStoryShowType(0);
    view->ChangeSymbol(nullptr, 3, 16, u"2330"_s, {});
    EXPECT_FALSE(view->storyState(true)[u"visible"_s].toBool()) << "no window opens by itself";
    view->SetStoryShowType(1);
    view->SwitchFunction(symbolMode);
    click(0);
    view->ChangeSymbol(nullptr, 3, 122, u"4001"_s, {});
    EXPECT_EQ(story(), QString()) << "the story of a row that is gone goes with it";
}

// --- The user's ticks ---

TEST_F(ListsInStep, TheWarrantModeChangesNoTick) {
    addTold(1, today, 10, 1);
    addTold(52, today, 10, 2);
    writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\nShowNormalSearch=1\n");
    openShown({{u"Sheet0ServiceCheck1"_s, true}, {u"Sheet0ServiceCheck2"_s, true}});
    const std::set<unsigned char> registered = backEnd.registrations[view.get()];
    view->SwitchFunction(warrantMode);
    backEnd.asked.clear();
    for (int command = ids::firstServiceCommand; command <= ids::lastServiceCommand; ++command)
        view->onCommand(command);
    view->onCommand(ids::serviceButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "the menu has nothing to offer";
    EXPECT_EQ(backEnd.asked.filter(u"table "_s), QStringList());
    EXPECT_EQ(titles(warrantMode), QStringList{u"52-2"_s});
    MemoryCfgIO saved;
    view->SaveViewInfo(&saved, u"Layout"_s, 0, 0);
    EXPECT_TRUE(saved.values[u"Sheet0ServiceCheck2"_s].toBool());
    EXPECT_FALSE(saved.values[u"Sheet0ServiceCheck16"_s].toBool());
    EXPECT_FALSE(saved.values[u"Sheet0ServiceCheck52"_s].toBool());

    view->SwitchFunction(0);
    EXPECT_EQ(ticked(), (std::set<int>{1, 2}));
    std::set<unsigned char> withWarrants = registered;
    withWarrants.insert(52);
    EXPECT_EQ(backEnd.registrations[view.get()], withWarrants);
    view->onCommand(ids::serviceButton);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().front()->isEnabled());
    QApplication::activePopupWidget()->close();
    view->onCommand(ids::firstServiceCommand);
    EXPECT_EQ(ticked(), std::set<int>{2});
}

TEST_F(ListsInStep, AServiceMenuOnShowGoesGreyWithTheWarrantMode) {
    openShown();
    view->onCommand(ids::serviceButton);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const int mode : {warrantMode, 3}) {
        view->SwitchFunction(mode);
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            EXPECT_EQ(action->isEnabled(), mode != warrantMode);
            EXPECT_TRUE(action->isChecked()) << "the marks are the user's own";
        }
    }
    menu->close();
}

TEST_F(ListsInStep, TheOpenServiceMenuTicksAllAndGoesBackToWhatWasTicked) {
    openShown({{u"KeepServicesOpen"_s, true}});
    view->onCommand(ids::firstServiceCommand);
    const std::set<int> before = ticked();
    view->onCommand(ids::serviceButton);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    const QList<QAction*> actions = menu->actions();
    const auto trigger = [&actions](QLatin1StringView text) {
        for (QAction* action : actions) {
            if (action->text() == text)
                action->trigger();
        }
    };
    trigger(keys::allServices);
    EXPECT_GT(ticked().size(), before.size());
    trigger(keys::servicesAsBefore);
    EXPECT_EQ(ticked(), before);
    menu->close();
}

TEST_F(ListsInStep, AServiceThatComesIsTakenUpBehindTheOthers) {
    const struct {
        const char* what;
        bool wants;
        int mode;
        std::int32_t number;
    } cases[] = {{"ticked", true, 0, 1},
                 {"left alone", false, 0, 2},
                 {"while warrants are shown", true, warrantMode, 3}};
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        backEnd.services = {1, 2, 52};
        openShown({{u"TickNewServices"_s, one.wants}, {u"KeepServicesOpen"_s, true}});
        view->SwitchFunction(one.mode);
        view->onCommand(ids::serviceButton);
        backEnd.services = {1, 2, 52, 200};
        addTold(200, today, 10, one.number);
        view->reloadServices();
        view->reloadServices();
        EXPECT_EQ(backEnd.registrations[view.get()].contains(200), one.wants);
        view->SwitchFunction(0);
        EXPECT_EQ(ticked().contains(200), one.wants);
        EXPECT_EQ(titles(0).contains(u"200-%1"_s.arg(one.number)), one.wants && one.mode == 0);
        push(200, 9, 20, 30 + one.number);
        EXPECT_EQ(titles(0).contains(u"pushed %1"_s.arg(30 + one.number)), one.wants);
        view->onCommand(ids::serviceButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        QStringList entries;
        for (const QAction* action : menu->actions()) {
            if (action->isCheckable())
                entries += QString::number(action->data().toInt() - ids::firstServiceCommand);
        }
        EXPECT_EQ(entries, (QStringList{u"0"_s, u"1"_s, u"3"_s})) << "the others keep their commands";
        menu->close();
        view->onCommand(ids::firstServiceCommand + 3);
        EXPECT_NE(ticked().contains(200), one.wants);
        view.reset();
    }
}

TEST_F(ListsInStep, OtherListsKeepToTheTicksWhileWarrantsAreShown) {
    addTold(1, today, 10, 1, 1, u"2330"_s);
    addTold(1, today, 5, 2, 1, u"6214"_s);
    openShown({{u"SymbolID"_s, u"2330"_s}});
    for (const int mode : {categoryMode, symbolMode, warrantMode})
        view->SwitchFunction(mode);
    const CHeadlineTableInfo category{1, 0, u"1"_s};
    view->vRecvCatHeadlineTableRecovery(&category);
    EXPECT_EQ(titles(categoryMode).size(), 2) << "an answer is put in for the services that are ticked";
    view->ChangeSymbol(view.get(), 0, 16, u"6214"_s, {});
    EXPECT_EQ(view->iGetHeadlineTableSize(symbolMode), 1);
}

// --- Topics of warrants and of other news ---

TEST_F(ListsInStep, ATopicIsNamedByItsServiceWhateverIsShown) {
    addTold(1, today, 10, 1, 2);
    addTold(52, today, 10, 2, 1);
    backEnd.searchTables[52] = {{localTime(2026, 3, 2, 9, 10), 2, 52, 0, 0}};
    openShown();
    const auto topics = [this](int list) {
        QStringList result;
        const CSuperSheetWnd* sheet = view->sheetOf(list);
        for (int row = 0; row < sheet->rowCount(); ++row)
            result.append(cellText(*sheet, row, "category"_L1));
        return result;
    };
    view->SwitchFunction(warrantMode);
    push(1, 9, 20, 3);
    view->SwitchFunction(0);
    EXPECT_EQ(topics(0), (QStringList{u"Markets"_s, u"Economy"_s}));
    push(52, 9, 21, 4);
    backEnd.categories[52].push_back({u"2"_s, u"Expiry"_s});
    CHeadline expiry;
    expiry.service = 52;
    expiry.time = localTime(2026, 3, 2, 9, 22);
    expiry.sequence = 5;
    expiry.categoryId = 2;
    view->RecvNewHeadLine(&expiry, u"2"_s, {});
    EXPECT_EQ(topics(warrantMode), (QStringList{u"Expiry"_s, u"Issue"_s, u"Issue"_s}))
        << "a topic that is new while the view is open";
    expiry.sequence = 6;
    expiry.categoryId = 99;
    view->RecvNewHeadLine(&expiry, u"99"_s, {});
    EXPECT_EQ(topics(warrantMode)[1], u"IDS_NEWSCTRLVIEW_STRING_RECOVER");

    view->SwitchFunction(3);
    CSearch condition;
    condition.keywords = {u"x"_s};
    condition.method = 1;
    view->RespSearchHeadLineTable(condition, 52);
    EXPECT_EQ(topics(3).filter(u"Markets"_s), QStringList());
}

// --- The symbol of a linked view ---

TEST_F(ListsInStep, TheCombosNameTheSymbolOfTheList) {
    addTold(1, today, 10, 1, 1, u"2330"_s);
    addTold(1, today, 5, 2, 1, u"4001"_s);
    openShown({{u"SymbolID"_s, u"2330"_s}});
    view->setLinkGroup(3);
    view->SwitchFunction(symbolMode);
    view->SwitchFunction(0);
    view->ChangeSymbol(nullptr, 3, 122, u"4001"_s, {});
    push(1, 9, 30, 7, u"2330"_s);
    EXPECT_EQ(view->iGetHeadlineTableSize(symbolMode), 1) << "news of the symbol that was";
    view->SwitchFunction(symbolMode);
    EXPECT_EQ(symbolRows(), QStringList{u"1-2"_s});
    EXPECT_EQ(combos(), u"興櫃股票 / 4001 Young Board");
    push(1, 9, 31, 8, u"2330"_s);
    push(1, 9, 32, 9, u"4001"_s);
    EXPECT_EQ(symbolRows(), (QStringList{u"pushed 9"_s, u"1-2"_s}));

    view->SwitchFunction(0);
    view->ChangeSymbol(nullptr, 3, 1, u"TXF"_s, {});
    view->SwitchFunction(symbolMode);
    EXPECT_EQ(combo(ids::symbolCombo).currentText(), QString()) << "a symbol that the combos do not have";
    view->SwitchFunction(0);
    view->ChangeSymbol(nullptr, 3, 16, u"2330"_s, {});
    view->SwitchFunction(symbolMode);
    EXPECT_EQ(combos(), u"台灣證券 / 2330 Aster Chips");
}

TEST_F(ListsInStep, ALinkedSymbolIsReadOnce) {
    openShown({{u"SymbolID"_s, u"2330"_s}, {u"Sheet0ServiceCheck1"_s, true}});
    view->SwitchFunction(symbolMode);
    backEnd.asked.clear();
    view->ChangeSymbol(view.get(), 0, 122, u"4001"_s, {});
    EXPECT_EQ(backEnd.asked.filter(u"table "_s), QStringList{u"table 1 symbol 4001"_s});
}

TEST_F(ListsInStep, ASymbolOfAnotherMarketIsThereAgainAfterARestart) {
    addTold(1, today, 5, 2, 1, u"4001"_s);
    openShown({{u"SymbolID"_s, u"2330"_s}});
    view->SwitchFunction(symbolMode);
    view->ChangeSymbol(view.get(), 0, 122, u"4001"_s, {});
    MemoryCfgIO saved;
    view->SaveViewInfo(&saved, u"Layout"_s, 0, 0);
    EXPECT_EQ(saved.values[u"SymbolService"_s], 122);
    openShown(saved.values);
    EXPECT_EQ(combos(), u"興櫃股票 / 4001 Young Board");
    EXPECT_EQ(symbolRows(), QStringList{u"1-2"_s});
    MemoryCfgIO unseen;
    saved.values[u"FocusedTab"_s] = 0;
    openShown(saved.values);
    view->SaveViewInfo(&unseen, u"Layout"_s, 0, 0);
    EXPECT_EQ(unseen.values[u"SymbolService"_s], 122) << "also when the mode was not shown";
    EXPECT_EQ(unseen.values[u"SymbolID"_s], u"4001"_s);

    saved.values[u"FocusedTab"_s] = symbolMode;
    for (const QVariant& nonsense : {QVariant(), QVariant(-1), QVariant(256), QVariant(u"x"_s)}) {
        saved.values[u"SymbolService"_s] = nonsense;
        openShown(saved.values);
        EXPECT_EQ(combos(), u"台灣證券 / 6214 Lantern Foods") << "without it as ever";
    }
}

TEST_F(ListsInStep, SymbolsThatComeWhileTheModeIsShownFillItsCombos) {
    const auto all = std::exchange(backEnd.symbols, {});
    addTold(1, today, 5, 2, 1, u"2330"_s);
    openShown({{u"SymbolID"_s, u"2330"_s}});
    view->SwitchFunction(symbolMode);
    ASSERT_EQ(view->currentDataState(), DataState::NotSupported);
    EXPECT_FALSE(isShown(ids::serviceButton));
    backEnd.symbols[16] = all.at(16);
    view->vDoSymbolUpdate({{16, u"#001"_s}, {16, u"2330"_s}});
    EXPECT_EQ(view->currentDataState(), DataState::Normal);
    EXPECT_EQ(combos(), u"台灣證券 / 2330 Aster Chips");
    EXPECT_EQ(symbolRows(), QStringList{u"1-2"_s});
    EXPECT_TRUE(isShown(ids::serviceCombo) && isShown(ids::symbolCombo));
    EXPECT_FALSE(view->sheetOf(symbolMode)->isHidden());

    view->SwitchFunction(0);
    EXPECT_TRUE(isShown(ids::serviceButton));
    backEnd.symbols[122] = all.at(122);
    view->vDoSymbolUpdate({{16, u"6214"_s}, {122, u"4001"_s}});
    EXPECT_EQ(combo(ids::serviceCombo).count(), 2);
    EXPECT_EQ(combos(), u"台灣證券 / 2330 Aster Chips") << "the choice stays";
    EXPECT_FALSE(isShown(ids::serviceCombo)) << "another mode is shown";
}

TEST_F(ListsInStep, NewsOfTheLinkedSymbolIsReadAtEverySwitch) {
    class LinkNews : public CSyncInfo {
    public:
        LinkNews() { setSettingCFG(this); }
        QString SYS_cszGetCurrentSymbol(unsigned char) override { return u"2330"_s; }
        bool SYS_bGetIsLinkNews() override { return true; }
    } sync;
    addTold(1, today, 5, 1, 1, u"2330"_s);
    openShown();
    EXPECT_EQ(symbolRows(), QStringList{u"1-1"_s});
    view->SwitchFunction(0);
    addTold(1, today, 6, 2, 1, u"2330"_s);
    view->SwitchFunction(symbolMode);
    EXPECT_EQ(symbolRows(), (QStringList{u"1-2"_s, u"1-1"_s}));
    view.reset();
}

}  // namespace wirepane
