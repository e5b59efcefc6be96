// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_teller.h"

#include "terminal/alerts/alert_toast.h"

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr std::chrono::seconds atMostEvery{1};
}

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
        // What several rules say of one headline is said together.
        if (waiting > 0 && newest.headline == entry.headline) {
            newest.rule += u", "_s + entry.rule;
            continue;
        }
        newest = entry;
        ++waiting;
    }
    if (!pause.isActive())
        tellWaiting();
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
