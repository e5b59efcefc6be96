// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/contract/records.h"

#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
class HeadlineList;
class ListOwner;
class NewsPositions;
class RelationMatcher;
class ViewOptions;
enum class TableKind : int;
struct ServiceEntry;

// The seven headline lists of a view, and how their tables are read from the back end.
class HeadlineLists {
public:
    HeadlineLists(BKQuoteInterface& backEnd, ListOwner& owner);
    ~HeadlineLists();

    HeadlineList& operator[](ListIndex list) { return *lists[static_cast<std::size_t>(list)]; }
    const HeadlineList& operator[](ListIndex list) const { return *lists[static_cast<std::size_t>(list)]; }

    // For all that have a grid.
    void setOptions(const ViewOptions& options);
    // Called each time that a list has been read anew.
    void setOnRead(std::function<void()> call) { onRead = std::move(call); }

    // Each reads one table anew, gives its grid the rows at the top and writes the visible ones. A list
    // without a grid is left alone. True when there are rows. From the selected services, by date (key:
    // yyyymmdd) or category (key: its id).
    bool rebuild(ListIndex list, TableKind kind, const QString& key, const RelationMatcher* filter = nullptr);
    // Symbol news, from the selected services.
    bool rebuildSymbol(const CSymbolInfo& symbol, const RelationMatcher* filter = nullptr);
    // The symbol whose news the symbol list holds.
    const CSymbolInfo& listSymbol() const { return listedSymbol; }
    // Warrant news of a date, from the warrant service alone.
    bool rebuildWarrant(const QString& dateKey);
    // Each ticked one of `services` gives the news of the date at which it stands.
    bool rebuildCurrent(ListIndex list, const std::vector<ServiceEntry>& services,
                        const RelationMatcher* filter = nullptr);
    // True while the list is as it was read under another list's filter: with the filter of the key sets,
    // which is the relation list's own, or as the relation list without it.
    bool hasOthersFilter(ListIndex list) const { return othersFilter[static_cast<std::size_t>(list)]; }
    // True for a headline that is being told when its list held it already as it was read last: the back end
    // numbers its news (NewsPositions), and says so.
    bool wasRead(ListIndex list, const CHeadline& told) const;
    // What a list holds is behind what the back end has; until it is read anew.
    void noteMissed(ListIndex list) { missed[static_cast<std::size_t>(list)] = true; }
    bool hasMissed(ListIndex list) const { return missed[static_cast<std::size_t>(list)]; }

    // The table becomes that of another list, row by row.
    bool rebuildAsCopy(ListIndex list, ListIndex of);

private:
    // `fill` gives the list its table, read with `filter`.
    template <class Fill>
    bool rebuildFrom(ListIndex list, const RelationMatcher* filter, Fill fill);

    BKQuoteInterface& backEnd;
    ListOwner& owner;
    NewsPositions* positions;  // null: the back end does not number its news
    CSymbolInfo listedSymbol;
    std::array<std::unique_ptr<HeadlineList>, listCount> lists;
    std::array<bool, listCount> othersFilter{};
    std::function<void()> onRead;
    std::array<std::int64_t, listCount> readAt{};  // the position of the latest news when a list was read
    std::array<bool, listCount> missed{};
};

}  // namespace wirepane
