// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/told_notices.h"

#include "headline_list/cell_texts.h"
#include "headline_list/feed_breaks.h"
#include "headline_list/headline_lists.h"
#include "headline_list/language_keys.h"
#include "host/contract/reading_moment.h"
#include "host/contract/symbol_name.h"
#include "news_view/list_notices.h"
#include "search/search_desk.h"

void tellOfBackEnd(ListNotices& notices, BKQuoteInterface& backEnd, const FeedBreaks& breaks) {
    if (const auto since = breaks.Since())
        notices.vTell(NoticeKind::Offline,
                      LangText(backEnd, keys::offlineSince) + QLatin1Char(' ') + TimeText(*since, false));
    if (const auto* moment = dynamic_cast<const ReadingMoment*>(&backEnd); moment && moment->IsReadAsOf())
        notices.vTell(NoticeKind::AsOf, LangText(backEnd, keys::noticeAsOf));
}

void tellOfList(ListNotices& notices, BKQuoteInterface& backEnd, ListIndex list, const HeadlineLists& lists,
                const SearchDesk& searches, const FeedBreaks& breaks) {
    if (const auto symbol = searches.Narrowing(list))
        notices.vTell(NoticeKind::Narrowed, LangText(backEnd, keys::noticeNarrowed)
                                                .arg(symbol->code + QLatin1Char(' ') +
                                                     SymbolName(backEnd, *symbol).value_or(QString()))
                                                .simplified());
    if (lists.bHasOthersFilter(list))
        notices.vTell(
            NoticeKind::Filtered,
            LangText(backEnd, list == ListIndex::Relation ? keys::noticeUnfiltered : keys::noticeFiltered));
    const auto sent = searches.SentAt(list);
    if (sent && sent->endedBreaks < breaks.Ended())
        notices.vTell(NoticeKind::BeforeBreak,
                      LangText(backEnd, keys::noticeBeforeBreak).arg(TimeText(sent->time, true)));
}
