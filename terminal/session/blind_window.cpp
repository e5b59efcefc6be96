// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/blind_window.h"

#include "backend/alerts/alert_desk.h"
#include "backend/feed/live_feed.h"
#include "backend/store/embedded_back_end.h"
#include "host/contract/clock.h"
#include "terminal/frame/main_frame.h"
#include "terminal/translations/shown_time.h"
#include "terminal/translations/terminal_text.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace wirepane {

namespace {

constexpr std::int64_t shortest = 2;            // seconds
constexpr std::chrono::seconds comesWithin{3};  // what was kept away

bool isSilentIn(const std::vector<QuietSource>& sources, const QString& name) {
    return std::ranges::any_of(
        sources, [&](const QuietSource& source) { return source.name == name && !source.answers; });
}

}  // namespace

BlindWindow::BlindWindow(EmbeddedBackEnd& embedded, const AlertDesk& alertDesk, const LiveFeed& feed,
                         MainFrame& mainFrame)
    : backEnd(embedded), alerts(alertDesk), frame(mainFrame), quiet(backEnd.quietSources()) {
    backEnd.attach(this);
    connect(&backEnd.quietTeller(), &QuietTeller::changed, this, &BlindWindow::followSources);
    connect(&feed, &LiveFeed::numbersMissing, this, &BlindWindow::noteMissing);
    soon.setSingleShot(true);
    connect(&soon, &QTimer::timeout, this, &BlindWindow::tell);
}

BlindWindow::~BlindWindow() {
    backEnd.detach(this);
}

void BlindWindow::connectionChanged(bool connected) {
    if (!connected)
        cutOffSince = cutOffSince.value_or(host_clock::now());
    else if (const auto since = std::exchange(cutOffSince, std::nullopt))
        add({{}, *since, host_clock::now()});
}

void BlindWindow::followSources() {
    const std::vector<QuietSource> before = std::exchange(quiet, backEnd.quietSources());
    for (const QuietSource& source : before) {
        if (!source.answers && !isSilentIn(quiet, source.name))
            add({source.name, source.since, host_clock::now()});
    }
}

void BlindWindow::add(const Away& away) {
    if (away.to - away.from < shortest)
        return;
    over.push_back(away);
    soon.start(comesWithin);
}

void BlindWindow::RecvNewHeadLine(const CHeadline* headline, const QString&, const QString&) {
    for (Away& away : over)
        away.late += headline != nullptr && headline->time >= away.from && headline->time < away.to ? 1 : 0;
}

// What is out of order comes within a moment.
void BlindWindow::noteMissing(const QString& source, const NumberGaps& gaps) {
    missing[source] = gaps;
    soon.start(comesWithin);
}

void BlindWindow::tell() {
    for (const Away& away : std::exchange(over, {}))
        frame.showNotice(textOf(away));
    for (const auto& [source, gaps] : std::exchange(missing, {})) {
        if (gaps.missing() > 0)
            frame.showNotice(countText(TextId::BlindMissing, int(gaps.missing())).arg(source, gaps.text()));
    }
}

QString BlindWindow::textOf(const Away& away) const {
    const QString when =
        away.source.isEmpty()
            ? terminalText(TextId::BlindCutOff).arg(shownTime(away.from), shownTime(away.to))
            : terminalText(TextId::BlindSource).arg(away.source, shownTime(away.from), shownTime(away.to));
    const auto matched = std::ranges::count_if(alerts.entries(), [&](const AlertEntry& entry) {
        return entry.matched >= away.to && entry.headline.time >= away.from && entry.headline.time < away.to;
    });
    const QString late = away.late == 0 ? terminalText(TextId::BlindNothing)
                                        : countText(TextId::BlindLate, away.late).arg(matched);
    return terminalText(TextId::BlindBoth).arg(when, late);
}

}  // namespace wirepane
