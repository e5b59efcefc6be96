// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The service menu of the news view, and what a change of the chosen services reloads.
#include "headline_list/cell_texts.h"
#include "host/contract/clock.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "news_view/control_ids.h"
#include "news_view/standing_searches.h"
#include "news_view/trv_news_ctrl_view.h"

void TRVNewsCtrlView::OnSelectService() {
    const QWidget* button = GetDlgItem(this, ids::serviceButton);
    if (button != nullptr && !bServicesStandFast())
        serviceMenu->popup(button->mapToGlobal(button->rect().bottomLeft()));
}

void TRVNewsCtrlView::OnSelectCheckService(unsigned int id) {
    const std::size_t index = id - ids::firstServiceCommand;
    if (index >= services.Entries().size() || bServicesStandFast())
        return;
    const bool selected = services.Entries()[index].selected;
    const bool isLast = selected && services.iSelectedCount() < 2;
    if (!isLast) {
        services.vSelect(index, !selected);
        services.vCopyToSaved();
    }
    // Choosing an item has turned its check mark already: it is set to what holds, refused or not.
    vCheckServiceMenu();
    if (isLast)
        return;
    vReloadForServices();
    services.CheckRegisterService(*this);
    OnShowStory();
    update();
}

// The warrant mode has set the user's choice aside.
bool TRVNewsCtrlView::bServicesStandFast() const {
    return currentMode == static_cast<int>(ListIndex::Warrant);
}

void TRVNewsCtrlView::vCheckServiceMenu() {
    const QList<QAction*> actions = serviceMenu->actions();
    for (QAction* action : actions) {
        const auto service = static_cast<std::size_t>(action->data().toInt() - ids::firstServiceCommand);
        action->setChecked(services.Saved().at(service).selected);
        action->setEnabled(!bServicesStandFast());
    }
}

void TRVNewsCtrlView::vReloadForServices() {
    vChangeNewsTable(ListIndex::All, TableKind::ByDate, PickedDateKey());
    if (Sheet(static_cast<int>(ListIndex::Category)) != nullptr) {
        const auto* combo = controls.Find<SCComboBox>(ids::categoryCombo);
        vRefreshCategoryCombo(combo != nullptr ? combo->currentText() : QString());
    }
    if (symbols.SelectedSymbol())
        lists.bRebuildSymbol(symbols.Current(), standingSearches->filterOfShownList());
    vChangeNewsTable(ListIndex::Relation, TableKind::ByDate, DateKey(host_clock::today()));
    if (currentMode == static_cast<int>(ListIndex::Search) && Sheet(currentMode) != nullptr)
        OnSearch();
}

void TRVNewsCtrlView::vChangeNewsTable(ListIndex list, TableKind kind, const QString& key) {
    lists.bRebuild(list, kind, key, standingSearches->filterOfShownList());
}
