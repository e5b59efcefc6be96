// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/quiet_notice.h"

#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/quiet_sources.h"
#include "news_view/list_notices.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype mostNamed = 3;
constexpr qsizetype longestName = 40;

QString momentText(std::int64_t moment) {
    const bool isOfToday = QDateTime::fromSecsSinceEpoch(moment).date() == host_clock::today();
    return timeText(moment, !isOfToday);
}

}  // namespace

void tellOfSources(ListNotices& notices, BKQuoteInterface& backEnd) {
    const auto* sources = dynamic_cast<const QuietSources*>(&backEnd);
    const std::vector<QuietSource> quiet =
        sources != nullptr ? sources->quietSources() : std::vector<QuietSource>();
    if (quiet.empty())
        return;
    QStringList silent;
    std::int64_t silentSince = 0;
    std::int64_t newest = 0;
    for (const QuietSource& source : quiet) {
        newest = std::max(newest, source.since);
        if (source.answers)
            continue;
        silentSince = silent.isEmpty() ? source.since : std::min(silentSince, source.since);
        silent += source.name.simplified().left(longestName);
    }
    if (silent.isEmpty()) {
        notices.tell(NoticeKind::Quiet, langText(backEnd, keys::noticeNothingNew).arg(momentText(newest)));
        return;
    }
    const bool areMore = silent.size() > mostNamed;
    const QString names = silent.mid(0, mostNamed).join(u", "_s) + (areMore ? u"…"_s : QString());
    notices.tell(NoticeKind::Quiet,
                 langText(backEnd, keys::noticeSilent).arg(names, momentText(silentSince)));
}

}  // namespace wirepane
