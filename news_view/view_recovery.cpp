// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the user has sent again: headlines, tables and stories, and the back end's answers.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/clock.h"
#include "news_view/standing_searches.h"
#include "news_view/trv_news_ctrl_view.h"

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
        const unsigned char service = entry.service;
        QString key;
        bool isSent = false;
        if (list == ListIndex::All) {
            key = PickedDateKey();
            isSent =
                backEnd.BKNEWS_bReRequestHeadlineTable(service, static_cast<int>(TableKind::ByDate), key);
        } else if (list == ListIndex::Category && category) {
            key = *category;
            isSent =
                backEnd.BKNEWS_bReRequestHeadlineTable(service, static_cast<int>(TableKind::ByCategory), key);
        } else if (list == ListIndex::Symbol) {
            key = symbols.Current().code;
            isSent = backEnd.BKNEWS_bReRequestHeadlineTable(service, symbols.Current());
        }
        if (isSent)
            askedTables.emplace(*list, service, key);
    }
}

void TRVNewsCtrlView::OnReCoverStory() {
    const CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (sheet == nullptr)
        return;
    CHeadlineTable entry;
    if (bGetHeadlineTable(entry, currentMode, story.pointAt(sheet->cptGetFocusNdx().y())))
        backEnd.BKQNews_bReRequestHeadlineStory(entry);
}

// --- Tables that were sent again ---

// Only what this view has asked for puts its list to its top and is told of when it is missing. What another
// view asked for, or what the back end tells of by itself, leaves the reader where he is.
bool TRVNewsCtrlView::bTakeAsked(ListIndex list, const CHeadlineTableInfo& info) {
    return askedTables.erase({list, info.service, info.key}) > 0;
}

void TRVNewsCtrlView::vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    constexpr int dateKeyLength = 8;
    if (info == nullptr)
        return;
    const bool asked = bTakeAsked(ListIndex::All, *info);
    if (!asked && settings.options[ViewOption::ReadMissedTables]) {
        vTakeAnnouncedDate(*info);
        return;
    }
    if (!bIsServiceSelected(info->service) ||
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
        return lists.bRebuild(list, TableKind::ByDate, DateKey(host_clock::today()),
                              &standingSearches->tickedKeySets());
    };
    const bool taken = bTakeTableAgain(*info, list, asked, rebuild, {keys::invalidDate, {}});
    if (taken && switches.showWarningSearch)
        lists.bRebuildAsCopy(ListIndex::WarningTerm, ListIndex::All);
}

void TRVNewsCtrlView::vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info == nullptr)
        return;
    const bool asked = bTakeAsked(ListIndex::Category, *info);
    if (SelectedCategoryId() != info->key || !bIsServiceSelected(info->service))
        return;
    const auto rebuild = [&] {
        return lists.bRebuild(ListIndex::Category, TableKind::ByCategory, info->key);
    };
    if (!asked && settings.options[ViewOption::ReadMissedTables])
        vReadNowOrWhenShown(ListIndex::Category);
    else
        bTakeTableAgain(*info, ListIndex::Category, asked, rebuild, {keys::classNotFound, u" "_s});
}

void TRVNewsCtrlView::vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info == nullptr)
        return;
    const bool asked = bTakeAsked(ListIndex::Symbol, *info);
    const CSymbolInfo symbol = SymbolOfList();
    if (symbol.code.isEmpty() || symbol.code != info->key || !bIsServiceSelected(info->service))
        return;
    const auto rebuild = [&] { return lists.bRebuildSymbol(symbol); };
    if (!asked && settings.options[ViewOption::ReadMissedTables])
        vReadNowOrWhenShown(ListIndex::Symbol);
    else
        bTakeTableAgain(*info, ListIndex::Symbol, asked, rebuild, {keys::symbolNewsNotFound, u" "_s});
}

CSymbolInfo TRVNewsCtrlView::SymbolOfList() const {
    return symbolFromLink ? symbols.SelectedSymbol().value_or(CSymbolInfo()) : symbols.Current();
}

template <class Rebuild>
bool TRVNewsCtrlView::bTakeTableAgain(const CHeadlineTableInfo& info, ListIndex list, bool asked,
                                      Rebuild rebuild, const NothingFound& nothingFound) {
    if (List(list).pGetGrid() == nullptr)
        return false;
    const bool hasRows = asked ? rebuild() : readInPlace(list, rebuild);
    if (hasRows || info.status >= 0)
        return true;
    QString name;
    backEnd.BKQNEWS_bGetShortNameByService(name, info.service);
    if (!board.status().contains(name))
        setStatusText(WithServiceName(name));
    vTipOver(list, board.status() + nothingFound.separator + LangText(backEnd, nothingFound.key));
    return false;
}

QString TRVNewsCtrlView::WithServiceName(const QString& name) const {
    const QString before = board.status().trimmed();
    if (before.isEmpty() || !settings.options[ViewOption::SeparateServiceNames])
        return board.status() + name + QLatin1Char(' ');
    return before + LangText(backEnd, keys::betweenNames) + name + QLatin1Char(' ');
}

// What the user has ticked; the warrants are what the warrant mode has ticked for itself.
bool TRVNewsCtrlView::bIsServiceSelected(unsigned char service) const {
    const auto& entries = service == warrantService ? services.Entries() : services.Saved();
    return std::any_of(entries.begin(), entries.end(),
                       [&](const ServiceEntry& entry) { return entry.service == service && entry.selected; });
}

// --- Tables that the back end tells of by itself ---

void TRVNewsCtrlView::vTakeAnnouncedDate(const CHeadlineTableInfo& info) {
    const bool warrants = info.service == warrantService;
    if (!warrants && !bIsServiceSelected(info.service))
        return;
    if (info.key == PickedDateKey())
        vReadNowOrWhenShown(warrants ? ListIndex::Warrant : ListIndex::All);
    if (!warrants && info.key == DateKey(host_clock::today()))
        vReadNowOrWhenShown(ListIndex::Relation);
}

// A list that was never shown is read when it is; those of symbols and warrants are at every switch to them.
void TRVNewsCtrlView::vReadNowOrWhenShown(ListIndex list) {
    if (List(list).pGetGrid() == nullptr || !loading.bWasShown(list))
        return;
    if (currentMode == static_cast<int>(list))
        vReadAgain(list);
    else
        lists.vMissed(list);
}

void TRVNewsCtrlView::vReadAgain(ListIndex list) {
    readInPlace(list, [&] {
        switch (list) {
            case ListIndex::All:
                return lists.bRebuild(list, TableKind::ByDate, PickedDateKey());
            case ListIndex::Category:
                return lists.bRebuild(list, TableKind::ByCategory, SelectedCategoryId().value_or(QString()));
            case ListIndex::Symbol:
                return lists.bRebuildSymbol(SymbolOfList());
            case ListIndex::Relation:
                return lists.bRebuild(list, TableKind::ByDate, DateKey(host_clock::today()),
                                      &standingSearches->tickedKeySets());
            case ListIndex::Warrant:
                return lists.bRebuildWarrant(PickedDateKey());
            default:
                return false;
        }
    });
}

}
