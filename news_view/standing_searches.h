// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/relation_matcher.h"
#include "host/contract/query/search_query.h"
#include "news_view/common_parts.h"

#include <functional>
#include <optional>
#include <vector>

class CNewsKey;
struct CSearch;

namespace wirepane {
class HeadlineLooks;
class ListNotices;
class SearchDesk;
class ViewContext;

// The searches that stand for longer: the key sets that fill the relation-search list, the warning terms, and
// what empty lists say about how they are filled. Interface thread only.
class StandingSearches {
public:
    struct Calls {
        std::function<void()> readRelationList;
        std::function<void()> sendSearch;  // that of the shown list
    };
    StandingSearches(ViewContext& context, const CommonParts& parts, SearchDesk& desk, Calls calls);

    // The user composes key sets and ticks those whose news the relation-search list is to hold. None is
    // ticked any more when he cancels.
    void composeKeySets();
    // Keeps one more key set, of any news type, which wants what the condition's keywords say of headlines;
    // it alone is ticked. Nothing: done; else why a key set cannot be of such a condition.
    std::optional<QueryFault> addKeySet(const CSearch& condition);
    const RelationMatcher& tickedKeySets() const { return ticked; }
    // While the relation-search list is shown, every reloaded table is filtered by its key sets: hosts rely
    // on it.
    const RelationMatcher* filterOfShownList() const;

    // The user manages the warning terms; unless he cancels the chosen one is what the warning-term mode
    // sends, and it is sent. The search dialog starts from it then.
    void manageWarningTerms();
    // Keeps one more warning term, which is chosen; not sent yet.
    void addWarningTerm(const CSearch& condition);

    // What an empty list says: how the user fills it.
    void loadHints();
    // Rows that were there before stay when no key set is ticked any more: that is told.
    void tell(ListNotices& notices) const;

private:
    void setTicked(const std::vector<CNewsKey>& keySets);
    void rehearse(const CNewsKey& keySet, QWidget* over);
    // Null: the host takes no alerts from its views.
    HeadlineLooks* alerts() const;

    ViewContext& context;
    const CommonParts parts;
    SearchDesk& desk;
    const Calls calls;
    RelationMatcher ticked;  // built anew whenever they change
};

}  // namespace wirepane
