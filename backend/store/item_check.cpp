// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/item_check.h"

#include "backend/clean_text.h"
#include "backend/store/limits.h"
#include "backend/store/store_errors.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

Error tooLong(Phrase what, qsizetype length, qsizetype most) {
    return makeError<store_errors::tooLong>(std::move(what), length, most);
}

std::optional<Error> symbolFault(const QString& code) {
    if (code.isEmpty())
        return makeError<store_errors::symbolWithoutCode>();
    if (code.size() > limits::codeLength)
        return tooLong(makeError<store_errors::codeOfSymbol>(), code.size(), limits::codeLength);
    return std::nullopt;
}

bool isColour(const QString& text) {
    const auto isHex = [](QChar c) { return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f'); };
    return text.size() == 7 && text.front() == u'#' && std::all_of(text.begin() + 1, text.end(), isHex);
}

std::vector<CSymbolInfo> cleanedSymbols(const std::vector<CSymbolInfo>& symbols) {
    QSet<CSymbolInfo> seen;
    std::vector<CSymbolInfo> kept;
    for (const CSymbolInfo& symbol : symbols) {
        CSymbolInfo clean{symbol.market, cleanTitle(symbol.code)};
        if (seen.contains(clean))
            continue;
        seen.insert(clean);
        kept.push_back(std::move(clean));
    }
    return kept;
}

}  // namespace

QString cleanCategoryName(const QString& name) {
    QString clean;
    for (const QChar c : cleanTitle(name)) {
        if (!c.isSpace() && c != u',')
            clean += c;
        else if (!clean.isEmpty() && !clean.endsWith(u'-'))
            clean += u'-';
    }
    clean.truncate(limits::categoryNameLength);
    if (!clean.isEmpty() && clean.back().isHighSurrogate())
        clean.chop(1);
    while (clean.endsWith(u'-'))
        clean.chop(1);
    return clean;
}

NewsItem cleaned(const NewsItem& item) {
    NewsItem clean = item;
    clean.identity = cleanTitle(item.identity);
    clean.title = cleanTitle(item.title);
    if (item.story)
        clean.story = cleanStory(*item.story);
    if (item.withdrawn)
        clean.withdrawn = cleanTitle(item.withdrawn->left(limits::withdrawalLength));
    clean.category = cleanCategoryName(item.category);
    clean.related = cleanedSymbols(item.related);
    return clean;
}

SymbolItem cleaned(const SymbolItem& item) {
    SymbolItem clean = item;
    clean.code = cleanTitle(item.code);
    clean.name = cleanTitle(item.name);
    clean.englishName = cleanTitle(item.englishName);
    return clean;
}

CategoryItem cleaned(const CategoryItem& item) {
    CategoryItem clean = item;
    clean.name = cleanCategoryName(item.name);
    clean.colour = item.colour.toLower();
    return clean;
}

QuoteItem cleaned(const QuoteItem& item) {
    QuoteItem clean = item;
    clean.code = cleanTitle(item.code);
    return clean;
}

std::optional<Error> faultOfStory(const QString& story) {
    if (story.size() <= limits::storyLength)
        return std::nullopt;
    return tooLong(makeError<store_errors::story>(), story.size(), limits::storyLength);
}

std::optional<Error> faultOf(const NewsItem& item) {
    if (item.service == 0)
        return makeError<store_errors::noService>();
    if (item.identity.isEmpty())
        return makeError<store_errors::noIdentity>();
    if (item.identity.size() > limits::identityLength)
        return tooLong(makeError<store_errors::identity>(), item.identity.size(), limits::identityLength);
    if (item.title.trimmed().isEmpty() && !item.withdrawn)
        return makeError<store_errors::titleEmpty>();
    if (item.title.size() > limits::titleLength)
        return tooLong(makeError<store_errors::title>(), item.title.size(), limits::titleLength);
    if (auto fault = item.story ? faultOfStory(*item.story) : std::nullopt)
        return fault;
    if (item.time < firstNewsTime || item.time > lastNewsTime)
        return makeError<store_errors::timeOutOfRange>(item.time);
    if (item.related.size() > limits::relatedSymbols)
        return makeError<store_errors::tooManySymbols>(item.related.size(), limits::relatedSymbols);
    for (const CSymbolInfo& symbol : item.related) {
        if (auto fault = symbolFault(symbol.code))
            return fault;
    }
    return std::nullopt;
}

std::optional<Error> faultOf(const SymbolItem& item) {
    if (item.market == 0)
        return makeError<store_errors::symbolWithoutMarket>();
    if (const auto size = std::max(item.name.size(), item.englishName.size());
        size > limits::symbolNameLength)
        return tooLong(makeError<store_errors::nameOfSymbol>(), size, limits::symbolNameLength);
    return symbolFault(item.code);
}

std::optional<Error> faultOf(const CategoryItem& item) {
    if (item.service == 0)
        return makeError<store_errors::categoryWithoutService>();
    if (item.id < 1)
        return makeError<store_errors::categoryIdTooSmall>(item.id);
    if (item.name.isEmpty())
        return makeError<store_errors::categoryWithoutName>();
    if (!item.colour.isEmpty() && !isColour(item.colour))
        return makeError<store_errors::noColour>(item.colour.left(20));
    return std::nullopt;
}

std::optional<Error> faultOf(const QuoteItem& item) {
    if (item.market == 0)
        return makeError<store_errors::quoteWithoutMarket>();
    if (auto fault = symbolFault(item.code))
        return fault;
    // Written so that NaN fails too.
    if (!(item.last >= 0 && item.last <= limits::price))
        return makeError<store_errors::lastPriceOutOfRange>(item.code, limits::price);
    if (!(item.change >= -limits::price && item.change <= item.last))
        return makeError<store_errors::changeOutOfRange>(item.code);
    if (item.volume < 0 || item.volume > mostVolume)
        return makeError<store_errors::volumeOutOfRange>(item.code, mostVolume);
    return std::nullopt;
}

}  // namespace wirepane
