// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/rehearsed_key_set.h"

#include <algorithm>
#include <memory>
#include <span>
#include <utility>

namespace wirepane {

namespace {

KeySetRehearsal::Wants wantsOf(const CNewsKey& keySet, RelationMatcher::Case letters) {
    return [matcher = std::make_shared<const RelationMatcher>(std::span(&keySet, 1), letters)](
               const CHeadline& headline, const QString& symbol) {
        return matcher->CheckIsRelationSearch(headline, headline.categoryId, symbol);
    };
}

}  // namespace

KeySetRehearsal::KeySet rehearsedKeySet(const CNewsKey& keySet, RelationMatcher::Case letters,
                                        std::vector<unsigned char> services) {
    KeySetRehearsal::KeySet rehearsed;
    rehearsed.services = std::move(services);
    if (keySet.isQuery()) {
        rehearsed.query = keySet.keywords.front();
        if (std::count(keySet.newsTypes.begin(), keySet.newsTypes.end(), CNewsKey::everyNewsType) == 0)
            rehearsed.newsTypes = keySet.newsTypes;
        return rehearsed;
    }
    rehearsed.wants = wantsOf(keySet, letters);
    for (const QString& keyword : keySet.keywords)
        rehearsed.parts.push_back(
            {keyword, wantsOf(CNewsKey(CNewsKey::any, keySet.newsTypes, {keyword}), letters)});
    return rehearsed;
}

}  // namespace wirepane
