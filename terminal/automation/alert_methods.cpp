// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/alert_methods.h"

#include "backend/search/query_errors.h"
#include "host/contract/query/search_query.h"
#include "terminal/session/session.h"

#include <array>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::array outcomes{"told"_L1, "off"_L1,   "disconnected"_L1, "duplicate"_L1,
                              "late"_L1, "quiet"_L1, "pause"_L1};
static_assert(outcomes.size() == lastAlertOutcome + 1);

QJsonObject toJson(const AlertEntry& entry) {
    return {{u"number"_s, qint64(entry.number)},
            {u"rule"_s, entry.rule},
            {u"service"_s, entry.headline.service},
            {u"time"_s, qint64(entry.headline.time)},
            {u"seq"_s, entry.headline.sequence},
            {u"title"_s, entry.title},
            {u"words"_s, QJsonArray::fromStringList(entry.words)},
            {u"received"_s, qint64(entry.received)},
            {u"matched"_s, qint64(entry.matched)},
            {u"told"_s, qint64(entry.told)},
            {u"outcome"_s, QString(outcomes[static_cast<std::size_t>(entry.outcome)])}};
}

}  // namespace

void AlertMethods::addTo(MethodTable& table) {
    table.add(u"alert.list"_s, [this](Params&) { return list(); });
    table.add(u"alert.rules"_s, [this](Params&) { return rules(); });
    table.add(u"alert.setRules"_s, [this](Params& params) { return setRules(params); });
    table.add(u"alert.see"_s, [this](Params&) { return see(); });
}

Answer AlertMethods::list() const {
    AlertDesk& desk = session.alerts().desk();
    QJsonArray entries;
    for (const AlertEntry& entry : desk.entries())
        entries.append(toJson(entry));
    return QJsonObject{
        {u"entries"_s, entries}, {u"unseen"_s, desk.unseen()}, {u"looked"_s, qint64(desk.looked())}};
}

Answer AlertMethods::rules() const {
    return alertsToJson(session.alerts().rules());
}

// All or nothing.
Answer AlertMethods::setRules(Params& params) const {
    const AlertSettings wanted = alertsFromJson(params.all());
    const qsizetype given = params.value(u"rules"_s).toArray().size();
    if (!params.value(u"rules"_s).isArray() || std::size_t(given) != wanted.rules.size())
        params.fail(u"\"rules\" is no list of rules, each with a \"name\" of its own and a \"query\""_s);
    for (const AlertRule& rule : wanted.rules) {
        const ReadQuery read = readQuery(rule.query, QueryUse::Alerts);
        if (const auto* fault = std::get_if<QueryFault>(&read))
            params.fail(u"\"%1\": %2"_s.arg(rule.name, sentence(errorOf(*fault))));
    }
    if (params.error())
        return *params.error();
    session.alerts().setRules(wanted);
    return QJsonObject();
}

Answer AlertMethods::see() const {
    session.alerts().desk().see();
    return QJsonObject();
}

}  // namespace wirepane
