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

AlertTeller::AlertTeller(AlertToast& alertToast, Ways given) : toast(alertToast), ways(std::move(given)) {
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &AlertTeller::tellWaiting);
}

void AlertTeller::tell(const std::vector<AlertEntry>& entries, const std::vector<AlertRule>& rules) {
    for (const AlertEntry& entry : entries) {
        const auto rule = std::ranges::find(rules, entry.rule, &AlertRule::name);
        if (rule == rules.end())
            continue;
        if (sound.isEmpty())
            sound = rule->sound;
        const QString name = nameOf(*rule, entry.matched);
        if (rule->hasToast) {
            const bool isFirst = shown.count == 0;
            add(shown, entry, name);
            const bool staysUp = rule->toastSeconds == 0 || (!isFirst && seconds == 0);
            seconds = staysUp ? 0 : isFirst ? rule->toastSeconds : std::max(seconds, rule->toastSeconds);
        }
        if (rule->hasNotice)
            add(noticed, entry, name);
    }
    if (!pause.isActive())
        tellWaiting();
}

// What several rules say of one headline is said together.
void AlertTeller::add(Waiting& waiting, const AlertEntry& entry, const QString& name) {
    if (waiting.count > 0 && waiting.newest.headline == entry.headline) {
        waiting.newest.rule += u", "_s + name;
        return;
    }
    waiting.newest = entry;
    waiting.newest.rule = name;
    ++waiting.count;
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
    const Waiting forToast = std::exchange(shown, {});
    const Waiting forDesktop = std::exchange(noticed, {});
    const QString toPlay = std::exchange(sound, {});
    if (forToast.count > 0)
        toast.tell(forToast.newest.rule, forToast.newest.title, forToast.count, seconds);
    if (forDesktop.count > 0) {
        const QString more = forDesktop.count == 1
                                 ? QString()
                                 : u" ("_s + terminalText(TextId::AlertMore).arg(forDesktop.count - 1) + u')';
        ways.notify(forDesktop.newest.rule + more, forDesktop.newest.title);
    }
    if (!toPlay.isEmpty())
        ways.play(toPlay);
    if (forToast.count > 0 || forDesktop.count > 0 || !toPlay.isEmpty())
        pause.start(atMostEvery);
}

}  // namespace wirepane
