// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/empty_texts.h"

#include "headline_list/language_keys.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString shownDay(QDate day) {
    return day.toString(u"yyyy/MM/dd"_s);
}

}  // namespace

bool wantsServices(const EmptyList& list) {
    const bool isOfServices =
        list.list == ListIndex::All || list.list == ListIndex::Category || list.list == ListIndex::Symbol;
    return isOfServices && !list.hasServices;
}

EmptyText emptyStoryText(bool hasRows, BKQuoteInterface& backEnd) {
    return {LineIcon::News, langText(backEnd, keys::emptyStory),
            hasRows ? langText(backEnd, keys::emptyReadNewest) : QString()};
}

EmptyText emptyQuotesText(bool isOfHeadline, bool canLookUp, BKQuoteInterface& backEnd) {
    return {LineIcon::Quotes, langText(backEnd, isOfHeadline ? keys::noRelatedSymbols : keys::emptyQuotes),
            canLookUp ? langText(backEnd, keys::emptyLookUpSymbol) : QString()};
}

EmptyText emptyTextOf(const EmptyList& list, BKQuoteInterface& backEnd) {
    const auto text = [&backEnd](QLatin1StringView key) { return langText(backEnd, key); };
    const QString toAllNews = list.hasAllNews ? text(keys::emptyShowAllNews) : QString();
    if (list.list == ListIndex::Symbol && !list.isSupported)
        return {LineIcon::News, text(keys::noData), toAllNews};
    if (wantsServices(list))
        return {LineIcon::Services, text(keys::emptyNoService), text(keys::emptyChooseServices)};
    switch (list.list) {
        case ListIndex::All:
            return {LineIcon::Calendar, text(keys::emptyDay).arg(shownDay(list.day)),
                    list.nearest ? text(keys::emptyShowDay).arg(shownDay(*list.nearest)) : QString()};
        case ListIndex::Category:
        case ListIndex::Symbol:
            return {LineIcon::News,
                    list.subject.isEmpty() ? text(keys::emptyNothing)
                                           : text(keys::emptyOfSubject).arg(list.subject),
                    toAllNews};
        case ListIndex::Warrant:
            return {LineIcon::News, text(keys::hintNoWarrantNews), toAllNews};
        case ListIndex::Relation:
            return {LineIcon::Relation, text(keys::emptyRelation), text(keys::emptyChooseKeySets)};
        case ListIndex::WarningTerm:
            return {LineIcon::Warning, text(keys::emptyWarningTerm), text(keys::emptyChooseTerms)};
        case ListIndex::Search:
            break;
    }
    QStringList quoted;
    for (const QString& word : list.words)
        quoted += text(keys::emptyQuotedWord).arg(word);
    return {LineIcon::Search,
            quoted.empty() ? text(keys::emptySearch) : text(keys::emptyNotFound).arg(quoted.join(u' ')),
            text(keys::emptyBeginSearch)};
}

}  // namespace wirepane
