// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/news_days.h"

#include "host/contract/clock.h"

#include <algorithm>

namespace wirepane {

namespace {

std::int32_t presentDay() {
    return dayNumber(host_clock::today());
}

}  // namespace

void NewsDays::forget() {
    reports.clear();
    start = presentDay();
}

void NewsDays::report(unsigned char service, std::int32_t day) {
    reports.insert_or_assign(service, Report{day, presentDay()});
}

std::int32_t NewsDays::of(unsigned char service) const {
    const std::int32_t today = presentDay();
    const auto report = reports.find(service);
    if (report == reports.end())
        return today;
    // A source may be in another day than the clock says, until the clock has left that day, too.
    return report->second.made == today ? report->second.day : std::max(report->second.day, today);
}

bool NewsDays::begins(unsigned char service, std::int32_t day) const {
    if (day != presentDay())
        return false;
    const auto report = reports.find(service);
    return report != reports.end() ? report->second.day < day : start != day;
}

}  // namespace wirepane
