// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/cell_texts.h"

#include "headline_list/language_keys.h"

QDateTime LocalTime(std::int64_t secondsSince1970) {
    constexpr std::int64_t earliest = -62135596800;  // the beginning of the year 1
    constexpr std::int64_t latest = 253402300799;    // the end of the year 9999
    if (secondsSince1970 < earliest || secondsSince1970 > latest)
        return {};
    return QDateTime::fromSecsSinceEpoch(secondsSince1970);
}

QString TimeText(std::int64_t secondsSince1970, bool showDate) {
    const QDateTime local = LocalTime(secondsSince1970);
    return local.toString(showDate ? QStringLiteral("MM/dd HH:mm") : QStringLiteral("HH:mm"));
}

QString DateKey(const QDate& day) {
    const int year = day.isValid() ? day.year() : -1;
    const int month = day.isValid() ? day.month() : -1;
    const int date = day.isValid() ? day.day() : -1;
    return QString::asprintf("%04d%02d%02d", year, month, date);
}

QString ShownText(BKQuoteInterface& backEnd, unsigned char service, const QString& text) {
    if (!backEnd.LangIsConvertToSimplified(service))
        return text;
    QString converted;
    backEnd.LangConvertToSimplifiedChinese(text, converted);
    const QString term = LangText(backEnd, keys::replaceNews);
    if (!term.isEmpty())
        converted.replace(term, LangText(backEnd, keys::replaceMessage));
    return converted;
}
