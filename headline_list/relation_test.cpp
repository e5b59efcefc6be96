// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/relation_test.h"

#include <algorithm>

namespace {

bool wantsCategory(const CNewsKey& keySet, std::int32_t id) {
    const auto& ids = keySet.newsTypes;
    if (ids.size() == 1 && ids.front() == CNewsKey::everyNewsType)
        return true;
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

bool matches(const CNewsKey& keySet, const QString& upperTitle, std::int32_t categoryId,
             const QString& symbolText) {
    if (!wantsCategory(keySet, categoryId))
        return false;
    const auto hits = [&](const QString& word) {
        return upperTitle.contains(word) ||
               (!symbolText.isEmpty() && symbolText.compare(word, Qt::CaseInsensitive) == 0);
    };
    const auto& words = keySet.keywords;
    return keySet.method == CNewsKey::all ? std::all_of(words.begin(), words.end(), hits)
                                          : std::any_of(words.begin(), words.end(), hits);
}

}  // namespace

bool CheckIsRelationSearch(std::span<const CNewsKey> keySets, const CHeadline& headline,
                           std::int32_t categoryId, const QString& symbolText) {
    if (keySets.empty())
        return false;
    const QString upperTitle = headline.title.toUpper();
    return std::any_of(keySets.begin(), keySets.end(), [&](const CNewsKey& keySet) {
        return matches(keySet, upperTitle, categoryId, symbolText);
    });
}
