// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_texts.h"

#include "backend/alerts/alert_entry.h"
#include "terminal/translations/terminal_text.h"

#include <QDateTime>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::array outcomes{TextId::AlertTold,      TextId::AlertRuleOff, TextId::AlertDisconnected,
                              TextId::AlertDuplicate, TextId::AlertLate,    TextId::AlertQuietHours,
                              TextId::AlertPause};
static_assert(outcomes.size() == lastAlertOutcome + 1);

QString moment(TextId what, std::int64_t time) {
    return time == 0 ? QString()
                     : terminalText(what).arg(QDateTime::fromSecsSinceEpoch(time).toString(u"HH:mm:ss"_s));
}

}  // namespace

QString outcomeText(const AlertEntry& entry) {
    return terminalText(outcomes[static_cast<std::size_t>(entry.outcome)]);
}

QString reasonText(const AlertEntry& entry) {
    const QString words = entry.words.join(terminalText(TextId::AlertBetweenWords));
    const QString rule = words.isEmpty() ? terminalText(TextId::AlertMatchedOther).arg(entry.rule)
                                         : terminalText(TextId::AlertMatched).arg(entry.rule, words);
    QStringList moments{
        moment(TextId::AlertPublished, entry.headline.time), moment(TextId::AlertReceived, entry.received),
        moment(TextId::AlertMatchedAt, entry.matched), moment(TextId::AlertToldAt, entry.told)};
    moments.removeAll(QString());
    QStringList lines{rule, moments.join(u" · "_s)};
    if (entry.outcome != AlertOutcome::Told)
        lines += terminalText(TextId::AlertNotTold).arg(outcomeText(entry));
    return lines.join(u'\n');
}

}  // namespace wirepane
