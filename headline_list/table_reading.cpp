// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/table_reading.h"

namespace {

template <class Read>
TableRuns readSelected(const std::vector<ServiceEntry>& services, Read read) {
    TableRuns runs;
    for (const ServiceEntry& entry : services) {
        if (entry.selected) {
            read(entry.service, runs.entries);
            runs.EndRun();
        }
    }
    return runs;
}

// Headlines come in the order of their entries; those that are not at hand are left out.
void keepRelated(const std::vector<CHeadlineTable>& entries, const std::vector<CHeadline>& headlines,
                 const std::vector<RelationCondition>& conditions, std::vector<CHeadlineTable>& kept) {
    auto headline = headlines.begin();
    for (const CHeadlineTable& entry : entries) {
        if (headline == headlines.end())
            return;
        if (KeyOf(entry) != KeyOf(*headline))
            continue;
        if (CheckIsRelationSearch(conditions, *headline, headline->categoryId, {}))
            kept.push_back(entry);
        ++headline;
    }
}

}  // namespace

TableRuns ReadTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services, TableKind kind,
                     const QString& key) {
    return readSelected(services, [&](unsigned char service, std::vector<CHeadlineTable>& entries) {
        backEnd.BKQNEWS_iGetHeadlineTable(service, entries, static_cast<int>(kind), key);
    });
}

TableRuns ReadSymbolTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services,
                           const CSymbolInfo& symbol) {
    return readSelected(services, [&](unsigned char service, std::vector<CHeadlineTable>& entries) {
        backEnd.BKQNEWS_iGetHeadlineTable(entries, service, symbol);
    });
}

TableRuns ReadRelatedTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services,
                            const QString& dateKey, const std::vector<RelationCondition>& conditions) {
    // Without a condition nothing passes, and a day's headlines need not be read to find that out.
    if (conditions.empty())
        return {};
    return readSelected(services, [&](unsigned char service, std::vector<CHeadlineTable>& kept) {
        std::vector<CHeadlineTable> entries;
        std::vector<CHeadline> headlines;
        backEnd.BKQNEWS_iGetHeadlineTable(service, entries, static_cast<int>(TableKind::ByDate), dateKey);
        backEnd.BKQNEWS_iGetHeadline(service, headlines, entries);
        keepRelated(entries, headlines, conditions, kept);
    });
}

TableRuns ReadServiceTable(BKQuoteInterface& backEnd, unsigned char service, TableKind kind,
                           const QString& key) {
    TableRuns runs;
    backEnd.BKQNEWS_iGetHeadlineTable(service, runs.entries, static_cast<int>(kind), key);
    runs.EndRun();
    return runs;
}
