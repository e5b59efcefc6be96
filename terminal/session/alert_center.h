// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_desk.h"
#include "terminal/alerts/alert_teller.h"
#include "terminal/alerts/desktop_notices.h"
#include "terminal/sound/alert_sounds.h"

#include <QObject>
#include <QPointer>

#include <optional>

namespace wirepane {
class AlertsWindow;
class AlertToast;
class EmbeddedBackEnd;
class MainFrame;
class TerminalSettings;

// The alerts of a session: the rules that the settings hold, what they match, and where the user is told and
// reads of it. Interface thread.
class AlertCenter : public QObject {
    Q_OBJECT

public:
    // None is owned; all outlive this.
    AlertCenter(EmbeddedBackEnd& backEnd, TerminalSettings& settings, MainFrame& frame);
    ~AlertCenter() override;

    AlertDesk& desk() { return alerts; }
    const AlertSettings& rules() const { return present; }
    // Takes rules into force, for the next start too.
    void setRules(const AlertSettings& rules);
    // Tells a rule as it would be told, whatever it says of pauses.
    void test(const AlertRule& rule);
    // Shows how often a rule would have spoken, over a window. The hits an hour that the user had it warn of.
    int rehearse(const AlertRule& rule, QWidget* over);
    // Opens the window of the alerts.
    void show();

signals:
    // Of the window, or of a view with a rule that the user may want.
    void rulesAsked(const std::optional<wirepane::AlertRule>& proposed);

private:
    QString storyOf(const HeadlineKey& key);

    EmbeddedBackEnd& backEnd;
    TerminalSettings& settings;
    MainFrame& frame;
    AlertSettings present;
    AlertDesk alerts;
    AlertToast* toast;  // belongs to the frame
    AlertSounds sounds;
    DesktopNotices notices;
    AlertTeller teller;
    QPointer<AlertsWindow> window;
};

}  // namespace wirepane
