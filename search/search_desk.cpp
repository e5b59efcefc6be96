// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/search_desk.h"

#include "headline_list/language_keys.h"

#include <algorithm>
#include <utility>

void SearchDesk::vRestore(SearchMemory kept) {
    memory = std::move(kept);
    if (const CSearch* inForce = memory.warnings.Chosen())
        warningTerm = *inForce;
}

CSearch* SearchDesk::ConditionOf(ListIndex mode) {
    switch (mode) {
        case ListIndex::Search:
            return &ordinary;
        case ListIndex::WarningTerm:
            return &warningTerm;
        default:
            return nullptr;
    }
}

CSearch SearchDesk::FoundUnder(ListIndex list) const {
    CSearch found;
    if (list == ListIndex::Search)
        found = sentOrdinary;
    else if (list == ListIndex::WarningTerm)
        found = sentWarningTerm;
    found.keywordSearch = !found.keywords.empty();
    return found;
}

std::optional<TableKind> SearchDesk::KindOfAnswer(const CSearch& condition) const {
    if (condition == ordinary || condition == warningTerm)
        return TableKind::Search;
    if (condition == second)
        return TableKind::SecondSearch;
    return std::nullopt;
}

void SearchDesk::vTakeQuickSearch(const QString& word, std::int64_t now) {
    KeepKeyword(history, word);
    ordinary.scope = 0;
    ordinary.method = 1;
    ordinary.time = now;
    ordinary.keywords = {word};
}

bool SearchDesk::bTakeSearchText(const QString& text) {
    return std::exchange(previousText, text) != text;
}

QString SearchDesk::WaitText(const CSearch& condition) const {
    constexpr qsizetype longest = 1000;
    QString text = LangText(backEnd, keys::searching);
    for (const QString& keyword : condition.keywords) {
        if (text.size() > longest)
            break;
        text += u' ' + keyword.left(longest);
    }
    return text.left(longest);
}

void SearchDesk::vCompleteMethod(CSearch& condition) {
    if (condition.keywords.size() >= 2 && condition.method == 0)
        condition.method = 1;
}

void SearchDesk::vSend(ListIndex mode, std::span<ServiceEntry> services, bool awaited) {
    const CSearch* active = ConditionOf(mode);
    if (active == nullptr)
        return;
    const CSearch condition = *active;
    (mode == ListIndex::Search ? sentOrdinary : sentWarningTerm) = condition;
    for (ServiceEntry& entry : services) {
        entry.searchPending = entry.selected && awaited;
        if (entry.selected)
            backEnd.BKQNEWS_bSearchNews(entry.service, searchKind, condition);
    }
}

void SearchDesk::vNarrow(const CSearch& condition, const CSymbolInfo& symbol) {
    // All of them are found first: `condition` may be one of those that change.
    std::vector<CSearch*> equal;
    for (CSearch* stored : {&ordinary, &second, &warningTerm}) {
        if (*stored == condition)
            equal.push_back(stored);
    }
    for (CSearch* stored : equal)
        stored->symbols = {symbol};
}

bool TakeAnswer(std::span<ServiceEntry> services, unsigned char service) {
    bool others = false;
    for (ServiceEntry& entry : services) {
        entry.searchPending &= entry.service != service;
        others |= entry.searchPending;
    }
    return others;
}

bool ForgetPending(std::span<ServiceEntry> services) {
    bool any = false;
    for (ServiceEntry& entry : services)
        any |= std::exchange(entry.searchPending, false);
    return any;
}
