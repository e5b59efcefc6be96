// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/item_check.h"

#include "backend/clean_text.h"
#include "backend/store/limits.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString tooLong(QLatin1StringView what, qsizetype length, qsizetype most) {
    return u"The %1 has %2 characters; at most %3 are taken."_s.arg(what).arg(length).arg(most);
}

QString symbolFault(const QString& code) {
    if (code.isEmpty())
        return u"A symbol has no code."_s;
    if (code.size() > limits::codeLength)
        return tooLong("code of a symbol"_L1, code.size(), limits::codeLength);
    return {};
}

bool isColour(const QString& text) {
    const auto isHex = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    };
    return text.size() == 7 && text.front() == u'#' && std::all_of(text.begin() + 1, text.end(), isHex);
}

std::vector<SymbolRef> cleanedSymbols(const std::vector<SymbolRef>& symbols) {
    QSet<std::pair<unsigned char, QString>> seen;
    std::vector<SymbolRef> kept;
    for (const SymbolRef& symbol : symbols) {
        SymbolRef clean{symbol.market, cleanTitle(symbol.code)};
        if (seen.contains({clean.market, clean.code}))
            continue;
        seen.insert({clean.market, clean.code});
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
    clean.category = cleanCategoryName(item.category);
    clean.related = cleanedSymbols(item.related);
    return clean;
}

SymbolItem cleaned(const SymbolItem& item) {
    SymbolItem clean = item;
    clean.code = cleanTitle(item.code);
    clean.name = cleanTitle(item.name);
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

QString faultOfStory(const QString& story) {
    return story.size() > limits::storyLength ? tooLong("story"_L1, story.size(), limits::storyLength)
                                              : QString();
}

QString faultOf(const NewsItem& item) {
    if (item.service == 0)
        return u"It belongs to no news service."_s;
    if (item.identity.isEmpty())
        return u"It has no identity."_s;
    if (item.identity.size() > limits::identityLength)
        return tooLong("identity"_L1, item.identity.size(), limits::identityLength);
    if (item.title.trimmed().isEmpty())
        return u"The title is empty."_s;
    if (item.title.size() > limits::titleLength)
        return tooLong("title"_L1, item.title.size(), limits::titleLength);
    if (QString fault = item.story ? faultOfStory(*item.story) : QString(); !fault.isEmpty())
        return fault;
    if (item.time < firstNewsTime || item.time > lastNewsTime)
        return u"Its time (%1 seconds since 1970) does not lie within the years 1900 to 9999."_s.arg(
            item.time);
    if (item.related.size() > limits::relatedSymbols)
        return u"It names %1 related symbols; at most %2 are taken."_s.arg(item.related.size())
            .arg(limits::relatedSymbols);
    for (const SymbolRef& symbol : item.related) {
        if (QString fault = symbolFault(symbol.code); !fault.isEmpty())
            return fault;
    }
    return {};
}

QString faultOf(const SymbolItem& item) {
    if (item.market == 0)
        return u"The symbol belongs to no market."_s;
    if (item.name.size() > limits::symbolNameLength)
        return tooLong("name of the symbol"_L1, item.name.size(), limits::symbolNameLength);
    return symbolFault(item.code);
}

QString faultOf(const CategoryItem& item) {
    if (item.service == 0)
        return u"The category belongs to no news service."_s;
    if (item.id < 1)
        return u"The category has the id %1; ids count from 1 on."_s.arg(item.id);
    if (item.name.isEmpty())
        return u"The category has no name."_s;
    if (!item.colour.isEmpty() && !isColour(item.colour))
        return u"The colour \"%1\" is not of the form #rrggbb."_s.arg(item.colour.left(20));
    return {};
}

QString faultOf(const QuoteItem& item) {
    if (item.market == 0)
        return u"The quote belongs to no market."_s;
    if (QString fault = symbolFault(item.code); !fault.isEmpty())
        return fault;
    // Written so that a number that is none fails too.
    if (!(item.last >= 0 && item.last <= limits::price))
        return u"The last price of %1 is not a number from 0 to %2."_s.arg(item.code).arg(limits::price);
    if (!(item.change >= -limits::price && item.change <= item.last))
        return u"The change of %1 is not a number, or larger than its last price."_s.arg(item.code);
    if (item.volume < 0 || item.volume > mostVolume)
        return u"The volume of %1 is not a number from 0 to %2."_s.arg(item.code).arg(mostVolume);
    return {};
}

}  // namespace wirepane
