// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_rule.h"

#include "host/contract/headline_looks.h"
#include "host/contract/json_fields.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lastMinute = 24 * 60 - 1;

// Rules of before there was a choice say whether there is one.
QString soundFrom(const QJsonValue& stored) {
    return stored.toBool() ? QString(soundOfDesktop) : stored.toString();
}

std::optional<AlertRule> ruleFrom(const QJsonObject& object) {
    JsonFields fields(object);
    AlertRule rule;
    rule.name = fields.text(u"name"_s).trimmed();
    rule.query = fields.text(u"query"_s);
    rule.isOn = fields.optionalFlag(u"on"_s).value_or(rule.isOn);
    rule.hasToast = fields.optionalFlag(u"toast"_s).value_or(rule.hasToast);
    rule.toastSeconds =
        int(fields.optionalNumber(u"toastSeconds"_s, 0, longestToast).value_or(rule.toastSeconds));
    rule.hasNotice = fields.optionalFlag(u"notice"_s).value_or(rule.hasNotice);
    rule.sound = soundFrom(object[u"sound"_s]);
    rule.pauseSeconds = int(fields.optionalNumber(u"pause"_s, 0, longestAlertPause).value_or(0));
    rule.budget = int(fields.optionalNumber(u"budget"_s, 0, largestAlertBudget).value_or(0));
    rule.onlyConnected = fields.optionalFlag(u"onlyConnected"_s).value_or(rule.onlyConnected);
    rule.tint = int(fields.optionalNumber(u"tint"_s, 0, HeadlineLook::tints).value_or(0));
    rule.tag = alertTag(fields.optionalText(u"tag"_s).value_or(QString()));
    if (rule.name.isEmpty() || rule.query.trimmed().isEmpty())
        return std::nullopt;
    return rule;
}

}  // namespace

QString alertTag(const QString& typed) {
    return typed.simplified().left(longestAlertTag).trimmed();
}

AlertSettings usualAlerts() {
    AlertRule flash;
    flash.name = u"FLASH"_s;
    flash.query = u"title:FLASH | title:快訊"_s;
    flash.sound = soundOfDesktop;
    AlertRule correction;
    correction.name = u"CORRECTION"_s;
    correction.query = u"title:correction | title:corrected | title:更正"_s;
    return {{flash, correction}};
}

QJsonObject alertsToJson(const AlertSettings& settings) {
    QJsonArray rules;
    for (const AlertRule& rule : settings.rules) {
        rules.append(QJsonObject{{u"name"_s, rule.name},
                                 {u"query"_s, rule.query},
                                 {u"on"_s, rule.isOn},
                                 {u"toast"_s, rule.hasToast},
                                 {u"toastSeconds"_s, rule.toastSeconds},
                                 {u"notice"_s, rule.hasNotice},
                                 {u"sound"_s, rule.sound},
                                 {u"pause"_s, rule.pauseSeconds},
                                 {u"budget"_s, rule.budget},
                                 {u"onlyConnected"_s, rule.onlyConnected},
                                 {u"tint"_s, rule.tint},
                                 {u"tag"_s, rule.tag}});
    }
    return {{u"rules"_s, rules}, {u"quietFrom"_s, settings.quietFrom}, {u"quietTo"_s, settings.quietTo}};
}

AlertSettings alertsFromJson(const QJsonObject& stored) {
    JsonFields fields(stored);
    AlertSettings settings;
    settings.quietFrom = int(fields.optionalNumber(u"quietFrom"_s, 0, lastMinute).value_or(0));
    settings.quietTo = int(fields.optionalNumber(u"quietTo"_s, 0, lastMinute).value_or(0));
    QSet<QString> names;
    const QJsonArray rules = fields.optionalList(u"rules"_s).value_or(QJsonArray());
    for (const auto& each : rules) {
        const auto rule = ruleFrom(each.toObject());
        if (!rule || names.contains(rule->name) || names.size() == mostAlertRules)
            continue;
        names.insert(rule->name);
        settings.rules.push_back(*rule);
    }
    return settings;
}

}  // namespace wirepane
