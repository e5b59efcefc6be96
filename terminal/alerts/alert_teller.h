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

// Tells alerts as their rules say: in the toast, by the desktop and by a sound, at most once a second; what
// comes within the second is told together, by the sound of the first of it that has one.
class AlertTeller : public QObject {
    Q_OBJECT

public:
    struct Ways {
        std::function<void(const QString& sound)> play;
        std::function<void(const QString& rule, const QString& title)> notify;  // by the desktop
    };
    // The toast is not owned and outlives this.
    AlertTeller(AlertToast& toast, Ways ways);

    void tell(const std::vector<AlertEntry>& entries, const std::vector<AlertRule>& rules);

private:
    // What waits to be told in one way, or in several.
    struct Waiting {
        AlertEntry newest;
        int count = 0;
    };
    void add(Waiting& waiting, const AlertEntry& entry, const QString& name);
    void tellWaiting();
    // How the toast names a rule: with its budget, where that is exceeded within the hour.
    QString nameOf(const AlertRule& rule, std::int64_t moment);

    AlertToast& toast;
    const Ways ways;
    Waiting shown;                                   // in the toast
    int seconds = 0;                                 // that it stays; 0: until it is closed
    Waiting noticed;                                 // by the desktop
    QString sound;                                   // empty: none waits
    QHash<QString, std::vector<std::int64_t>> told;  // moments within the hour, of rules with a budget
    QTimer pause;
};

}  // namespace wirepane
