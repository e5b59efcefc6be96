// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_texts.h"

#include "backend/feed/source_health.h"
#include "backend/network/usual_gaps.h"
#include "backend/store/day_bounds.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int minute = 60;
constexpr int second = 1000;  // milliseconds

const QString nothing(1, QChar(0x2013));

QString momentText(std::int64_t moment, std::int64_t now) {
    if (moment == 0)
        return nothing;
    const QDateTime time = QDateTime::fromSecsSinceEpoch(moment);
    const bool isToday = time.date() == QDateTime::fromSecsSinceEpoch(now).date();
    return time.toString(isToday ? u"HH:mm:ss"_s : u"MM/dd HH:mm"_s);
}

QString nextText(const ListedSource& listed, std::int64_t now) {
    if (listed.source.isPaused)
        return nothing;
    if (isStream(listed.source))
        return terminalText(TextId::SourceStream);
    if (listed.standing.nextTry == 0)
        return nothing;
    const std::int64_t wait = std::max<std::int64_t>(0, listed.standing.nextTry - now);
    return wait < 2 * minute ? terminalText(TextId::SourceInSeconds).arg(wait)
                             : terminalText(TextId::SourceInMinutes).arg(wait / minute);
}

QString delayText(std::int64_t delay) {
    if (delay < 0)
        return nothing;
    return delay < second ? u"%1 ms"_s.arg(delay) : u"%1 s"_s.arg(double(delay) / second, 0, 'f', 1);
}

QString intervalText(const NetworkSource& source) {
    if (isStream(source))
        return terminalText(TextId::SourceStream);
    if (source.interval == 0)
        return terminalText(TextId::SourceAdapts);
    return terminalText(TextId::SourceEvery).arg(source.interval);
}

QString placeText(const NetworkSource& source) {
    return source.address.isLocalFile() ? QDir::toNativeSeparators(source.address.toLocalFile())
                                        : source.address.host();
}

ColourRole lampOf(const SourceState& state) {
    const SourceHealth health = healthOf(state);
    if (health == SourceHealth::Good)
        return ColourRole::Good;
    return isFaulty(health) ? ColourRole::Flash : ColourRole::Warning;
}

// As a terminal elsewhere sees it that reads it.
SourceState elsewhereOf(const SourceStanding& standing, std::int64_t now) {
    const UsualGaps gaps = UsualGaps::parse(standing.gaps);
    return gaps.isStale(now) ? SourceState{SourceState::Stale, gaps.lastNews()}
                             : SourceState{SourceState::Live};
}

// What it says of itself: paused, a fault of the last try, or how a terminal stands to it.
void tellState(SourceRow& row, const ListedSource& listed, const std::optional<SourceState>& live,
               std::int64_t now) {
    const SourceStanding& standing = listed.standing;
    if (listed.source.isPaused) {
        row.state = terminalText(TextId::SourcePaused);
    } else if (live && live->reason) {
        row.state = shownText(*live->reason);
        row.lamp = ColourRole::Flash;
    } else if (!standing.fault.isEmpty()) {
        row.state = shownText(QJsonValue(standing.fault));
        row.lamp = ColourRole::Flash;
    } else if (live) {
        row.state = stateText(*live);
        row.lamp = lampOf(*live);
    } else if (standing.nextTry + minute >= now) {
        // Of a terminal elsewhere; one that reads is never late by much.
        const SourceState elsewhere = elsewhereOf(standing, now);
        row.state = stateText(elsewhere);
        row.lamp = lampOf(elsewhere);
    } else {
        row.state = terminalText(standing.lastTry == 0 ? TextId::SourceNotAsked : TextId::SourceNotRead);
    }
    row.isFaulty = row.lamp == ColourRole::Flash;
}

}  // namespace

QString titleOf(const NetworkSource& source) {
    return source.title.isEmpty() ? placeText(source) : source.title;
}

QString kindText(NetworkKind kind) {
    switch (kind) {
        case NetworkKind::Auto:
            return terminalText(TextId::SourceKindAuto);
        case NetworkKind::Feed:
            return u"RSS, Atom"_s;
        case NetworkKind::Ninjs:
            return u"ninjs"_s;
        case NetworkKind::Newsml:
            return u"NewsML-G2"_s;
        case NetworkKind::Table:
            return terminalText(TextId::SourceKindTable);
        case NetworkKind::EventStream:
            return terminalText(TextId::SourceKindEvents);
        case NetworkKind::WebSocket:
            break;
    }
    return u"WebSocket"_s;
}

QString stateText(const SourceState& state) {
    const QString since = QDateTime::fromSecsSinceEpoch(state.since).toString(u"HH:mm"_s);
    switch (state.kind) {
        case SourceState::Connecting:
            return terminalText(TextId::SourceConnecting);
        case SourceState::Live:
            return terminalText(TextId::FeedLive);
        case SourceState::Stale:
            return terminalText(TextId::SourceStale).arg(since);
        case SourceState::Offline:
            return terminalText(TextId::OfflineSince).arg(since);
        case SourceState::Failed:
        case SourceState::Silent:
            break;
    }
    return terminalText(TextId::SourceFailed).arg(since, state.reason ? shownText(*state.reason) : QString());
}

QString delaysText(const SourceDelays& delays) {
    const auto line = [](TextId what, const DelayWindow::Figures& figures) {
        constexpr std::int64_t microsOfMs = 1000;
        return terminalText(what).arg(delayText(figures.half / microsOfMs),
                                      delayText(figures.most / microsOfMs),
                                      delayText(figures.longest / microsOfMs));
    };
    return countText(TextId::SourceDelaysOf, delays.toStore.count) + u'\n' +
           line(TextId::SourceToReceipt, delays.toReceipt) + u'\n' +
           line(TextId::SourceToStore, delays.toStore);
}

SourceRow rowOf(const ListedSource& listed, const std::optional<SourceState>& live, std::int64_t now) {
    const NetworkSource& source = listed.source;
    const QDate today = QDateTime::fromSecsSinceEpoch(now).date();
    SourceRow row;
    row.title = titleOf(source);
    row.detail = QStringList{placeText(source), kindText(source.kind), intervalText(source)}.join(u" · "_s);
    row.last = momentText(listed.standing.lastSuccess, now);
    row.next = nextText(listed, now);
    row.today = QLocale(QLocale::English).toString(listed.standing.itemsOn(dayNumber(today)));
    row.delay = delayText(listed.standing.delay);
    row.icon = source.address.isLocalFile() ? LineIcon::Folder
               : isStream(source)           ? LineIcon::Pipe
                                            : LineIcon::Feed;
    row.isOn = !source.isPaused;
    tellState(row, listed, live, now);
    return row;
}

}  // namespace wirepane
