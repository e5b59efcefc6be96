// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/search_condition.h"

#include "host/contract/json_fields.h"
#include "host/contract/search_choices.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr std::int64_t earliest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t latest = std::numeric_limits<std::int64_t>::max();

constexpr QLatin1StringView queryLanguage{"query"};

std::vector<QString> keywordsFrom(const QJsonArray& texts) {
    std::vector<QString> keywords;
    for (const auto& text : texts) {
        const QString keyword = text.toString();
        if (!keyword.isEmpty())
            keywords.push_back(keyword);
    }
    return keywords;
}

std::optional<std::vector<CSymbolInfo>> symbolsFrom(const QJsonArray& values) {
    std::vector<CSymbolInfo> symbols;
    for (const auto& value : values) {
        const QJsonArray pair = value.toArray();
        const auto market = wholeNumber(pair.at(0), 0, std::numeric_limits<unsigned char>::max());
        if (!market || !pair.at(1).isString())
            return std::nullopt;
        symbols.push_back({static_cast<unsigned char>(*market), pair.at(1).toString()});
    }
    return symbols;
}

}  // namespace

QString CSearch::GetString() const {
    QJsonArray words;
    for (const QString& keyword : keywords)
        words.append(keyword);
    QJsonArray pairs;
    for (const CSymbolInfo& symbol : symbols)
        pairs.append(QJsonArray{symbol.market, symbol.code});
    QJsonObject object{{u"keywords"_s, words}, {u"scope"_s, scope},
                       {u"method"_s, method},  {u"time"_s, static_cast<qint64>(time)},
                       {u"symbols"_s, pairs},  {u"keywordSearch"_s, keywordSearch}};
    if (isQuery())
        object.insert(u"language"_s, queryLanguage);
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

bool CSearch::LoadStringA(const QString& text) {
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    JsonFields fields(document.object());
    CSearch read;
    read.keywords = keywordsFrom(fields.list(u"keywords"_s));
    read.scope =
        static_cast<unsigned char>(fields.optionalNumber(u"scope"_s, 0, lastSearchScope).value_or(0));
    read.method =
        static_cast<unsigned char>(fields.optionalNumber(u"method"_s, 0, lastSearchMethod).value_or(0));
    read.time = fields.optionalNumber(u"time"_s, earliest, latest).value_or(0);
    read.keywordSearch = fields.optionalFlag(u"keywordSearch"_s).value_or(false);
    const auto readSymbols = symbolsFrom(fields.optionalList(u"symbols"_s).value_or(QJsonArray()));
    const QString named = fields.optionalText(u"language"_s).value_or(QString());
    if (fields.fault() || !readSymbols || (!named.isEmpty() && named != queryLanguage))
        return false;
    read.language = named.isEmpty() ? SearchLanguage::Plain : SearchLanguage::Query;
    if (read.isQuery() && read.keywords.size() != 1)
        return false;
    read.symbols = *readSymbols;
    *this = read;
    return true;
}
