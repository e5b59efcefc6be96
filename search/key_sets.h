// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/news_key.h"
#include "headline_list/service_entry.h"
#include "host/contract/bk_quote_interface.h"

#include <QStringList>

#include <map>
#include <span>
#include <vector>

namespace wirepane {

// The news types that a key set can want: category ids and their names.
using CategoryMap = std::map<std::int32_t, QString>;

// The categories of all services but the warrant service, as they are shown; the first service that has one
// names it.
CategoryMap newsTypesOf(BKQuoteInterface& backEnd, std::span<const ServiceEntry> services);

// The same key sets, with every news type by its id where one wants all of them.
std::vector<CNewsKey> withNewsTypes(std::vector<CNewsKey> keySets, const CategoryMap& newsTypes);

// Keeps a key set: over the one at `editing`, or, with -1, over one that is equal, else at the end. The row
// where it stands; -1, and nothing is kept, when `editing` is no row.
int saveKeySet(std::vector<CNewsKey>& keySets, const CNewsKey& keySet, int editing);
// The rows of all key sets that equal one of `others`, ascending.
std::vector<int> rowsOfEqual(std::span<const CNewsKey> keySets, std::span<const CNewsKey> others);

// What a list shows of a key set: method, news types, keywords.
QStringList textsOfKeySet(const CNewsKey& keySet, const CategoryMap& newsTypes);

}  // namespace wirepane
