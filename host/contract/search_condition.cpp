// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/search_condition.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned char highestScope = 2;
constexpr unsigned char highestMethod = 2;

// The whole number of a value up to `most`; absent counts as 0.
std::optional<unsigned char> smallNumber(const QJsonValue& value, unsigned char most) {
    const int number = value.toInt(value.isUndefined() ? 0 : -1);
    if (number < 0 || number > most)
        return std::nullopt;
    return static_cast<unsigned char>(number);
}

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
        const auto market = smallNumber(pair.at(0), std::numeric_limits<unsigned char>::max());
        if (!market || !pair.at(1).isString())
            return std::nullopt;
        symbols.push_back({*market, pair.at(1).toString()});
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
    const QJsonObject object{{u"keywords"_s, words}, {u"scope"_s, scope},
                             {u"method"_s, method},  {u"time"_s, static_cast<qint64>(time)},
                             {u"symbols"_s, pairs},  {u"keywordSearch"_s, keywordSearch}};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

bool CSearch::LoadStringA(const QString& text) {
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    const QJsonObject object = document.object();
    const auto readScope = smallNumber(object[u"scope"_s], highestScope);
    const auto readMethod = smallNumber(object[u"method"_s], highestMethod);
    const auto readSymbols = symbolsFrom(object[u"symbols"_s].toArray());
    if (!object[u"keywords"_s].isArray() || !readScope || !readMethod || !readSymbols)
        return false;
    *this = {keywordsFrom(object[u"keywords"_s].toArray()),
             *readScope,
             *readMethod,
             object[u"time"_s].toInteger(),
             *readSymbols,
             object[u"keywordSearch"_s].toBool()};
    return true;
}
