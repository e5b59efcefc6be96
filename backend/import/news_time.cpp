// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/news_time.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTime = 64;

struct Zone {
    QLatin1StringView name;
    int minutes;
};

constexpr std::array<Zone, 27> zones{{
    {QLatin1StringView("z"), 0},      {QLatin1StringView("ut"), 0},     {QLatin1StringView("utc"), 0},
    {QLatin1StringView("gmt"), 0},    {QLatin1StringView("wet"), 0},    {QLatin1StringView("bst"), 60},
    {QLatin1StringView("west"), 60},  {QLatin1StringView("cet"), 60},   {QLatin1StringView("met"), 60},
    {QLatin1StringView("cest"), 120}, {QLatin1StringView("mest"), 120}, {QLatin1StringView("eet"), 120},
    {QLatin1StringView("eest"), 180}, {QLatin1StringView("msk"), 180},  {QLatin1StringView("hkt"), 480},
    {QLatin1StringView("sgt"), 480},  {QLatin1StringView("awst"), 480}, {QLatin1StringView("jst"), 540},
    {QLatin1StringView("kst"), 540},  {QLatin1StringView("est"), -300}, {QLatin1StringView("edt"), -240},
    {QLatin1StringView("cst"), -360}, {QLatin1StringView("cdt"), -300}, {QLatin1StringView("mst"), -420},
    {QLatin1StringView("mdt"), -360}, {QLatin1StringView("pst"), -480}, {QLatin1StringView("pdt"), -420},
}};

std::optional<int> zoneMinutes(QStringView zone) {
    if (zone.front() == u'+' || zone.front() == u'-') {
        const QStringView digits = zone.sliced(1);
        const int hours = digits.first(2).toInt();
        const int minutes = digits.size() > 2 ? digits.last(2).toInt() : 0;
        if (hours > 14 || minutes > 59)
            return std::nullopt;
        return (zone.front() == u'-' ? -1 : 1) * (hours * 60 + minutes);
    }
    const auto* known = std::find_if(zones.begin(), zones.end(), [&](const Zone& one) {
        return zone.compare(one.name, Qt::CaseInsensitive) == 0;
    });
    return known == zones.end() ? std::nullopt : std::optional<int>(known->minutes);
}

int numberOr(const QRegularExpressionMatch& match, const QString& group, int otherwise) {
    const QStringView text = match.capturedView(group);
    return text.isEmpty() ? otherwise : text.toInt();
}

std::optional<StatedTime> stated(const QRegularExpressionMatch& match, int year, int month) {
    const QDate day(year, month, numberOr(match, u"day"_s, 1));
    const int hour = numberOr(match, u"hour"_s, 0);
    const int minute = numberOr(match, u"minute"_s, 0);
    const int second = numberOr(match, u"second"_s, 0);
    const QStringView zone = match.capturedView(u"zone"_s);
    const auto offset = zone.isEmpty() ? std::optional(0) : zoneMinutes(zone);
    if (!day.isValid() || hour > 24 || minute > 59 || second > 60 || !offset)
        return std::nullopt;
    const std::int64_t dayStart = day.startOfDay(Qt::UTC).toSecsSinceEpoch();
    return StatedTime{dayStart + hour * 3600 + minute * 60 + second, match.capturedLength(u"hour"_s) > 0,
                      !zone.isEmpty(), *offset};
}

std::optional<StatedTime> isoTime(const QString& text) {
    static const QRegularExpression form(
        uR"(^(?<year>\d{4})(-?(?<month>\d\d)(-?(?<day>\d\d)([Tt ]\s*(?<hour>\d\d)(:?(?<minute>\d\d)(:?(?<second>\d\d)([.,]\d+)?)?)?\s*(?<zone>[Zz]|[+-]\d\d(:?\d\d)?)?)?)?)?$)"_s);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return stated(match, numberOr(match, u"year"_s, 0), numberOr(match, u"month"_s, 1));
}

std::optional<StatedTime> mailTime(const QString& text) {
    static const QRegularExpression form(
        uR"(^([A-Za-z]+\.?,?\s+)?(?<day>\d{1,2})[\s-]+(?<month>[A-Za-z]{3})[A-Za-z]*\.?[\s-]+(?<year>\d{4}|\d\d)(,?\s+(?<hour>\d{1,2}):(?<minute>\d\d)(:(?<second>\d\d)(\.\d+)?)?)?(\s*(?<zone>[A-Za-z]+|[+-]\d\d:?\d\d))?(\s*\(.*\))?$)"_s);
    static const QString months = u"janfebmaraprmayjunjulaugsepoctnovdec"_s;
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const qsizetype month = months.indexOf(match.captured(u"month"_s).toLower());
    if (month < 0 || month % 3 != 0)
        return std::nullopt;
    int year = numberOr(match, u"year"_s, 0);
    if (match.capturedLength(u"year"_s) == 2)
        year += year < 70 ? 2000 : 1900;
    return stated(match, year, int(month / 3) + 1);
}

}  // namespace

std::optional<StatedTime> statedTime(QStringView text) {
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty() || trimmed.size() > longestTime)
        return std::nullopt;
    const QString time = trimmed.toString();
    const auto iso = isoTime(time);
    return iso ? iso : mailTime(time);
}

std::optional<std::int64_t> newsTime(QStringView text) {
    const auto stated = statedTime(text);
    return stated && isNewsTime(stated->moment()) ? std::optional(stated->moment()) : std::nullopt;
}

}  // namespace wirepane
