// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "headline_list/service_entry.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/search_condition.h"
#include "search/search_memory.h"

#include <QString>

#include <optional>
#include <span>
#include <vector>

// The searches of a view: their conditions, what has been sent and is still to be answered, and what is kept
// of them. Showing results is the view's affair. Interface thread only.
class SearchDesk {
public:
    explicit SearchDesk(BKQuoteInterface& newsBackEnd) : backEnd(newsBackEnd) {}

    CSearch edited;       // what the search dialogs start from
    CSearch ordinary;     // what the search mode sends
    CSearch second;       // answered as a table of its own kind; nothing sends it
    CSearch warningTerm;  // what the warning-term mode sends
    SearchMemory memory;

    // Takes over what was kept; the warning item in force becomes what the warning-term mode sends.
    void vRestore(SearchMemory kept);

    // The condition that a mode sends; null for a mode without searches.
    CSearch* ConditionOf(ListIndex mode);
    // The condition that a list's rows were found under, with its keywords to be marked; empty for others.
    CSearch FoundUnder(ListIndex list) const;
    // The table that holds the answer to a condition; none: no search of this view asked for it.
    std::optional<TableKind> KindOfAnswer(const CSearch& condition) const;

    // Makes the word alone the ordinary condition (in headlines, composed at `now`), and keeps it in the
    // history.
    void vTakeQuickSearch(const QString& word, std::int64_t now);
    // The quick-search words used so far, each once, newest last.
    const std::vector<QString>& History() const { return history; }
    // True when the text of the search box is another one than at the previous search.
    bool bTakeSearchText(const QString& text);
    // What the user reads while answers are awaited: the wait text and the keywords, cut where nobody can
    // read on.
    QString WaitText(const CSearch& condition) const;

    // Two keywords or more need a method: all must match unless one is set.
    static void vCompleteMethod(CSearch& condition);
    // Sends the condition of a mode to the selected services; they are pending when `awaited`, all others
    // are not.
    void vSend(ListIndex mode, std::span<ServiceEntry> services, bool awaited);
    // Narrows every condition that equals `condition` to a symbol.
    void vNarrow(const CSearch& condition, const CSymbolInfo& symbol);

private:
    BKQuoteInterface& backEnd;
    CSearch sentOrdinary;
    CSearch sentWarningTerm;
    std::vector<QString> history;
    QString previousText;
};

// A service has answered, or will not: it is not pending any more. True when others still are.
bool TakeAnswer(std::span<ServiceEntry> services, unsigned char service);
// Nothing is awaited any more. True when something was.
bool ForgetPending(std::span<ServiceEntry> services);

// The key of search tables.
inline const QString searchTableKey = QStringLiteral("SEARCH");
// The number of the list that asks, as every search is sent.
inline constexpr int searchKind = static_cast<int>(TableKind::Search);
