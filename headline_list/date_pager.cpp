// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/date_pager.h"

#include <stdexcept>

namespace wirepane {

DateCheck checkPickedDate(const QDate& wanted, const QDate& inForce, const QDate& today, int range) {
    if (wanted < today.addDays(-range))
        return DateCheck::TooEarly;
    if (wanted > today)
        return DateCheck::TooLate;
    return wanted == inForce ? DateCheck::Same : DateCheck::Accepted;
}

QDate dayOfNumber(std::int32_t yyyymmdd) {
    constexpr int firstYear = 1900;
    const int year = yyyymmdd / 10000;
    const int month = yyyymmdd / 100 % 100;
    const int day = yyyymmdd % 100;
    if (year < firstYear || month < 1 || month > 12 || day < 1 || day > 31)
        throw std::invalid_argument("not a calendar day");
    return QDate(year, month, 1).addDays(day - 1);
}

int entryOfNewDay(const std::vector<ServiceEntry>& services, const CMarketStatus& status) {
    for (std::size_t i = 0; i < services.size(); ++i) {
        if (services[i].service != status.service)
            continue;
        if (!services[i].selected)
            return -1;
        if (services[i].date != status.date)
            return static_cast<int>(i);
    }
    return -1;
}

DateCheck DatePager::pick(const QDate& wanted, const QDate& today) {
    const DateCheck check = checkPickedDate(wanted, picked, today, range);
    if (check == DateCheck::Accepted)
        picked = wanted;
    return check;
}

void DatePager::startNewsDay(const QDate& day, const QDate& shown) {
    newsDay = day;
    picked = shown;
}

}  // namespace wirepane
