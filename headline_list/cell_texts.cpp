// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/cell_texts.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"

#include <atomic>
#include <chrono>

namespace wirepane {

namespace {

bool isInCalendar(std::int64_t secondsSince1970) {
    constexpr std::int64_t earliest = -62135596800;  // the beginning of the year 1
    constexpr std::int64_t latest = 253402300799;    // the end of the year 9999
    return secondsSince1970 >= earliest && secondsSince1970 <= latest;
}

// Seconds. Asking the system costs more than all else about a cell, and headlines that are written together
// are near in time: the last answer is kept for the quarter of an hour that it holds for, both in one number,
// so that no thread sees half of it.
int offsetFromUtc(std::int64_t secondsSince1970) {
    constexpr std::int64_t quarter = 900;
    constexpr std::int64_t offsets = 1 << 20;  // more than there are, half of them west of Greenwich
    static std::atomic<std::int64_t> known = -1;
    // Before 1970 clocks were set at odd seconds.
    if (secondsSince1970 < 0)
        return QDateTime::fromSecsSinceEpoch(secondsSince1970).offsetFromUtc();
    const std::int64_t wanted = secondsSince1970 / quarter;
    std::int64_t answer = known;
    if (answer < 0 || answer / offsets != wanted) {
        const int offset = QDateTime::fromSecsSinceEpoch(secondsSince1970).offsetFromUtc();
        answer = wanted * offsets + offset + offsets / 2;
        known = answer;
    }
    return static_cast<int>(answer % offsets - offsets / 2);
}

QString twoDigits(unsigned first, char16_t between, unsigned second) {
    const auto digit = [](unsigned value) { return static_cast<char16_t>(u'0' + value % 10); };
    const char16_t text[] = {digit(first / 10), digit(first), between, digit(second / 10), digit(second)};
    return QString::fromUtf16(text, 5);
}

}  // namespace

QDateTime localTime(std::int64_t secondsSince1970) {
    return isInCalendar(secondsSince1970) ? QDateTime::fromSecsSinceEpoch(secondsSince1970) : QDateTime();
}

QString timeText(std::int64_t secondsSince1970, bool showDate) {
    if (!isInCalendar(secondsSince1970))
        return {};
    using namespace std::chrono;
    const sys_seconds local{seconds(secondsSince1970 + offsetFromUtc(secondsSince1970))};
    const auto day = floor<days>(local);
    const hh_mm_ss time(local - day);
    const QString hourAndMinute = twoDigits(static_cast<unsigned>(time.hours().count()), u':',
                                            static_cast<unsigned>(time.minutes().count()));
    if (!showDate)
        return hourAndMinute;
    const year_month_day date(day);
    return twoDigits(static_cast<unsigned>(date.month()), u'/', static_cast<unsigned>(date.day())) + u' ' +
           hourAndMinute;
}

QString otherYearText(std::int64_t secondsSince1970, std::int64_t now) {
    if (!isInCalendar(secondsSince1970) || !isInCalendar(now))
        return {};
    using namespace std::chrono;
    const auto dateOf = [](std::int64_t moment) {
        return year_month_day(floor<days>(sys_seconds{seconds(moment + offsetFromUtc(moment))}));
    };
    const year_month_day date = dateOf(secondsSince1970);
    if (date.year() == dateOf(now).year())
        return {};
    return QString::number(static_cast<int>(date.year())).rightJustified(4, u'0') + u'/' +
           twoDigits(static_cast<unsigned>(date.month()), u'/', static_cast<unsigned>(date.day()));
}

QString dateKey(const QDate& day) {
    const int year = day.isValid() ? day.year() : -1;
    const int month = day.isValid() ? day.month() : -1;
    const int date = day.isValid() ? day.day() : -1;
    return QString::asprintf("%04d%02d%02d", year, month, date);
}

QString shownText(BKQuoteInterface& backEnd, unsigned char service, const QString& text) {
    if (!backEnd.LangIsConvertToSimplified(service))
        return text;
    QString converted;
    backEnd.LangConvertToSimplifiedChinese(text, converted);
    const QString term = langText(backEnd, keys::replaceNews);
    if (!term.isEmpty())
        converted.replace(term, langText(backEnd, keys::replaceMessage));
    return converted;
}

}  // namespace wirepane
