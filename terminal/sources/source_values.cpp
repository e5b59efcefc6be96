// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_values.h"

#include "backend/store/day_bounds.h"
#include "terminal/sources/new_source.h"
#include "terminal/translations/shown_text.h"

#include <QDateTime>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString momentValue(std::int64_t moment) {
    return QDateTime::fromSecsSinceEpoch(moment, Qt::UTC).toString(Qt::ISODate);
}

}  // namespace

QJsonObject typedDefinition(const SplitAddress& typed) {
    NetworkSource source = newSource(typed);
    source.isTyped = true;
    if (!typed.secret.authorisation.isEmpty())
        source.secret = secretToKeep;
    return toJson(source);
}

QJsonObject valueOf(const ListedSource& listed) {
    const SourceStanding& standing = listed.standing;
    QJsonObject stands{{u"itemsToday"_s, standing.itemsOn(dayNumber(QDate::currentDate()))}};
    for (const auto& [name, moment] :
         {std::pair(u"lastTry"_s, standing.lastTry), std::pair(u"lastSuccess"_s, standing.lastSuccess),
          std::pair(u"nextTry"_s, standing.nextTry)}) {
        if (moment != 0)
            stands.insert(name, momentValue(moment));
    }
    if (standing.delay >= 0)
        stands.insert(u"delay"_s, standing.delay);
    if (!standing.fault.isEmpty())
        stands.insert(u"fault"_s, shownText(QJsonValue(standing.fault)));
    QJsonObject value = toJson(listed.source);
    value.insert(u"standing"_s, stands);
    return value;
}

QJsonObject valueOf(const TrialReport& report) {
    QJsonArray items;
    for (const TrialItem& item : report.first)
        items.append(QJsonObject{
            {u"time"_s, momentValue(item.time)}, {u"category"_s, item.category}, {u"title"_s, item.title}});
    QJsonArray links;
    for (const FeedLink& link : report.links)
        links.append(QJsonObject{{u"title"_s, link.title}, {u"address"_s, link.address.toString()}});
    QJsonObject value{{u"items"_s, report.items},
                      {u"rejected"_s, report.rejected},
                      {u"tooOld"_s, report.left},
                      {u"first"_s, items}};
    if (!report.title.isEmpty())
        value.insert(u"title"_s, report.title);
    if (!links.isEmpty())
        value.insert(u"feeds"_s, links);
    if (report.fitting)
        value.insert(u"mapping"_s, report.fitting->mapping);
    if (report.fault)
        value.insert(u"fault"_s, shownText(*report.fault));
    return value;
}

}  // namespace wirepane
