// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/key_sets.h"

#include "headline_list/cell_texts.h"
#include "host/contract/fixed_services.h"
#include "host/contract/lang_text.h"
#include "search/condition_texts.h"
#include "search/search_keys.h"

#include <algorithm>

namespace wirepane {

namespace {

static_assert(CNewsKey::all == numberOf(SearchMethod::All) && CNewsKey::any == numberOf(SearchMethod::Any),
              "key sets and searches name their methods by the same numbers");

bool wantsEvery(const CNewsKey& keySet) {
    return keySet.newsTypes.size() == 1 && keySet.newsTypes.front() == CNewsKey::everyNewsType;
}

QString namesOf(const CNewsKey& keySet, const CategoryMap& newsTypes) {
    if (wantsEvery(keySet) || keySet.newsTypes.size() == newsTypes.size())
        return langText(search_keys::allNewsTypes);
    QString names;
    for (const std::int32_t id : keySet.newsTypes) {
        if (const auto type = newsTypes.find(id); type != newsTypes.end())
            names += type->second + QLatin1Char(' ');
    }
    return names;
}

}  // namespace

CategoryMap newsTypesOf(BKQuoteInterface& backEnd, std::span<const ServiceEntry> services) {
    CategoryMap newsTypes;
    for (const ServiceEntry& entry : services) {
        std::vector<QString> ids;
        std::vector<QString> names;
        if (entry.service == warrantService || !backEnd.bNewsAPI_GetNewsCatId(entry.service, ids, names))
            continue;
        for (std::size_t i = 0; i < std::min(ids.size(), names.size()); ++i)
            newsTypes.emplace(ids[i].toInt(), names[i]);
    }
    for (auto& [id, name] : newsTypes)
        name = shownText(backEnd, services.front().service, name);
    return newsTypes;
}

std::vector<CNewsKey> withNewsTypes(std::vector<CNewsKey> keySets, const CategoryMap& newsTypes) {
    std::vector<std::int32_t> all;
    for (const auto& [id, name] : newsTypes)
        all.push_back(id);
    // Without any category at hand "every" must not become "none".
    for (CNewsKey& keySet : keySets) {
        if (wantsEvery(keySet) && !all.empty())
            keySet.newsTypes = all;
    }
    return keySets;
}

int saveKeySet(std::vector<CNewsKey>& keySets, const CNewsKey& keySet, int editing) {
    const auto count = static_cast<int>(keySets.size());
    int row = editing;
    if (editing < 0)
        row = static_cast<int>(std::find(keySets.begin(), keySets.end(), keySet) - keySets.begin());
    else if (editing >= count)
        return -1;
    if (row == count)
        keySets.push_back(keySet);
    else
        keySets[static_cast<std::size_t>(row)] = keySet;
    return row;
}

std::vector<int> rowsOfEqual(std::span<const CNewsKey> keySets, std::span<const CNewsKey> others) {
    std::vector<int> rows;
    for (std::size_t row = 0; row < keySets.size(); ++row) {
        if (std::find(others.begin(), others.end(), keySets[row]) != others.end())
            rows.push_back(static_cast<int>(row));
    }
    return rows;
}

QStringList textsOfKeySet(const CNewsKey& keySet, const CategoryMap& newsTypes) {
    const QStringList keywords(keySet.keywords.begin(), keySet.keywords.end());
    return {searchMethodText(keySet.knownMethod(), keySet.language), namesOf(keySet, newsTypes),
            keywords.join(QStringLiteral(", "))};
}

}  // namespace wirepane
