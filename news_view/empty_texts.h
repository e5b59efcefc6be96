// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/controls/empty_note.h"

#include <QDate>
#include <QStringList>

#include <optional>

class BKQuoteInterface;

namespace wirepane {

// What is known of a list without rows.
struct EmptyList {
    ListIndex list = ListIndex::All;
    bool hasServices = true;       // one is ticked
    bool isSupported = true;       // false: there can be no news of the symbol
    bool hasAllNews = true;        // the list of all news can be shown
    QString subject;               // the chosen category or symbol, as it is shown
    QStringList words;             // that were searched for
    QDate day;                     // the picked one
    std::optional<QDate> nearest;  // the one next to it that has news
};

// Whether its way out is to tick services.
bool wantsServices(const EmptyList& list);

// What a story pane without a story says; `hasRows`: beside a list that has some.
EmptyText emptyStoryText(bool hasRows, BKQuoteInterface& backEnd);
// Of the quotes beside it: of a headline that names no symbols, or of none; whether the list of a symbol is
// another one that can be shown.
EmptyText emptyQuotesText(bool isOfHeadline, bool canLookUp, BKQuoteInterface& backEnd);

// What the list says in the language in force, and what the button beside it.
EmptyText emptyTextOf(const EmptyList& list, BKQuoteInterface& backEnd);

}  // namespace wirepane
