// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/http_values.h"

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype longestValue = 1024;
constexpr qsizetype longestNumber = 9;

// Digits alone; a number that is out of all bounds is a very long time.
std::optional<std::int64_t> wholeNumber(QByteArrayView text) {
    const bool isNumber =
        !text.isEmpty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber)
        return std::nullopt;
    return text.first(std::min(text.size(), longestNumber)).toByteArray().toLongLong();
}

// Calls `visit` with the name, in lower case, and the value of each "name=value" between the separators.
void eachPart(QByteArrayView text, char separator, const auto& visit) {
    const QByteArray whole = text.first(std::min(text.size(), longestValue)).toByteArray();
    for (const QByteArray& part : whole.split(separator)) {
        const qsizetype equals = part.indexOf('=');
        QByteArray value = equals < 0 ? QByteArray() : part.mid(equals + 1).trimmed();
        if (value.size() > 1 && value.startsWith('"') && value.endsWith('"'))
            value = value.mid(1, value.size() - 2);
        visit((equals < 0 ? part : part.first(equals)).trimmed().toLower(), value);
    }
}

}  // namespace

std::optional<std::int64_t> httpDate(QByteArrayView text) {
    const QString date = QString::fromLatin1(text.first(std::min(text.size(), longestValue))).simplified();
    const QLocale english = QLocale::c();
    const QString ofTwoDigits = u"dddd, dd-MMM-yy hh:mm:ss 'GMT'"_s;
    for (const QString& form :
         {u"ddd, dd MMM yyyy hh:mm:ss 'GMT'"_s, ofTwoDigits, u"ddd MMM d hh:mm:ss yyyy"_s}) {
        QDateTime moment = english.toDateTime(date, form);
        if (!moment.isValid())
            continue;
        constexpr int firstYear = 1970;
        if (form == ofTwoDigits && moment.date().year() < firstYear)
            moment = moment.addYears(100);
        moment.setTimeZone(QTimeZone::utc());
        return moment.toSecsSinceEpoch();
    }
    return std::nullopt;
}

std::optional<std::int64_t> retryAfter(QByteArrayView text, std::int64_t now) {
    if (const auto seconds = wholeNumber(text.trimmed()))
        return seconds;
    const auto moment = httpDate(text);
    return moment ? std::optional(std::max<std::int64_t>(*moment - now, 0)) : std::nullopt;
}

std::optional<std::int64_t> freshFor(QByteArrayView cacheControl) {
    std::optional<std::int64_t> seconds;
    bool isNeverFresh = false;
    eachPart(cacheControl, ',', [&](const QByteArray& name, const QByteArray& value) {
        if (name == "max-age" && !seconds)
            seconds = wholeNumber(value);
        isNeverFresh = isNeverFresh || name == "no-cache" || name == "no-store";
    });
    return isNeverFresh ? 0 : seconds;
}

QByteArray charsetOf(QByteArrayView contentType) {
    QByteArray charset;
    eachPart(contentType, ';', [&](const QByteArray& name, const QByteArray& value) {
        if (name == "charset" && charset.isEmpty())
            charset = value.toLower();
    });
    return charset;
}

}  // namespace wirepane
