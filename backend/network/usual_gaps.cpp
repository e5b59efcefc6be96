// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/usual_gaps.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t hour = 3600;
constexpr double hoursToKnow = 3;         // of one slot: of as many days
constexpr double hoursRemembered = 30;    // beyond them the old ones fade
constexpr std::int64_t longestLook = 96;  // hours back

}  // namespace

void UsualGaps::listen(std::int64_t now) {
    const std::int64_t passed = now - std::exchange(lastHeard, now);
    if (passed <= 0 || passed > hour)
        return;
    Slot& slot = learned.at(slotAt(now));
    slot.hours += static_cast<double>(passed) / hour;
    if (slot.hours > hoursRemembered)
        slot = {slot.hours / 2, slot.arrivals / 2};
}

void UsualGaps::arrive(std::int64_t now) {
    if (lastArrival != 0)
        learned.at(slotAt(now)).arrivals += 1;
    lastArrival = now;
}

double UsualGaps::expected(std::int64_t now) const {
    double count = 0;
    const std::int64_t from = std::max(lastArrival, now - longestLook * hour);
    for (std::int64_t at = lastArrival == 0 ? now : from; at < now;) {
        // Hours of the local day begin with those of the clock or, in some places, between them.
        const std::int64_t end = std::min(now, (at / (hour / 4) + 1) * (hour / 4));
        const Slot& slot = learned.at(slotAt(at));
        if (slot.hours >= hoursToKnow)
            count += slot.arrivals / slot.hours * static_cast<double>(end - at) / hour;
        at = end;
    }
    return count;
}

QString UsualGaps::text() const {
    QStringList parts{QString::number(lastArrival)};
    for (const Slot& slot : learned)
        parts += u"%1/%2"_s.arg(slot.arrivals, 0, 'g', 4).arg(slot.hours, 0, 'g', 4);
    return parts.join(u' ');
}

UsualGaps UsualGaps::parse(const QString& text) {
    UsualGaps gaps;
    const QStringList parts = text.split(u' ');
    if (parts.size() != std::ssize(gaps.learned) + 1)
        return gaps;
    gaps.lastArrival = parts.front().toLongLong();
    for (std::size_t i = 0; i < gaps.learned.size(); ++i) {
        const QStringList pair = parts.at(qsizetype(i) + 1).split(u'/');
        const double arrivals = pair.front().toDouble();
        const double hours = pair.back().toDouble();
        const bool isSound = pair.size() == 2 && arrivals >= 0 && hours >= 0 && hours <= hoursRemembered;
        gaps.learned.at(i) = isSound ? Slot{hours, arrivals} : Slot{};
    }
    return gaps;
}

std::size_t UsualGaps::slotAt(std::int64_t moment) {
    const QDateTime local = QDateTime::fromSecsSinceEpoch(moment);
    const bool isWeekend = local.date().dayOfWeek() >= Qt::Saturday;
    return static_cast<std::size_t>(local.time().hour() + (isWeekend ? 24 : 0));
}

}  // namespace wirepane
