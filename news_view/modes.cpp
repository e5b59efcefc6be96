// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/modes.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "news_view/application_switches.h"
#include "news_view/control_set.h"
#include "news_view/mode_loading.h"
#include "news_view/mode_table.h"
#include "news_view/news_services.h"
#include "news_view/story_stage.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

namespace wirepane {

Modes::Modes(ViewContext& context, const CommonParts& commonParts, StoryStage& storyStage, Calls atASwitch)
    : view(context), parts(commonParts), stage(storyStage), calls(std::move(atASwitch)) {}

void Modes::switchTo(ListIndex next) {
    if (!stage.canShow())
        return;
    // The warrant mode clears the ticks for its own purposes: the user's choice comes back first.
    if (mode == ListIndex::Warrant)
        parts.services.restoreSelection();
    showParts(next);
    mode = next;
    parts.settings.focusedTab = static_cast<int>(mode);
    if (parts.settings.options[ViewOption::SearchLine])
        calls.place();
    stage.hideDialog();
    catchUp();
    if (view.paneShowsStories()) {
        view.clearStory();
        if (mode != ListIndex::Category)
            view.showStory();
    }
    const ListIndex toLoad = ModeLoading::loadingMode(mode, parts.switches);
    parts.services.clearWarrantSelection();
    if (toLoad == ListIndex::Warrant && parts.lists[toLoad].grid() == nullptr)
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
    parts.controls.showControlsOf(of);
    for (const ListKind& kind : listKinds) {
        if (CSuperSheetWnd* grid = parts.lists[kind.index].grid())
            grid->setVisible(kind.index == of);
    }
    if (of == ListIndex::Symbol)
        calls.hideWhatSymbolsLack();
}

void Modes::catchUp() {
    const bool isFiltered =
        parts.settings.options[ViewOption::RebuildFilteredLists] && parts.lists.hasOthersFilter(mode);
    if (parts.lists.hasMissed(mode) || isFiltered)
        calls.readAgain(mode);
}

void Modes::takeServicesOver(ListIndex toLoad) {
    if (toLoad == ListIndex::WarningTerm)
        return;
    parts.services.copyToSaved();
    if (toLoad == ListIndex::Warrant) {
        parts.services.deselectRows();
        return;
    }
    if (parts.services.selectedCount() == 0 && !parts.services.currentServices().empty())
        parts.services.selectInBoth(0);
}

void Modes::load(ListIndex toLoad) {
    const bool hasAllNews = (parts.settings.functions & modeOf(ListIndex::All).maskBit) != 0;
    if (toLoad == ListIndex::Category && hasAllNews && parts.loading.takeCategoryCatalogue())
        calls.fillCategories();
    if (toLoad == ListIndex::Symbol && hasAllNews)
        calls.offerSymbols();
    if (parts.loading.takeLoad(toLoad))
        read(toLoad);
    if (toLoad == ListIndex::Category)
        view.showStory();
}

void Modes::takeKeyboard() {
    CSuperSheetWnd* grid = parts.lists[mode].grid();
    if (parts.newsType == NewsType::TwoColumns || grid == nullptr)
        return;
    grid->setFocus();
    grid->viewport()->update();
}

bool Modes::read(ListIndex list) {
    if (list == ListIndex::WarningTerm || parts.lists[list].grid() == nullptr)
        return false;
    switch (list) {
        case ListIndex::Symbol:
            return calls.readSymbolNews();
        case ListIndex::Search: {
            const bool isOfWarningTerms = parts.switches.showWarningSearch &&
                                          (mode == ListIndex::WarningTerm || parts.switches.showNormalSearch);
            parts.lists[isOfWarningTerms ? ListIndex::WarningTerm : ListIndex::Search].refill();
            return true;
        }
        case ListIndex::Category:
            parts.lists[list].refill();
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
    parts.services.select(static_cast<std::size_t>(parts.services.indexOfWarrants()), true);
    calls.registerWarrants();
    if (!calls.readDay(ListIndex::Warrant))
        view.setStatusText({});
    return true;
}

}  // namespace wirepane
