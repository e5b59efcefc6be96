// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/table_announcements.h"

#include "backend/store/day_bounds.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr qint64 pauseMs = 1000;
constexpr int askAgainMs = 20;
constexpr qint64 mostPatienceMs = 3000;  // with news that does not end

}  // namespace

TableAnnouncements::TableAnnouncements(std::function<bool()> arriving,
                                       std::function<void(const AnnouncedTables&)> telling)
    : isArriving(std::move(arriving)), tell(std::move(telling)) {
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &TableAnnouncements::tellWaiting);
}

void TableAnnouncements::add(const HeadlineKey& key, std::int32_t categoryId,
                             const std::vector<CSymbolInfo>& symbols, bool inTables) {
    if (waiting.empty())
        sinceFirst.start();
    waiting.news[key.service].push_back(key);
    waiting.days.emplace(key.service, dayNumber(localDays.dateOf(key.time)));
    if (inTables) {
        waiting.categories.emplace(key.service, categoryId);
        for (const CSymbolInfo& symbol : symbols)
            waiting.symbols.emplace(key.service, symbol.code);
    }
    if (!timer.isActive())
        open();
}

void TableAnnouncements::open() {
    if (waiting.empty())
        return;
    const qint64 since = sinceTold.isValid() ? sinceTold.elapsed() : pauseMs;
    timer.start(static_cast<int>(std::max<qint64>(0, pauseMs - since)));
}

void TableAnnouncements::tellWaiting() {
    if (isArriving() && sinceFirst.elapsed() < mostPatienceMs) {
        timer.start(askAgainMs);
        return;
    }
    sinceTold.start();
    // Who is told may take more in.
    tell(std::exchange(waiting, {}));
}

}  // namespace wirepane
