// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the user has sent again: headlines, tables and stories, and the back end's answers.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/clock.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// --- Commands ---

void TRVNewsCtrlView::OnReCoverHeadline() {
    HeadlineList* list = CurrentList();
    if (list == nullptr || list->pGetGrid() == nullptr)
        return;
    std::vector<int> rows;
    list->pGetGrid()->vGetAllSelectionNdx(rows);
    if (list->bReCoverHeadline(rows))
        vUpdateView();
}

void TRVNewsCtrlView::OnReCoverHeadlineTable() {
    const auto list = ListOfNumber(currentMode);
    const auto category = SelectedCategoryId();
    for (const ServiceEntry& entry : services.Entries()) {
        if (!entry.selected)
            continue;
        if (list == ListIndex::All)
            backEnd.BKNEWS_bReRequestHeadlineTable(entry.service, static_cast<int>(TableKind::ByDate),
                                                   PickedDateKey());
        else if (list == ListIndex::Category && category)
            backEnd.BKNEWS_bReRequestHeadlineTable(entry.service, static_cast<int>(TableKind::ByCategory),
                                                   *category);
        else if (list == ListIndex::Symbol)
            backEnd.BKNEWS_bReRequestHeadlineTable(entry.service, symbols.Current());
    }
}

void TRVNewsCtrlView::OnReCoverStory() {
    const CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (sheet == nullptr)
        return;
    const int row = sheet->cptGetFocusNdx().y();
    int position = -1;
    if (NewsStoryView* pane = stage.pGetPane(); bPaneShowsStories() && pane != nullptr) {
        pane->SetHeadLinePos(row);
        position = pane->GetHeadLinePos();
    } else if (TRVNewsStory* dialog = stage.pGetDialog(); !bPaneShowsStories() && dialog != nullptr) {
        dialog->SetHeadLinePos(row);
        position = dialog->GetHeadLinePos();
    }
    CHeadlineTable entry;
    if (bGetHeadlineTable(entry, currentMode, position))
        backEnd.BKQNews_bReRequestHeadlineStory(entry);
}

// --- Tables that were sent again ---

void TRVNewsCtrlView::vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    constexpr int dateKeyLength = 8;
    if (info == nullptr || !bIsServiceSelected(info->service) ||
        (info->key.size() == dateKeyLength && info->key != PickedDateKey()))
        return;
    const auto current = ListOfNumber(currentMode);
    const bool warrants = info->service == warrantService;
    if (!warrants && current != ListIndex::All && current != ListIndex::Relation)
        return;
    const ListIndex list = warrants ? ListIndex::Warrant : *current;
    const auto rebuild = [&] {
        if (warrants)
            return lists.bRebuildWarrant(info->key);
        if (list == ListIndex::All)
            return lists.bRebuild(list, TableKind::ByDate, info->key);
        return lists.bRebuild(list, TableKind::ByDate, DateKey(host_clock::today()), &tickedKeySets);
    };
    const bool taken = bTakeTableAgain(*info, list, rebuild, {keys::invalidDate, {}});
    if (taken && switches.showWarningSearch)
        lists.bRebuildAsCopy(ListIndex::WarningTerm, ListIndex::All);
}

void TRVNewsCtrlView::vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info == nullptr || SelectedCategoryId() != info->key || !bIsServiceSelected(info->service))
        return;
    const auto rebuild = [&] {
        return lists.bRebuild(ListIndex::Category, TableKind::ByCategory, info->key);
    };
    bTakeTableAgain(*info, ListIndex::Category, rebuild, {keys::classNotFound, u" "_s});
}

void TRVNewsCtrlView::vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    const CSymbolInfo symbol =
        symbolFromLink ? symbols.SelectedSymbol().value_or(CSymbolInfo()) : symbols.Current();
    if (info == nullptr || symbol.code.isEmpty() || symbol.code != info->key ||
        !bIsServiceSelected(info->service))
        return;
    const auto rebuild = [&] { return lists.bRebuildSymbol(symbol); };
    bTakeTableAgain(*info, ListIndex::Symbol, rebuild, {keys::symbolNewsNotFound, u" "_s});
}

template <class Rebuild>
bool TRVNewsCtrlView::bTakeTableAgain(const CHeadlineTableInfo& info, ListIndex list, Rebuild rebuild,
                                      const NothingFound& nothingFound) {
    if (List(list).pGetGrid() == nullptr)
        return false;
    vForgetShownStory();
    if (rebuild() || info.status >= 0)
        return true;
    QString name;
    backEnd.BKQNEWS_bGetShortNameByService(name, info.service);
    if (!statusText.contains(name))
        vSetStatusText(statusText + name + QLatin1Char(' '));
    vTipOver(list, statusText + nothingFound.separator + LangText(backEnd, nothingFound.key));
    return false;
}

bool TRVNewsCtrlView::bIsServiceSelected(unsigned char service) const {
    return std::any_of(services.Entries().begin(), services.Entries().end(),
                       [&](const ServiceEntry& entry) { return entry.service == service && entry.selected; });
}
