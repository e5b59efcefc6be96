// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_entry.h"
#include "backend/alerts/alert_rule.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace wirepane {
class AlertToast;

// Tells alerts as their rules say: in the toast and by the desktop's sound, at most once a second; what comes
// within the second is told together.
class AlertTeller : public QObject {
    Q_OBJECT

public:
    // `beep`: the desktop's sound. The toast is not owned and outlives this.
    AlertTeller(AlertToast& toast, std::function<void()> beep);

    void tell(const std::vector<AlertEntry>& entries, const std::vector<AlertRule>& rules);

private:
    void tellWaiting();
    // How the toast names a rule: with its budget, where that is exceeded within the hour.
    QString nameOf(const AlertRule& rule, std::int64_t moment);

    AlertToast& toast;
    const std::function<void()> beep;
    AlertEntry newest;  // to be shown
    int waiting = 0;
    bool isSoundWaiting = false;
    QHash<QString, std::vector<std::int64_t>> told;  // moments within the hour, of rules with a budget
    QTimer pause;
};

}  // namespace wirepane
