// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/standing_text.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// What is said of a check; "%1": what the list is of, "%2": what the headline has.
struct CheckText {
    StandingCheck check;
    QString passed;
    QString failed;
    QString nothingWanted;  // instead of both, where nothing is chosen, ticked or searched for
};

const CheckText& textOf(StandingCheck check) {
    static const std::array texts{
        CheckText{StandingCheck::Told, {}, {}, u"the back end does not tell it before its time"_s},
        CheckText{StandingCheck::Service, u"it is of service %1"_s, u"it is of service %2, not %1"_s, {}},
        CheckText{StandingCheck::Day, u"it is of the list's day, %1"_s, u"it is of %2, the list of %1"_s, {}},
        CheckText{StandingCheck::Topic, u"it is of the list's topic, %1"_s,
                  u"it is of topic %2, the list of %1"_s, u"no topic is chosen"_s},
        CheckText{StandingCheck::Symbol, u"it names the list's symbol, %1"_s,
                  u"it does not name the list's symbol, %1"_s, u"the list has no symbol yet"_s},
        CheckText{StandingCheck::KeySets, u"a ticked key set wants it"_s, u"no ticked key set wants it"_s,
                  u"no key set is ticked"_s},
        CheckText{StandingCheck::Filter, u"the list was read under the key sets, one of which wants it"_s,
                  u"the list was read under the key sets, none of which wants it"_s,
                  u"the list was read under the key sets, none of which is ticked"_s},
        CheckText{StandingCheck::Search, u"the last search found it"_s, u"the last search did not find it"_s,
                  u"nothing was searched for"_s},
    };
    return *std::find_if(texts.begin(), texts.end(),
                         [check](const CheckText& text) { return text.check == check; });
}

QString reasonOf(const CheckedStanding& checked, const TopicName& topicName) {
    // Ticks are told of without what the list wants.
    if (checked.check == StandingCheck::Service && checked.wanted.isEmpty())
        return (checked.passed ? u"its service, %1, is ticked"_s : u"its service, %1, is not ticked"_s)
            .arg(checked.has);
    // That all else is told goes without saying.
    if (checked.check == StandingCheck::Told && checked.passed)
        return {};
    const CheckText& text = textOf(checked.check);
    if (checked.wanted.isEmpty())
        return text.nothingWanted;
    QString reason = checked.passed ? text.passed : text.failed;
    const bool isTopic = checked.check == StandingCheck::Topic;
    return reason.replace(u"%1"_s, isTopic ? topicName(checked.wanted) : checked.wanted)
        .replace(u"%2"_s, isTopic ? topicName(checked.has) : checked.has);
}

QString listName(int list) {
    static const QStringList names{u"All News"_s,        u"By Category"_s, u"By Symbol"_s,    u"Search"_s,
                                   u"Relation Search"_s, u"Warrants"_s,    u"Warning Terms"_s};
    return names.value(list);
}

QString placeOf(const HeadlineStanding& standing) {
    if (standing.row >= 0)
        return u"row %1"_s.arg(standing.row + 1);
    const bool isKeptOut = std::any_of(standing.checks.begin(), standing.checks.end(),
                                       [](const CheckedStanding& checked) { return !checked.passed; });
    if (isKeptOut)
        return u"not there"_s;
    return standing.wasRead ? u"not there before the list is read anew"_s
                            : u"not there before the list is read"_s;
}

}  // namespace

QString standingText(const HeadlineStanding& standing, const TopicName& topicName) {
    QStringList reasons;
    for (const CheckedStanding& checked : standing.checks) {
        if (const QString reason = reasonOf(checked, topicName); !reason.isEmpty())
            reasons.append(reason);
    }
    return u"%1: %2: %3."_s.arg(listName(standing.list), placeOf(standing), reasons.join(u"; "_s));
}

}  // namespace wirepane
