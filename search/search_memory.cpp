// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/search_memory.h"

#include "host/contract/cfg_io.h"
#include "search/key_set_text.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString poolKey = u"!RVNEWS_NEWSSEARCH_KEYWORD"_s;
const QString recentKey = u"!RVNEWS_NEWSSEARCH_NEARTENSEARCHINFO"_s;
const QString keySetsKey = u"!RVNEWS_NEWSKEY_KEYWORDSETTING"_s;
const QString warningsKey = u"WarningSearchItems"_s;
const QString chosenWarningKey = u"WarningSearchItemOrder"_s;

KeywordList poolOf(const QStringList& texts) {
    KeywordList pool;
    QSet<QString> known;
    for (const QString& text : texts) {
        if (!text.isEmpty() && !known.contains(text))
            pool.push_back(text);
        known.insert(text);
    }
    return pool;
}

RecentSearches recentOf(const QStringList& texts) {
    RecentSearches recent;
    for (const QString& text : texts) {
        CSearch condition;
        if (!condition.LoadStringA(text))
            continue;
        condition.keywords = poolOf({condition.keywords.begin(), condition.keywords.end()});
        keepRecentSearch(recent, condition);
    }
    return recent;
}

std::vector<CNewsKey> keySetsOf(const QStringList& texts) {
    std::vector<CNewsKey> keySets;
    for (const QString& text : texts) {
        if (const auto keySet = keySetOfText(text))
            keySets.push_back(*keySet);
    }
    return keySets;
}

// The number counts the stored texts: it stays with its item when one before it is damaged.
WarningItems warningsOf(const QStringList& texts, int chosen) {
    WarningItems warnings;
    for (int number = 1; number <= texts.size(); ++number) {
        CSearch condition;
        if (condition.LoadStringA(texts[number - 1]) && warnings.add(condition) && number == chosen)
            warnings.chosen = static_cast<int>(warnings.items.size());
    }
    return warnings;
}

QStringList textsOf(const std::vector<CSearch>& conditions) {
    QStringList texts;
    for (const CSearch& condition : conditions)
        texts.append(condition.GetString());
    return texts;
}

}  // namespace

SearchMemory SearchMemory::read(const TRVCfgIO2& reader, const ViewSettingPath& path) {
    const auto textsAt = [&](const QString& key) {
        QStringList texts;
        reader.GetViewInfo(path, key, texts);
        return texts;
    };
    int chosen = 0;
    reader.GetViewInfo(path, chosenWarningKey, chosen);
    return {poolOf(textsAt(poolKey)), recentOf(textsAt(recentKey)), keySetsOf(textsAt(keySetsKey)),
            warningsOf(textsAt(warningsKey), chosen)};
}

void SearchMemory::write(TRVCfgIO2& writer, const ViewSettingPath& path) const {
    QStringList keySetTexts;
    for (const CNewsKey& keySet : keySets)
        keySetTexts.append(textOfKeySet(keySet));
    writer.setViewInfo(path, poolKey, QStringList(keywordPool.begin(), keywordPool.end()));
    writer.setViewInfo(path, recentKey, textsOf(recent));
    writer.setViewInfo(path, keySetsKey, keySetTexts);
    writer.setViewInfo(path, warningsKey, textsOf(warnings.items));
    writer.setViewInfo(path, chosenWarningKey, warnings.chosen);
}

}  // namespace wirepane
