// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/service_entry.h"
#include "host/contract/records.h"

#include <QDate>

#include <cstdint>
#include <vector>

namespace wirepane {

// The checks on a day that the user picks, on calendar days.
enum class DateCheck {
    TooEarly,  // further back than the range allows
    TooLate,   // after the present day
    Same,      // the day that is in force already
    Accepted,
};

// `range`: the number of days back that may be picked, 0 or more. What is out of range is told first.
DateCheck checkPickedDate(const QDate& wanted, const QDate& inForce, const QDate& today, int range);

// The day that a number yyyymmdd names; a day that its month lacks counts on into the next month. Throws
// std::invalid_argument for a year below 1900, a month outside 1 to 12, a day outside 1 to 31.
QDate dayOfNumber(std::int32_t yyyymmdd);

// The index of the entry for which a market status begins a new news day: its service is ticked and stands
// at another date. -1: the status changes nothing.
int entryOfNewDay(const std::vector<ServiceEntry>& services, const CMarketStatus& status);

// The two dates of a view: the picked date, whose news the lists of a day show, and the current news day,
// whose headlines are being pushed.
class DatePager {
public:
    // Both are `today`; the range is 0.
    explicit DatePager(const QDate& today) : picked(today), newsDay(today) {}

    const QDate& pickedDate() const { return picked; }
    const QDate& currentNewsDay() const { return newsDay; }
    int rangeInDays() const { return range; }
    // How many days back may be picked.
    void setRange(int days) { range = days; }

    // Checks a date; an accepted one is the picked date from here on.
    DateCheck pick(const QDate& wanted, const QDate& today);
    // A news day begins, and what the date picker shows of it is picked.
    void startNewsDay(const QDate& day, const QDate& shown);

private:
    QDate picked;
    QDate newsDay;
    int range = 0;
};

}  // namespace wirepane
