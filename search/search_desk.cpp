// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/search_desk.h"

#include "headline_list/language_keys.h"
#include "headline_list/list_index.h"
#include "headline_list/service_entry.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/search_choices.h"

#include <algorithm>
#include <utility>

namespace wirepane {

void SearchDesk::restore(SearchMemory kept) {
    memory = std::move(kept);
    if (const CSearch* inForce = memory.warnings.chosenItem())
        warningTerm = *inForce;
}

CSearch* SearchDesk::conditionOf(ListIndex mode) {
    switch (mode) {
        case ListIndex::Search:
            return &ordinary;
        case ListIndex::WarningTerm:
            return &warningTerm;
        default:
            return nullptr;
    }
}

const SearchDesk::Sent* SearchDesk::sentFrom(ListIndex list) const {
    switch (list) {
        case ListIndex::Search:
            return &sentOrdinary;
        case ListIndex::WarningTerm:
            return &sentWarningTerm;
        default:
            return nullptr;
    }
}

bool SearchDesk::isAwaited(const CSearch& condition) const {
    return std::any_of(due.begin(), due.end(), [&](const auto& search) { return search.first == condition; });
}

CSearch SearchDesk::foundUnder(ListIndex list) const {
    const Sent* sent = sentFrom(list);
    CSearch found = sent != nullptr ? sent->condition : CSearch();
    found.keywordSearch = !found.keywords.empty();
    return found;
}

std::optional<CSymbolInfo> SearchDesk::narrowing(ListIndex list) const {
    const Sent* sent = sentFrom(list);
    if (sent == nullptr)
        return std::nullopt;
    const CSearch& next = list == ListIndex::Search ? ordinary : warningTerm;
    for (const CSearch* condition : {&sent->condition, &next}) {
        if (!condition->symbols.empty())
            return condition->symbols.front();
    }
    return std::nullopt;
}

void SearchDesk::endNarrowing(ListIndex list) {
    const Sent* sent = sentFrom(list);
    if (sent == nullptr)
        return;
    CSearch& condition = *conditionOf(list);
    if (!sent->condition.symbols.empty())
        condition = sent->condition;
    condition.symbols.clear();
}

std::optional<SearchDesk::Moment> SearchDesk::sentAt(ListIndex list) const {
    const Sent* sent = sentFrom(list);
    return sent != nullptr ? sent->at : std::nullopt;
}

SearchDesk::Course SearchDesk::courseOf(ListIndex list) const {
    const Sent* sent = sentFrom(list);
    if (sent == nullptr || !sent->at)
        return {};
    return {true,          isAwaited(sent->condition), std::max(sent->at->time, sent->answeredAt), sent->took,
            sent->isTyped, sent->isNewestOnly};
}

void SearchDesk::endSearch(ListIndex list) {
    const Sent* sent = sentFrom(list);
    if (sent == nullptr)
        return;
    std::erase_if(due, [&](const auto& search) { return search.first == sent->condition; });
    (list == ListIndex::Search ? sentOrdinary : sentWarningTerm) = {};
    *conditionOf(list) = {};
}

std::optional<TableKind> SearchDesk::kindOfAnswer(const CSearch& condition) const {
    if (condition == ordinary || condition == warningTerm)
        return TableKind::Search;
    if (condition == second)
        return TableKind::SecondSearch;
    return std::nullopt;
}

CSearch SearchDesk::quickSearch(const QString& word, std::int64_t now, SearchLanguage language) const {
    CSearch search = ordinary;
    if (search.keywords != std::vector{word} || search.language != language)
        search.symbols.clear();
    search.language = language;
    search.scope = numberOf(SearchScope::Headlines);
    search.method = numberOf(SearchMethod::All);
    search.time = now;
    search.keywords = {word};
    return search;
}

void SearchDesk::takeQuickSearch(const QString& word, std::int64_t now, SearchLanguage language) {
    keepKeyword(history, word);
    ordinary = quickSearch(word, now, language);
}

void SearchDesk::takeTyped(const CSearch& condition, const Moment& now, std::chrono::milliseconds took,
                           bool isAll) {
    std::erase_if(due, [&](const auto& search) { return search.first == sentOrdinary.condition; });
    ordinary = condition;
    sentOrdinary = {condition, now, {}, now.time, took, true, !isAll};
}

void SearchDesk::noteNewestOnly(ListIndex list) {
    if (list == ListIndex::Search)
        sentOrdinary.isNewestOnly = true;
    else if (list == ListIndex::WarningTerm)
        sentWarningTerm.isNewestOnly = true;
}

bool SearchDesk::takeSearchText(const QString& text) {
    return std::exchange(previousText, text) != text;
}

QString SearchDesk::waitText(const CSearch& condition) const {
    constexpr qsizetype longest = 1000;
    QString text = langText(backEnd, keys::searching);
    for (const QString& keyword : condition.keywords) {
        if (text.size() > longest)
            break;
        text += u' ' + keyword.left(longest);
    }
    return text.left(longest);
}

void SearchDesk::completeMethod(CSearch& condition) {
    if (condition.keywords.size() >= 2 && condition.method == numberOf(SearchMethod::NotSet))
        condition.method = numberOf(SearchMethod::All);
}

void SearchDesk::sendSearch(ListIndex mode, std::span<ServiceEntry> services, bool awaited,
                            const Moment& now) {
    const CSearch* active = conditionOf(mode);
    if (active == nullptr)
        return;
    const CSearch condition = *active;
    Sent& sent = mode == ListIndex::Search ? sentOrdinary : sentWarningTerm;
    std::erase_if(due, [&](const auto& search) { return search.first == sent.condition; });
    sent = {condition, now, std::chrono::steady_clock::now(), 0, std::nullopt, false, false};
    for (ServiceEntry& entry : services) {
        entry.searchPending = entry.selected && awaited;
        if (entry.selected)
            ask(condition, entry.service);
    }
}

void SearchDesk::ask(const CSearch& condition, unsigned char service) {
    const std::pair search(condition, service);
    if (std::find(due.begin(), due.end(), search) == due.end())
        due.push_back(search);
    // Every search is sent with the number of the same list.
    backEnd.BKQNEWS_bSearchNews(service, static_cast<int>(TableKind::Search), condition);
}

bool SearchDesk::takeAnswerDue(const CSearch& condition, unsigned char service, std::int64_t now) {
    const bool isDue = std::erase(due, std::pair(condition, service)) > 0;
    for (Sent* sent : {&sentOrdinary, &sentWarningTerm}) {
        if (!sent->at || !(sent->condition == condition))
            continue;
        sent->answeredAt = now;
        sent->isNewestOnly = sent->isNewestOnly && isAwaited(condition);
        if (isDue)
            sent->took = std::chrono::duration_cast<std::chrono::milliseconds>(
                std::chrono::steady_clock::now() - sent->begun);
    }
    return isDue;
}

void SearchDesk::narrow(const CSearch& condition, const CSymbolInfo& symbol, bool warningTermToo) {
    // All of them are found first: `condition` may be one of those that change.
    std::vector<CSearch*> equal;
    for (CSearch* stored : {&ordinary, &second, &warningTerm}) {
        if (*stored == condition && (stored != &warningTerm || warningTermToo))
            equal.push_back(stored);
    }
    for (CSearch* stored : equal)
        stored->symbols = {symbol};
}

bool markAnswered(std::span<ServiceEntry> services, unsigned char service) {
    bool others = false;
    for (ServiceEntry& entry : services) {
        entry.searchPending &= entry.service != service;
        others |= entry.searchPending;
    }
    return others;
}

bool forgetPending(std::span<ServiceEntry> services) {
    bool any = false;
    for (ServiceEntry& entry : services)
        any |= std::exchange(entry.searchPending, false);
    return any;
}

}  // namespace wirepane
