// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/query_days.h"

#include <QDateTime>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int firstYear = 1900;
constexpr qsizetype mostDigitsBack = 5;

bool isDigits(QStringView text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QueryDay back(int days) {
    return {{}, {}, days};
}

std::optional<QueryDay> countedBack(QStringView text) {
    const QStringView digits = text.sliced(1, text.size() - 2);
    const bool weeks = text.back() == u'w';
    if (!isDigits(digits) || digits.size() > mostDigitsBack || (!weeks && text.back() != u'd'))
        return std::nullopt;
    return back(digits.toInt() * (weeks ? 7 : 1));
}

std::optional<QueryDay> calendarDay(int year, int month, int day) {
    const QDate first(year, month == 0 ? 1 : month, day == 0 ? 1 : day);
    if (!first.isValid() || year < firstYear)
        return std::nullopt;
    const QDate last = month == 0 ? QDate(year, 12, 31)
                       : day == 0 ? QDate(year, month, first.daysInMonth())
                                  : first;
    return QueryDay{first, last};
}

}  // namespace

std::optional<QueryDay> readQueryDay(QStringView text) {
    if (text == QLatin1StringView("today"))
        return back(0);
    if (text == QLatin1StringView("yesterday"))
        return back(1);
    if (text.size() >= 3 && text.front() == u'-')
        return countedBack(text);
    const auto number = [&](qsizetype at, qsizetype digits) { return text.sliced(at, digits).toInt(); };
    if (isDigits(text)) {
        // A part of zero would stand for a part that is not given.
        if (text.size() == 8)
            return number(4, 2) != 0 && number(6, 2) != 0
                       ? calendarDay(number(0, 4), number(4, 2), number(6, 2))
                       : std::nullopt;
        return text.size() == 4 ? calendarDay(number(0, 4), 0, 0) : std::nullopt;
    }
    const auto parts = text.split(u'-');
    const bool isDay = parts.size() == 3 && parts[2].size() == 2;
    if ((parts.size() != 2 && !isDay) || parts[0].size() != 4 || parts[1].size() != 2 ||
        !std::all_of(parts.begin(), parts.end(), [](QStringView part) { return isDigits(part); }))
        return std::nullopt;
    const int month = parts[1].toInt();
    const int day = isDay ? parts[2].toInt() : 0;
    return month != 0 && (day != 0 || !isDay) ? calendarDay(parts[0].toInt(), month, day) : std::nullopt;
}

Moments momentsOf(const QueryDays& days, QDate today) {
    Moments moments;
    if (days.from) {
        const QDate first =
            days.from->first.isValid() ? days.from->first : today.addDays(-days.from->daysBack);
        moments.first = first.startOfDay().toSecsSinceEpoch();
    }
    if (days.to) {
        const QDate last = days.to->last.isValid() ? days.to->last : today.addDays(-days.to->daysBack);
        moments.last = last.addDays(1).startOfDay().toSecsSinceEpoch() - 1;
    }
    return moments;
}

}  // namespace wirepane
