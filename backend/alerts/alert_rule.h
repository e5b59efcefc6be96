// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <vector>

namespace wirepane {

// What the user wants to be told of, and how.
struct AlertRule {
    QString name;            // each once; entries of the list of alerts go by it
    QString query;           // as alerts know them (docs/search.md)
    bool isOn = true;        // else what it matches is listed, and not told
    bool hasToast = true;    // shown in the corner of the window
    int toastSeconds = 12;   // for so long; 0: until the user closes it
    bool hasNotice = false;  // told by the desktop, too
    QString sound;           // it is heard by: soundOfDesktop, the name of a tone, or a path; empty: nothing
    int pauseSeconds = 0;    // between two that are told, 0 to a day
    int budget = 0;          // within an hour; whoever is told of more is warned of it; 0: there is none
    bool onlyConnected = false;
    int tint = 0;  // of its rows in lists, as HeadlineLook numbers them; 0: none
    QString tag;   // beside its titles in lists; empty: none

    bool operator==(const AlertRule&) const = default;
};

// All of them, and when they keep silent.
struct AlertSettings {
    std::vector<AlertRule> rules;
    // Minutes of the day, 0 to 1439, in local time; equal: there are no quiet hours. They may go over
    // midnight.
    int quietFrom = 0;
    int quietTo = 0;

    bool operator==(const AlertSettings&) const = default;
};

inline constexpr int mostAlertRules = 1000;
inline constexpr int longestAlertTag = 12;        // characters
inline constexpr int longestAlertPause = 86'400;  // seconds
inline constexpr int largestAlertBudget = 100'000;
inline constexpr int longestToast = 600;  // seconds
inline constexpr QLatin1StringView soundOfDesktop{"desktop"};

// A typed tag as a rule keeps it: in one line, at most so long.
QString alertTag(const QString& typed);
// What is there before the user has changed anything: flashes and corrections.
AlertSettings usualAlerts();
QJsonObject alertsToJson(const AlertSettings& settings);
// What cannot be understood of it is left out: a rule without a name or a query, one whose name another has.
AlertSettings alertsFromJson(const QJsonObject& stored);

}  // namespace wirepane
