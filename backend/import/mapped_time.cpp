// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_time.h"

#include "backend/import/import_errors.h"
#include "backend/import/news_time.h"
#include "backend/import/wire_form.h"

#include <QDateTime>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView fieldLetters = u"yMdHms";
constexpr qsizetype longestTime = 64;

qsizetype runLength(QStringView form, qsizetype at) {
    qsizetype end = at;
    while (end < form.size() && form.at(end) == form.at(at))
        ++end;
    return end - at;
}

QString patternOf(QChar letter, qsizetype length) {
    if (letter == u'y')
        return length == 1 ? u"(\\d+)"_s : u"(\\d{%1})"_s.arg(length);
    return length == 1 ? u"(\\d{1,2})"_s : u"(\\d{2})"_s;
}

Error unreadable(const QString& text) {
    return makeError<import_errors::rowTimeUnread>(titleLine(text.left(60)));
}

int& partOf(TimeForm::Parts& parts, QChar letter) {
    switch (letter.unicode()) {
        case u'y':
            return parts.year.emplace(0);
        case u'M':
            return parts.month;
        case u'd':
            return parts.day;
        case u'H':
            return parts.hour;
        case u'm':
            return parts.minute;
        default:
            return parts.second;
    }
}

// The moment at which a clock in the zone shows this.
std::int64_t momentOf(const QDate& date, const QTime& time, const QTimeZone& zone) {
    return QDateTime(date, time, zone).toSecsSinceEpoch();
}

std::optional<std::int64_t> moment(const TimeForm::Parts& parts, int yearsFrom, const QTimeZone& zone) {
    const QDate date(parts.year.value_or(0) + yearsFrom, parts.month, parts.day);
    const QTime time(parts.hour, parts.minute, parts.second);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    const std::int64_t seconds = momentOf(date, time, zone);
    return isNewsTime(seconds) ? std::optional(seconds) : std::nullopt;
}

// A zone in the text goes before the mapping's.
std::optional<std::int64_t> moment(const StatedTime& stated, const QTimeZone& zone) {
    const QDateTime wallClock = QDateTime::fromSecsSinceEpoch(stated.wallClock, Qt::UTC);
    const std::int64_t seconds =
        stated.hasZone ? stated.moment() : momentOf(wallClock.date(), wallClock.time(), zone);
    return isNewsTime(seconds) ? std::optional(seconds) : std::nullopt;
}

}  // namespace

Result<TimeForm> TimeForm::parse(const QString& form) {
    TimeForm parsed;
    QString pattern;
    bool onlyPairs = true;
    for (qsizetype at = 0; at < form.size();) {
        const QChar letter = form.at(at);
        const bool isField = fieldLetters.contains(letter);
        const qsizetype length = isField ? runLength(form, at) : 1;
        onlyPairs = onlyPairs && isField && letter != u'y' && length == 2;
        if (isField && (parsed.fields.contains(letter) || length > (letter == u'y' ? 4 : 2)))
            return makeError<import_errors::timeFormAt>(form, letter);
        if (isField)
            parsed.fields += letter;
        pattern += isField ? patternOf(letter, length) : QRegularExpression::escape(QString(letter));
        at += length;
    }
    if (parsed.fields.isEmpty())
        return makeError<import_errors::timeForm>(form);
    parsed.pattern.setPattern(QRegularExpression::anchoredPattern(pattern));
    parsed.digits = onlyPairs ? form.size() : 0;
    return parsed;
}

bool TimeForm::read(QStringView text, Parts& parts) const {
    const QString padded =
        text.size() > longestTime ? QString() : text.toString().rightJustified(digits, u'0');
    const auto match = pattern.match(padded);
    if (!match.hasMatch())
        return false;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        const QStringView number = match.capturedView(int(i + 1));
        if (number.size() > 4)
            return false;
        partOf(parts, fields.at(i)) = number.toInt();
    }
    return true;
}

Result<std::int64_t> MappedTime::read(const QString& date, const QString& clock) const {
    if (date.isEmpty())
        return makeError<import_errors::rowWithoutDate>();
    TimeForm::Parts parts;
    int yearsToAdd = yearsFrom;
    if (!dateForm) {
        const auto stated = statedTime(date);
        if (!stated)
            return unreadable(date);
        // A time of day in the text goes before that of another column.
        if (stated->hasClock || stated->hasZone || clock.isEmpty()) {
            const auto time = moment(*stated, zone);
            return time ? Result<std::int64_t>(*time) : unreadable(date);
        }
        const QDate day = QDateTime::fromSecsSinceEpoch(stated->wallClock, Qt::UTC).date();
        parts.year = day.year();
        parts.month = day.month();
        parts.day = day.day();
        yearsToAdd = 0;
    } else if (!dateForm->read(date, parts)) {
        return unreadable(date);
    }
    if (!clock.isEmpty() && !(clockForm && clockForm->read(clock, parts)))
        return unreadable(clock);
    const auto time = moment(parts, yearsToAdd, zone);
    return time ? Result<std::int64_t>(*time) : unreadable(clock.isEmpty() ? date : date + u' ' + clock);
}

}  // namespace wirepane
