// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/told_notices.h"

#include "headline_list/cell_texts.h"
#include "headline_list/headline_lists.h"
#include "headline_list/language_keys.h"
#include "headline_list/outages.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/reading_moment.h"
#include "host/contract/symbol_name.h"
#include "news_view/list_notices.h"
#include "search/search_desk.h"

namespace wirepane {

void tellOfBackEnd(ListNotices& notices, BKQuoteInterface& backEnd, const Outages& outages) {
    if (const auto since = outages.lostSince())
        notices.tell(NoticeKind::Offline,
                     langText(backEnd, keys::offlineSince) + QLatin1Char(' ') + timeText(*since, false));
    if (const auto* moment = dynamic_cast<const ReadingMoment*>(&backEnd); moment && moment->isReadAsOf())
        notices.tell(NoticeKind::AsOf, langText(backEnd, keys::noticeAsOf));
}

void tellOfList(ListNotices& notices, BKQuoteInterface& backEnd, ListIndex list, const HeadlineLists& lists,
                const SearchDesk& searches, const Outages& outages) {
    if (const auto symbol = searches.narrowing(list))
        notices.tell(NoticeKind::Narrowed, langText(backEnd, keys::noticeNarrowed)
                                               .arg(symbol->code + QLatin1Char(' ') +
                                                    symbolName(backEnd, *symbol).value_or(QString()))
                                               .simplified());
    if (lists.hasOthersFilter(list))
        notices.tell(
            NoticeKind::Filtered,
            langText(backEnd, list == ListIndex::Relation ? keys::noticeUnfiltered : keys::noticeFiltered));
    const auto sent = searches.sentAt(list);
    if (sent && sent->endedOutages < outages.ended())
        notices.tell(NoticeKind::BeforeOutage,
                     langText(backEnd, keys::noticeBeforeOutage).arg(timeText(sent->time, true)));
}

}  // namespace wirepane
