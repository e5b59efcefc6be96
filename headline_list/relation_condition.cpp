// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/relation_condition.h"

#include <algorithm>

namespace {

bool wantsCategory(const RelationCondition& condition, std::int32_t id) {
    const auto& ids = condition.categoryIds;
    if (ids.size() == 1 && ids.front() == RelationCondition::everyCategory)
        return true;
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

bool matches(const RelationCondition& condition, const QString& upperTitle, std::int32_t categoryId,
             const QString& symbolText) {
    if (!wantsCategory(condition, categoryId))
        return false;
    const auto hits = [&](const QString& word) {
        return upperTitle.contains(word) ||
               (!symbolText.isEmpty() && symbolText.compare(word, Qt::CaseInsensitive) == 0);
    };
    const auto& words = condition.words;
    return condition.matchMode == 1 ? std::all_of(words.begin(), words.end(), hits)
                                    : std::any_of(words.begin(), words.end(), hits);
}

}  // namespace

bool CheckIsRelationSearch(std::span<const RelationCondition> conditions, const CHeadline& headline,
                           std::int32_t categoryId, const QString& symbolText) {
    if (conditions.empty())
        return false;
    const QString upperTitle = headline.title.toUpper();
    return std::any_of(conditions.begin(), conditions.end(), [&](const RelationCondition& condition) {
        return matches(condition, upperTitle, categoryId, symbolText);
    });
}
