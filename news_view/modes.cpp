// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/modes.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "news_view/control_set.h"
#include "news_view/mode_loading.h"
#include "news_view/mode_table.h"
#include "news_view/news_services.h"
#include "news_view/story_stage.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

namespace {
constexpr int twoColumns = 1;  // the news type that never takes the keyboard
}

Modes::Modes(ViewContext& context, const CommonParts& commonParts, StoryStage& storyStage, Calls atASwitch)
    : view(context), parts(commonParts), stage(storyStage), calls(std::move(atASwitch)) {}

void Modes::switchTo(ListIndex next) {
    if (!stage.bCanShow())
        return;
    // The warrant mode clears the ticks for its own purposes: the user's choice comes back first.
    if (mode == ListIndex::Warrant)
        parts.services.vRestoreSelection();
    showParts(next);
    mode = next;
    parts.settings.focusedTab = static_cast<int>(mode);
    stage.vHideDialog();
    catchUp();
    if (view.paneShowsStories()) {
        view.clearStory();
        if (mode != ListIndex::Category)
            view.showStory();
    }
    const ListIndex toLoad = ModeLoading::LoadingMode(mode, parts.switches);
    parts.services.vClearWarrantSelection();
    if (toLoad == ListIndex::Warrant && parts.lists[toLoad].pGetGrid() == nullptr)
        return;
    takeServicesOver(toLoad);
    calls.servicesTakenOver();
    load(toLoad);
    view.placeNotices();
    parts.window.update();
    view.refresh();
    takeKeyboard();
}

void Modes::showParts(ListIndex of) {
    parts.controls.ShowHideCtrObject(of);
    for (const ListKind& kind : listKinds) {
        if (CSuperSheetWnd* grid = parts.lists[kind.index].pGetGrid())
            grid->setVisible(kind.index == of);
    }
    if (of == ListIndex::Symbol)
        calls.hideWhatSymbolsLack();
}

void Modes::catchUp() {
    const bool isFiltered =
        parts.settings.options[ViewOption::RebuildFilteredLists] && parts.lists.bHasOthersFilter(mode);
    if (parts.lists.bHasMissed(mode) || isFiltered)
        calls.readAgain(mode);
}

void Modes::takeServicesOver(ListIndex toLoad) {
    if (toLoad == ListIndex::WarningTerm)
        return;
    parts.services.vCopyToSaved();
    if (toLoad == ListIndex::Warrant) {
        parts.services.vClearSelection();
        return;
    }
    if (parts.services.iSelectedCount() == 0 && !parts.services.Entries().empty())
        parts.services.vSelectInBoth(0);
}

void Modes::load(ListIndex toLoad) {
    const bool hasAllNews = (parts.settings.functions & ModeOf(ListIndex::All).maskBit) != 0;
    if (toLoad == ListIndex::Category && hasAllNews && parts.loading.bTakeCategoryCatalogue())
        calls.fillCategories();
    if (toLoad == ListIndex::Symbol && hasAllNews)
        calls.offerSymbols();
    if (parts.loading.bTakeLoad(toLoad))
        read(toLoad);
    if (toLoad == ListIndex::Category)
        view.showStory();
}

void Modes::takeKeyboard() {
    CSuperSheetWnd* grid = parts.lists[mode].pGetGrid();
    if (parts.newsType == twoColumns || grid == nullptr)
        return;
    grid->setFocus();
    grid->viewport()->update();
}

bool Modes::read(ListIndex list) {
    if (list == ListIndex::WarningTerm || parts.lists[list].pGetGrid() == nullptr)
        return false;
    switch (list) {
        case ListIndex::Symbol:
            return calls.readSymbolNews();
        case ListIndex::Search: {
            const bool isOfWarningTerms = parts.switches.showWarningSearch &&
                                          (mode == ListIndex::WarningTerm || parts.switches.showNormalSearch);
            parts.lists[isOfWarningTerms ? ListIndex::WarningTerm : ListIndex::Search].vRefill();
            return true;
        }
        case ListIndex::Category:
            parts.lists[list].vRefill();
            return true;
        case ListIndex::Warrant:
            return readWarrants();
        default:
            break;
    }
    const bool hasRows = calls.readDay(list);
    if (!hasRows)
        view.setStatusText({});
    return hasRows;
}

bool Modes::readWarrants() {
    parts.services.vSelect(static_cast<std::size_t>(parts.services.iGetWarrantIndex()), true);
    calls.registerWarrants();
    if (!calls.readDay(ListIndex::Warrant))
        view.setStatusText({});
    return true;
}
