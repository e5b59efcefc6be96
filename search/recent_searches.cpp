// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/recent_searches.h"

#include <algorithm>

namespace wirepane {

bool asksTheSame(const CSearch& a, const CSearch& b) {
    if (a.language != b.language || a.scope != b.scope || a.method != b.method ||
        a.keywords.size() != b.keywords.size())
        return false;
    if (a.keywords == b.keywords)
        return true;
    std::vector<QString> sorted = b.keywords;
    std::sort(sorted.begin(), sorted.end());
    return std::all_of(a.keywords.begin(), a.keywords.end(), [&](const QString& keyword) {
        return std::binary_search(sorted.begin(), sorted.end(), keyword);
    });
}

CSearch forEverySymbol(CSearch condition) {
    condition.symbols.clear();
    return condition;
}

void keepRecentSearch(RecentSearches& recent, const CSearch& condition) {
    const bool known = std::any_of(recent.begin(), recent.end(),
                                   [&](const CSearch& other) { return asksTheSame(other, condition); });
    if (known)
        return;
    if (recent.size() >= mostRecentSearches)
        recent.erase(recent.begin());
    recent.push_back(forEverySymbol(condition));
}

}  // namespace wirepane
