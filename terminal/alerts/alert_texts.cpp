// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_texts.h"

#include "backend/alerts/alert_entry.h"
#include "terminal/translations/shown_time.h"
#include "terminal/translations/terminal_text.h"

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
    return time == 0 ? QString() : terminalText(what).arg(shownTime(time));
}

QString matchText(const AlertEntry& entry) {
    const AlertWords words = entry.wordsByPlace();
    const QString between = terminalText(TextId::AlertBetweenWords);
    const QString inTitle = words.title.join(between);
    const QString inStory = words.story.join(between);
    if (inTitle.isEmpty() && inStory.isEmpty())
        return terminalText(TextId::AlertMatchedOther).arg(entry.rule);
    if (inStory.isEmpty())
        return terminalText(TextId::AlertMatched).arg(entry.rule, inTitle);
    if (inTitle.isEmpty())
        return terminalText(TextId::AlertMatchedStory).arg(entry.rule, inStory);
    return terminalText(TextId::AlertMatchedBoth).arg(entry.rule, inTitle, inStory);
}

}  // namespace

QString outcomeText(const AlertEntry& entry) {
    return terminalText(outcomes[static_cast<std::size_t>(entry.outcome)]);
}

QString reasonText(const AlertEntry& entry) {
    QStringList moments{
        moment(TextId::AlertPublished, entry.headline.time), moment(TextId::AlertReceived, entry.received),
        moment(TextId::AlertMatchedAt, entry.matched), moment(TextId::AlertToldAt, entry.told)};
    moments.removeAll(QString());
    QStringList lines{matchText(entry), moments.join(u" · "_s)};
    if (entry.outcome != AlertOutcome::Told)
        lines += terminalText(TextId::AlertNotTold).arg(outcomeText(entry));
    return lines.join(u'\n');
}

}  // namespace wirepane
