// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/warning_items.h"

#include "host/contract/search_choices.h"
#include "search/recent_searches.h"

#include <algorithm>

namespace wirepane {

const CSearch* WarningItems::itemAt(int row) const {
    return row >= 0 && row < static_cast<int>(items.size()) ? &items[static_cast<std::size_t>(row)] : nullptr;
}

bool WarningItems::add(const CSearch& item) {
    if (item.keywords.empty())
        return false;
    items.push_back(forEverySymbol(item));
    return true;
}

bool WarningItems::replace(int row, const CSearch& edited) {
    const CSearch* item = itemAt(row);
    if (item == nullptr || edited.keywords.empty() || *item == edited)
        return false;
    const bool inForce = chosen == row + 1;
    remove(row);
    items.push_back(edited);
    if (inForce)
        chosen = static_cast<int>(items.size());
    return true;
}

void WarningItems::remove(int row) {
    if (itemAt(row) == nullptr)
        return;
    items.erase(items.begin() + row);
    if (chosen == row + 1)
        chosen = 0;
    else if (chosen > row + 1)
        --chosen;
}

void WarningItems::choose(int row, CSearch& condition) {
    const CSearch* item = itemAt(row);
    if (item == nullptr)
        return;
    condition.language = item->language;
    condition.keywords = item->keywords;
    condition.symbols.clear();
    condition.scope = numberOf(scopeOf(item->scope));
    if (isSearchMethod(item->method))
        condition.method = item->method;
    const bool known = std::any_of(items.begin(), items.end(),
                                   [&](const CSearch& other) { return asksTheSame(other, condition); });
    if (!known)
        add(condition);
    chosen = row + 1;
}

}  // namespace wirepane
