// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/status_report.h"

#include "backend/feed/live_feed.h"
#include "backend/feed/source_health.h"
#include "backend/store/embedded_back_end.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"
#include "host/controls/super_sheet_wnd.h"
#include "terminal/frame/workspace.h"
#include "terminal/sources/source_texts.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int newDaySeconds = 3600;    // how long a day counts as new
constexpr int sameMomentSeconds = 60;  // a clock that is no further off counts as the machine's

QString feedText(const FeedState& state) {
    if (state.kind == FeedState::Reconnecting)
        return terminalText(TextId::FeedReconnecting);
    if (state.kind == FeedState::OnlyRead)
        return terminalText(TextId::FeedOnlyRead);
    if (state.kind == FeedState::Offline)
        return terminalText(TextId::OfflineSince)
            .arg(QDateTime::fromSecsSinceEpoch(state.since).toString(u"HH:mm"_s));
    return state.late > 0 ? countText(TextId::FeedLate, state.late) : terminalText(TextId::FeedLive);
}

// What stands in the way of the feed, then how its sources stand, a line each.
QString feedTip(const LiveFeed& feed) {
    QStringList lines;
    if (const auto trouble = feed.state().trouble)
        lines += shownText(*trouble);
    for (const SourceReport& source : feed.sources())
        lines += u"%1: %2"_s.arg(source.title, stateText(source.state));
    return lines.join(u'\n');
}

// The light is green only while a source is live.
void tellSources(FrameStatus& status, const std::vector<SourceReport>& sources) {
    const SourceHealth health = healthOf(sources);
    status.hasNoSource = health == SourceHealth::None;
    status.isLive = health == SourceHealth::Good;
    switch (health) {
        case SourceHealth::Good:
            break;
        case SourceHealth::None:
            status.feed = terminalText(TextId::NoSources);
            break;
        case SourceHealth::Stale:
            status.feed = terminalText(TextId::SourcesStale);
            break;
        case SourceHealth::Connecting:
            status.feed = terminalText(TextId::SourceConnecting);
            break;
        default:
            status.feed = terminalText(TextId::SourcesSilent);
    }
}

// The rows of the list on show; -1: there is none.
int rowsOf(const NewsViewAccess& access, const QVariantMap& state) {
    const CSuperSheetWnd* sheet = access.sheetOf(state.value(u"mode"_s).toInt());
    return sheet != nullptr ? sheet->model()->rowCount() : -1;
}

// Of the list on show.
QString unreadOf(const QVariantMap& state) {
    for (const QVariant& each : state.value(u"tabs"_s).toList()) {
        const QVariantMap tab = each.toMap();
        if (tab.value(u"selected"_s).toBool())
            return tab.value(u"unread"_s).toString();
    }
    return {};
}

// The day of the list of all news, where that is on show and not the present one.
QDate anotherDayOf(const QVariantMap& state) {
    if (state.value(u"mode"_s).toInt() != 0)
        return {};
    const QDate day = QDate::fromString(state.value(u"pickedDate"_s).toString(), u"yyyyMMdd"_s);
    return day == host_clock::today() ? QDate() : day;
}

constexpr int warrantMode = 5;  // as views number their modes

// -1: the list on show is that of the warrants, which has a service of its own.
int tickedServices(const QVariantMap& state) {
    if (state.value(u"mode"_s).toInt() == warrantMode)
        return -1;
    const QVariantList services = state.value(u"services"_s).toList();
    return static_cast<int>(std::count_if(services.begin(), services.end(), [](const QVariant& service) {
        const QVariantMap entry = service.toMap();
        return entry.value(u"id"_s).toInt() != warrantService && entry.value(u"selected"_s).toBool();
    }));
}

}  // namespace

QString asOfText() {
    const std::int64_t now = host_clock::now();
    if (std::abs(now - QDateTime::currentSecsSinceEpoch()) < sameMomentSeconds)
        return {};
    return QDateTime::fromSecsSinceEpoch(now).toString(u"yyyy/MM/dd HH:mm"_s);
}

StatusReport::StatusReport(EmbeddedBackEnd& embedded, const LiveFeed& liveFeed, Workspace& openViews)
    : backEnd(embedded), feed(liveFeed), workspace(openViews) {
    backEnd.attach(this);
    lastHeadline = backEnd.newestTime();
}

StatusReport::~StatusReport() {
    backEnd.detach(this);
}

void StatusReport::RecvNewHeadLine(const CHeadline* headline, const QString&, const QString&) {
    if (headline != nullptr)
        lastHeadline = std::max(lastHeadline, headline->time);
}

// A leap of the clock to another moment begins no day.
void StatusReport::watchDay(std::int64_t moment) {
    const auto dayOf = [](std::int64_t at) { return QDateTime::fromSecsSinceEpoch(at).date(); };
    constexpr int mostSleepSeconds = 24 * 3600;
    const std::int64_t passed = moment - lastMoment;
    if (passed < 0 || passed > mostSleepSeconds)
        dayBeganAt = 0;
    else if (dayOf(moment) != dayOf(lastMoment))
        dayBeganAt = moment;
    lastMoment = moment;
}

FrameStatus StatusReport::now(const SessionFacts& session) {
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    // Those that the service menu has: the warrants have a list of their own.
    std::erase(services, warrantService);
    const FeedState state = feed.state();
    FrameStatus status;
    status.isLive = state.kind == FeedState::Live;
    // The green light is for real news.
    status.isInvented = session.isSampleFollowed && status.isLive;
    status.feed = status.isInvented ? terminalText(TextId::FeedSample) : feedText(state);
    if (status.isLive && !status.isInvented)
        tellSources(status, withOtherEnds(feed.sources(), backEnd.storePath()));
    status.feedTip = feedTip(feed);
    status.lastHeadline = lastHeadline;
    status.now = host_clock::now();
    status.alerts = session.alerts;
    status.storeFile = session.storeFile;
    watchDay(status.now);
    if (dayBeganAt > 0 && status.now - dayBeganAt < newDaySeconds)
        status.newDay = host_clock::today();
    status.allServices = static_cast<int>(services.size());
    status.services = status.allServices;
    status.asOf = asOfText();
    status.searchBacklog = backEnd.searchBacklog();
    status.searchRenewal = backEnd.searchRenewal();
    if (const OpenView* active = workspace.active()) {
        const QVariantMap view = active->access->state();
        status.services = tickedServices(view);
        status.headlines = rowsOf(*active->access, view);
        status.unread = unreadOf(view);
        status.shownDay = anotherDayOf(view);
    }
    return status;
}

}  // namespace wirepane
