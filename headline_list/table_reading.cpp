// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/table_reading.h"

#include "headline_list/relation_matcher.h"
#include "headline_list/service_entry.h"
#include "host/contract/bk_quote_interface.h"

namespace wirepane {

namespace {

// Headlines come in the order of their entries; those that are not at hand are left out.
std::vector<CHeadlineTable> related(const std::vector<CHeadlineTable>& entries,
                                    const std::vector<CHeadline>& headlines,
                                    const RelationMatcher& relation) {
    std::vector<CHeadlineTable> kept;
    auto headline = headlines.begin();
    for (const CHeadlineTable& entry : entries) {
        if (headline == headlines.end())
            break;
        if (keyOf(entry) != keyOf(*headline))
            continue;
        if (relation.CheckIsRelationSearch(*headline, headline->categoryId, {}))
            kept.push_back(entry);
        ++headline;
    }
    return kept;
}

template <class Read>
TableRuns readSelected(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services,
                       RelationFilter filter, Read read) {
    TableRuns runs;
    // Without a condition nothing passes, and a day's headlines need not be read to find that out.
    if (filter != nullptr && filter->empty())
        return runs;
    for (const ServiceEntry& entry : services) {
        if (!entry.selected)
            continue;
        std::vector<CHeadlineTable> entries;
        read(entry.service, entries);
        if (filter != nullptr) {
            std::vector<CHeadline> headlines;
            backEnd.BKQNEWS_iGetHeadline(entry.service, headlines, entries);
            entries = related(entries, headlines, *filter);
        }
        runs.push_back(std::move(entries));
    }
    return runs;
}

}  // namespace

TableRuns readTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services, TableKind kind,
                     const QString& key, RelationFilter filter) {
    return readSelected(backEnd, services, filter,
                        [&](unsigned char service, std::vector<CHeadlineTable>& entries) {
                            backEnd.BKQNEWS_iGetHeadlineTable(service, entries, static_cast<int>(kind), key);
                        });
}

TableRuns readEveryTable(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services, TableKind kind,
                         const QString& key) {
    TableRuns runs;
    for (const ServiceEntry& entry : services)
        runs.push_back(readServiceTable(backEnd, entry.service, kind, key).front());
    return runs;
}

TableRuns readCurrentTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services,
                            RelationFilter filter) {
    return readSelected(
        backEnd, services, filter, [&](unsigned char service, std::vector<CHeadlineTable>& entries) {
            backEnd.BKQNEWS_iGetHeadlineTable(service, entries, static_cast<int>(TableKind::ByDate),
                                              backEnd.BKQNEWS_cszGetCurrDateByService(service));
        });
}

TableRuns readSymbolTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services,
                           const CSymbolInfo& symbol, RelationFilter filter) {
    return readSelected(backEnd, services, filter,
                        [&](unsigned char service, std::vector<CHeadlineTable>& entries) {
                            backEnd.BKQNEWS_iGetHeadlineTable(entries, service, symbol);
                        });
}

TableRuns readServiceTable(BKQuoteInterface& backEnd, unsigned char service, TableKind kind,
                           const QString& key) {
    TableRuns runs(1);
    backEnd.BKQNEWS_iGetHeadlineTable(service, runs.front(), static_cast<int>(kind), key);
    return runs;
}

}  // namespace wirepane
