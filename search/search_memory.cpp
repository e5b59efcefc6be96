// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/search_memory.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {
const QString poolKey = u"!RVNEWS_NEWSSEARCH_KEYWORD"_s;
const QString recentKey = u"!RVNEWS_NEWSSEARCH_NEARTENSEARCHINFO"_s;
}  // namespace

SearchMemory SearchMemory::read(const TRVCfgIO2& reader, const ViewSettingPath& path) {
    SearchMemory memory;
    QStringList texts;
    reader.GetViewInfo(path, poolKey, texts);
    QSet<QString> known;
    for (const QString& text : std::as_const(texts)) {
        if (!text.isEmpty() && !known.contains(text))
            memory.keywordPool.push_back(text);
        known.insert(text);
    }
    texts.clear();
    reader.GetViewInfo(path, recentKey, texts);
    for (const QString& text : std::as_const(texts)) {
        CSearch condition;
        if (condition.LoadStringA(text))
            KeepRecentSearch(memory.recent, condition);
    }
    return memory;
}

void SearchMemory::write(TRVCfgIO2& writer, const ViewSettingPath& path) const {
    QStringList conditions;
    for (const CSearch& condition : recent)
        conditions.append(condition.GetString());
    writer.SetViewInfo(path, poolKey, QStringList(keywordPool.begin(), keywordPool.end()));
    writer.SetViewInfo(path, recentKey, conditions);
}
