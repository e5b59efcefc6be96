// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/news_key.h"
#include "host/contract/search_condition.h"
#include "search/key_sets.h"

namespace wirepane {

// What an alert rule looks for to tell of what a condition finds, as it comes (docs/search.md): its texts
// where the condition looks for them, its symbols. Parts that are not of alerts, as days, stay in it; a query
// with a fault stays as it is.
QString alertQuery(const CSearch& condition);
// The same of what a key set wants: plain ones by their words, which rules find in any case and script.
QString alertQuery(const CNewsKey& keySet, const CategoryMap& newsTypes);

}  // namespace wirepane
