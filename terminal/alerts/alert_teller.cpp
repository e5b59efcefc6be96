// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_teller.h"

#include "terminal/alerts/alert_toast.h"
#include "terminal/translations/terminal_text.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr std::chrono::seconds atMostEvery{1};
constexpr std::int64_t budgetSeconds = 3600;
}  // namespace

AlertTeller::AlertTeller(AlertToast& alertToast, std::function<void()> sound)
    : toast(alertToast), beep(std::move(sound)) {
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &AlertTeller::tellWaiting);
}

void AlertTeller::tell(const std::vector<AlertEntry>& entries, const std::vector<AlertRule>& rules) {
    for (const AlertEntry& entry : entries) {
        const auto rule = std::ranges::find(rules, entry.rule, &AlertRule::name);
        if (rule == rules.end())
            continue;
        isSoundWaiting = isSoundWaiting || rule->hasSound;
        if (!rule->hasToast)
            continue;
        const QString name = nameOf(*rule, entry.matched);
        // What several rules say of one headline is said together.
        if (waiting > 0 && newest.headline == entry.headline) {
            newest.rule += u", "_s + name;
            continue;
        }
        newest = entry;
        newest.rule = name;
        ++waiting;
    }
    if (!pause.isActive())
        tellWaiting();
}

QString AlertTeller::nameOf(const AlertRule& rule, std::int64_t moment) {
    if (rule.budget == 0)
        return rule.name;
    std::vector<std::int64_t>& moments = told[rule.name];
    std::erase_if(moments, [&](std::int64_t before) { return moment - before >= budgetSeconds; });
    moments.push_back(moment);
    return std::ssize(moments) <= rule.budget
               ? rule.name
               : terminalText(TextId::AlertOverBudget).arg(rule.name).arg(rule.budget);
}

void AlertTeller::tellWaiting() {
    if (waiting == 0 && !isSoundWaiting)
        return;
    if (const int count = std::exchange(waiting, 0); count > 0)
        toast.tell(newest.rule, newest.title, count);
    if (std::exchange(isSoundWaiting, false))
        beep();
    pause.start(atMostEvery);
}

}  // namespace wirepane
