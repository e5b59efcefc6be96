// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/sort_order.h"

#include <QString>

#include <vector>

class BKQuoteInterface;
struct CSymbolInfo;

namespace wirepane {
class RelationMatcher;
enum class TableKind : int;
struct ServiceEntry;

// How the tables of lists are read from the back end: one run per selected service, in the order of the
// services.

// The headlines that one of these key sets wants stay; null: all stay.
using RelationFilter = const RelationMatcher*;

// By a kind of table and its key: yyyymmdd, or a category id text.
TableRuns readTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services, TableKind kind,
                     const QString& key, RelationFilter filter = nullptr);

// The same of every service, selected or not.
TableRuns readEveryTable(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services, TableKind kind,
                         const QString& key);

// By date: each service's current news date.
TableRuns readCurrentTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services,
                            RelationFilter filter = nullptr);

// By symbol.
TableRuns readSymbolTables(BKQuoteInterface& backEnd, const std::vector<ServiceEntry>& services,
                           const CSymbolInfo& symbol, RelationFilter filter = nullptr);

// One service's table, selected or not.
TableRuns readServiceTable(BKQuoteInterface& backEnd, unsigned char service, TableKind kind,
                           const QString& key);

}  // namespace wirepane
