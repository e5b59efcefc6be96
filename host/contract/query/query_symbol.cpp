// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/query_symbol.h"

#include <algorithm>
#include <limits>

namespace wirepane {

namespace {

constexpr qsizetype longestMarket = 3;
constexpr qsizetype longestEnding = 4;

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}
bool isCapital(QChar c) {
    return c >= u'A' && c <= u'Z';
}

QString withoutEnding(const QString& code) {
    const qsizetype point = code.lastIndexOf(u'.');
    const QStringView ending = QStringView(code).sliced(point + 1);
    const bool isEnding = point > 0 && !ending.isEmpty() && ending.size() <= longestEnding &&
                          std::all_of(ending.begin(), ending.end(), isCapital);
    return isEnding ? code.first(point) : code;
}

}  // namespace

std::optional<QuerySymbol> readQuerySymbol(QStringView text) {
    QuerySymbol symbol;
    const auto* const colon = std::find_if_not(text.begin(), text.end(), isDigit);
    const qsizetype digits = colon - text.begin();
    if (digits > 0 && digits <= longestMarket && digits + 1 < text.size() &&
        (*colon == u':' || *colon == u'：')) {
        const int market = text.first(digits).toInt();
        if (market > std::numeric_limits<unsigned char>::max())
            return std::nullopt;
        symbol.market = static_cast<unsigned char>(market);
        text = text.sliced(digits + 1);
    }
    if (text.isEmpty())
        return std::nullopt;
    symbol.codes += text.toString().toUpper();
    const QString bare = withoutEnding(symbol.codes.front());
    symbol.codes += bare;
    symbol.isNumber = std::all_of(bare.begin(), bare.end(), isDigit);
    if (symbol.isNumber) {
        const auto zeros =
            std::find_if(bare.begin(), bare.end() - 1, [](QChar c) { return c != u'0'; }) - bare.begin();
        for (const qsizetype length : {1, 4, 5, 6})
            symbol.codes += bare.sliced(zeros).rightJustified(length, u'0');
    }
    symbol.codes.removeDuplicates();
    return symbol;
}

}  // namespace wirepane
