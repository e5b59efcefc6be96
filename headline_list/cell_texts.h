// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <cstdint>

class BKQuoteInterface;

namespace wirepane {

// The texts that the cells of headline grids show.

// A moment in local time; invalid for a time outside any calendar (farther than the years 1 to 9999).
QDateTime localTime(std::int64_t secondsSince1970);

// "hh:mm", or "MM/dd hh:mm" with the date, in local time. A time outside any calendar gives an empty text.
QString timeText(std::int64_t secondsSince1970, bool showDate);

// "yyyy/MM/dd" for a moment of another local year than that of `now`; empty for one of the same, and for one
// outside any calendar.
QString otherYearText(std::int64_t secondsSince1970, std::int64_t now);

// A day as the back end's tables are asked for: yyyymmdd; the fields of an invalid date are -1 each.
QString dateKey(const QDate& day);

// A text of a service as it is to be shown: as it is, or, where the back end asks for it, converted to
// simplified characters with the market's own term replaced by the usual one.
QString shownText(BKQuoteInterface& backEnd, unsigned char service, const QString& text);

}  // namespace wirepane
