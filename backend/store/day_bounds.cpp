// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/day_bounds.h"

#include <QDateTime>

#include <algorithm>

namespace wirepane {

DayBounds boundsOf(QDate day) {
    return {day.startOfDay().toSecsSinceEpoch(), day.addDays(1).startOfDay().toSecsSinceEpoch()};
}

std::int32_t dayNumber(QDate day) {
    return day.year() * 10000 + day.month() * 100 + day.day();
}

QDate dayOfText(const QString& text) {
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (text.size() != 8 || !std::all_of(text.begin(), text.end(), isDigit))
        return {};
    const int number = text.toInt();
    return QDate(number / 10000, number / 100 % 100, number % 100);
}

}  // namespace wirepane
