// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/saved_searches.h"

#include "headline_list/language_keys.h"
#include "host/contract/cfg_io.h"
#include "host/contract/lang_text.h"
#include "search/query_entry.h"
#include "search/recent_searches.h"

#include <QList>
#include <QStringDecoder>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype longestName = 80;
const QString storeKey = u"SavedSearches"_s;
// Views of whatever place keep them together.
const ViewSettingPath sharedPath{{}, 0, 0, storeKey};

QString lineOf(const SavedSearch& search) {
    return search.name + u'\t' + search.condition.GetString();
}

std::variant<SavedSearch, SavedSearchesFault> readLine(const QString& line, int number) {
    using Kind = SavedSearchesFault::Kind;
    SavedSearch search{nameOfSavedSearch(line.section(u'\t', 0, 0)), {}};
    if (search.name.isEmpty() || !line.contains(u'\t'))
        return SavedSearchesFault{Kind::NoName, number, {}};
    if (!search.condition.LoadStringA(line.section(u'\t', 1)) || search.condition.keywords.empty())
        return SavedSearchesFault{Kind::NoSearch, number, search.name};
    if (search.condition.isQuery()) {
        const ReadQuery read = readQuery(search.condition.query());
        if (const auto* fault = std::get_if<QueryFault>(&read))
            return SavedSearchesFault{Kind::WrongQuery, number, textOf(*fault)};
    }
    search.condition = forEverySymbol(search.condition);
    return search;
}

}  // namespace

QString nameOfSavedSearch(const QString& typed) {
    QString name = typed.simplified().left(longestName);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    // A line that begins so says nothing.
    while (name.startsWith(u'#'))
        name = name.mid(1).trimmed();
    return name.trimmed();
}

int savedSearchNamed(const SavedSearches& searches, const QString& name) {
    const auto found = std::find_if(searches.begin(), searches.end(), [&](const SavedSearch& search) {
        return search.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == searches.end() ? -1 : static_cast<int>(found - searches.begin());
}

bool saveSearch(SavedSearches& searches, SavedSearch search) {
    search.condition = forEverySymbol(std::move(search.condition));
    if (const int place = savedSearchNamed(searches, search.name); place >= 0)
        searches[static_cast<std::size_t>(place)] = std::move(search);
    else if (searches.size() < mostSavedSearches)
        searches.push_back(std::move(search));
    else
        return false;
    return true;
}

QString textOf(const SavedSearchesFault& fault) {
    const auto keyOf = [](SavedSearchesFault::Kind kind) {
        switch (kind) {
            case SavedSearchesFault::Kind::NotText:
                return keys::savedNotText;
            case SavedSearchesFault::Kind::NoName:
                return keys::savedNoName;
            case SavedSearchesFault::Kind::NoSearch:
                return keys::savedNoSearch;
            case SavedSearchesFault::Kind::WrongQuery:
                return keys::savedWrongQuery;
            case SavedSearchesFault::Kind::NameTwice:
                return keys::savedNameTwice;
            case SavedSearchesFault::Kind::TooMany:
                break;
        }
        return keys::savedTooMany;
    };
    // Not every sentence has both.
    return langText(keyOf(fault.kind))
        .replace(u"%1"_s, QString::number(fault.line))
        .replace(u"%2"_s, fault.found);
}

QByteArray fileOfSavedSearches(const SavedSearches& searches) {
    QByteArray file;
    for (const SavedSearch& search : searches)
        file += lineOf(search).toUtf8() + '\n';
    return file;
}

std::variant<SavedSearches, SavedSearchesFault> readSavedSearches(const QByteArray& file) {
    using Kind = SavedSearchesFault::Kind;
    SavedSearches searches;
    const QList<QByteArray> lines = file.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        QStringDecoder decoder(QStringDecoder::Utf8);
        QString line = decoder(lines[i]);
        if (decoder.hasError())
            return SavedSearchesFault{Kind::NotText, i + 1, {}};
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        auto read = readLine(line, i + 1);
        if (const auto* fault = std::get_if<SavedSearchesFault>(&read))
            return *fault;
        auto& search = std::get<SavedSearch>(read);
        if (savedSearchNamed(searches, search.name) >= 0)
            return SavedSearchesFault{Kind::NameTwice, i + 1, search.name};
        if (!saveSearch(searches, std::move(search)))
            return SavedSearchesFault{Kind::TooMany, i + 1, QString::number(mostSavedSearches)};
    }
    return searches;
}

SavedSearches storedSavedSearches(const TRVCfgIO2& store) {
    QStringList lines;
    store.GetViewInfo(sharedPath, storeKey, lines);
    SavedSearches searches;
    for (const QString& line : lines) {
        auto read = readLine(line, 0);
        if (auto* search = std::get_if<SavedSearch>(&read))
            saveSearch(searches, std::move(*search));
    }
    return searches;
}

void storeSavedSearches(TRVCfgIO2& store, const SavedSearches& searches) {
    QStringList lines;
    for (const SavedSearch& search : searches)
        lines += lineOf(search);
    store.setViewInfo(sharedPath, storeKey, lines);
}

CSearch ofToday(const CSearch& condition) {
    CSearch today = condition;
    QString query = condition.query();
    if (!condition.isQuery())
        query = queryOfKeywords(condition.keywords, condition.method);
    today.language = SearchLanguage::Query;
    today.method = 0;
    today.keywords = {u'(' + query + u") on:today"_s};
    return today;
}

}  // namespace wirepane
