// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/query/search_query.h"
#include "news_view/common_parts.h"
#include "search/saved_searches.h"

#include <functional>
#include <memory>
#include <optional>

class QMenu;
class TRVCfgIO2;

namespace wirepane {
class SearchDesk;

// The searches with names in what drops down from the search box: how much each finds today, what becomes of
// one, and their files. They are read anew whenever it drops down, because other views change them as well.
// Interface thread only.
class SavedSearchMenu {
public:
    struct Calls {
        std::function<TRVCfgIO2*()> settings;  // null: there are none
        std::function<void(const CSearch&)> show;
        std::function<std::optional<QueryFault>(const CSearch&)> addKeySet;
        std::function<void(const CSearch&)> addWarningTerm;
    };
    SavedSearchMenu(const CommonParts& parts, const SearchDesk& desk, Calls calls);

    // The box drops them down from here on, where the view's settings want it.
    void connectEdit();
    // The search that the search mode showed when the view was last open; it waits until that mode is shown.
    void restore(const QString& name) { waiting = name; }
    // The search mode is shown.
    void showWaiting();
    // Of the search that the search mode shows, or will show; empty: it has no name.
    QString shownName() const;

private:
    SavedSearches kept() const;
    void keep(const SavedSearches& searches);
    void fill(QMenu& menu);
    void fillChoices(QMenu& menu, const SavedSearch& search);
    void count(QMenu& menu, const SavedSearches& searches);
    // The condition that would be saved, of what the search mode shows.
    CSearch presentSearch() const;
    void askForName(const CSearch& condition);
    void remove(const QString& name);
    void makeKeySet(const CSearch& condition);
    void importFile(const QString& file);
    void askForImport();
    void askForExport();
    QString text(QLatin1StringView key) const;

    const CommonParts parts;
    const SearchDesk& desk;
    const Calls calls;
    QString waiting;  // the name of a search; empty: none waits
    std::shared_ptr<const void> counting;
};

}  // namespace wirepane
