// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/keyword_list.h"

#include <algorithm>
#include <iterator>

namespace wirepane {

int keepKeyword(KeywordList& list, const QString& keyword) {
    if (keyword.isEmpty())
        return -1;
    const auto known = std::find(list.begin(), list.end(), keyword);
    const auto index = static_cast<int>(known - list.begin());
    if (known == list.end())
        list.push_back(keyword);
    return index;
}

void removeKeyword(KeywordList& list, const QString& keyword) {
    const auto known = std::find(list.begin(), list.end(), keyword);
    if (known != list.end())
        list.erase(known);
}

KeywordList keywordsWith(const KeywordList& list, const QString& part) {
    KeywordList found;
    std::copy_if(list.begin(), list.end(), std::back_inserter(found),
                 [&](const QString& keyword) { return keyword.contains(part); });
    return found;
}

KeywordList keywordsOfCandidate(const QString& candidate) {
    const QString text = candidate.mid(candidate.indexOf(u']') + 1);
    const qsizetype blank = text.indexOf(u' ');
    QString name = text.mid(blank + 1);
    KeywordList keywords;
    keepKeyword(keywords, blank < 0 ? text : text.left(blank));
    keepKeyword(keywords, name.remove(u' '));
    return keywords;
}

}  // namespace wirepane
