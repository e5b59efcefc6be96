// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/row_tip.h"

#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/news_record.h"

#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString ageText(BKQuoteInterface& backEnd, std::int64_t seconds) {
    constexpr std::int64_t minute = 60;
    constexpr std::int64_t hour = 60 * minute;
    constexpr std::int64_t day = 24 * hour;
    if (seconds < 0)
        return {};
    const auto [key, unit] = seconds < minute    ? std::pair(keys::secondsAgo, std::int64_t{1})
                             : seconds < hour    ? std::pair(keys::minutesAgo, minute)
                             : seconds < 2 * day ? std::pair(keys::hoursAgo, hour)
                                                 : std::pair(keys::daysAgo, day);
    return langText(backEnd, key).arg(seconds / unit);
}

}  // namespace

QString rowTip(BKQuoteInterface& backEnd, const QString& title, const QString& service, const QString& topic,
               std::int64_t time, std::int64_t now) {
    const QDateTime moment = localTime(time);
    QStringList parts{service, topic};
    if (moment.isValid())
        parts << moment.toString(u"yyyy/MM/dd HH:mm:ss"_s) << ageText(backEnd, now - time);
    parts.removeAll(QString());
    QStringList lines{title, parts.join(u" \u00B7 "_s)};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString recordTip(BKQuoteInterface& backEnd, const NewsState& state) {
    QString text;
    if (state.corrections > 0)
        text += u'\n' + langText(backEnd, keys::correctedTip).arg(state.corrections);
    if (state.withdrawal)
        text += u'\n' + withdrawalText(backEnd, *state.withdrawal);
    return text;
}

QString withdrawalText(BKQuoteInterface& backEnd, const Withdrawal& withdrawal) {
    const QString time = localTime(withdrawal.moment).toString(u"yyyy/MM/dd HH:mm:ss"_s);
    return withdrawal.reason.isEmpty()
               ? langText(backEnd, keys::withdrawnTip).arg(time)
               : langText(backEnd, keys::withdrawnWhyTip).arg(time, withdrawal.reason);
}

}  // namespace wirepane
