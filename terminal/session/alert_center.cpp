// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/alert_center.h"

#include "backend/alerts/alert_looks.h"
#include "backend/store/embedded_back_end.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/rehearsal_dlg.h"
#include "terminal/alerts/alert_toast.h"
#include "terminal/alerts/alerts_window.h"
#include "terminal/frame/main_frame.h"
#include "terminal/settings/terminal_settings.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

AlertSettings storedIn(const TerminalSettings& settings) {
    const QJsonObject stored = settings.alerts();
    return stored.isEmpty() ? usualAlerts() : alertsFromJson(stored);
}

}  // namespace

AlertCenter::AlertCenter(EmbeddedBackEnd& embedded, TerminalSettings& terminalSettings, MainFrame& mainFrame)
    : backEnd(embedded),
      settings(terminalSettings),
      frame(mainFrame),
      present(storedIn(settings)),
      alerts(backEnd, present),
      toast(new AlertToast(frame)),
      sounds([] { QApplication::beep(); }),
      teller(*toast, {[this](const QString& sound) { sounds.play(sound); },
                      [this](const QString& rule, const QString& title) { notices.tell(rule, title); }}) {
    connect(&alerts, &AlertDesk::told, &teller,
            [this](const std::vector<AlertEntry>& entries) { teller.tell(entries, present.rules); });
    connect(toast, &AlertToast::opened, this, &AlertCenter::show);
    connect(&notices, &DesktopNotices::opened, this, &AlertCenter::show);
    backEnd.judgeLooksBy(looksBy(present.rules, backEnd));
    backEnd.onAlertProposed([this](const QString& name, const QString& query) {
        AlertRule rule;
        rule.name = name;
        rule.query = query;
        emit rulesAsked(rule);
    });
}

AlertCenter::~AlertCenter() {
    backEnd.onAlertProposed({});
    backEnd.judgeLooksBy({});
}

void AlertCenter::setRules(const AlertSettings& rules) {
    present = rules;
    settings.setAlerts(alertsToJson(present));
    // What is killed before its end starts with them, too.
    if (const Done saved = settings.save(); !saved)
        frame.showNotice(shownText(saved.error()));
    alerts.setSettings(present);
    backEnd.judgeLooksBy(looksBy(present.rules, backEnd));
}

void AlertCenter::test(const AlertRule& rule) {
    AlertEntry entry;
    entry.rule = rule.name;
    entry.title = rule.query;
    teller.tell({entry}, {rule});
}

int AlertCenter::rehearse(const AlertRule& rule, QWidget* over) {
    KeySetRehearsal::KeySet wanted;
    wanted.query = rule.query;
    backEnd.BKQNEWS_bGetAllNewsService(wanted.services);
    const int budget = rule.budget > 0 ? rule.budget : RehearsalDlg::usualBudget;
    const HeapDialog dialog(new RehearsalDlg(backEnd, std::move(wanted), budget, over));
    dialog->exec();
    // Who has only looked has set none.
    return dialog && dialog->hitsAnHour() != budget ? dialog->hitsAnHour() : rule.budget;
}

void AlertCenter::show() {
    if (!window) {
        window = new AlertsWindow(
            alerts, [this](const HeadlineKey& key) { return storyOf(key); }, &frame);
        window->setAttribute(Qt::WA_DeleteOnClose);
        connect(window, &AlertsWindow::rulesAsked, this, [this] { emit rulesAsked(std::nullopt); });
    }
    window->show();
    window->raise();
    window->activateWindow();
}

// Stories part their lines by four signs.
QString AlertCenter::storyOf(const HeadlineKey& key) {
    CStory story;
    const CHeadlineTable entry{key.time, key.sequence, key.service, 0, 0};
    return backEnd.BKQNEWS_bGetStory(story, entry) ? story.text.replace("@@@@"_L1, "\n"_L1) : QString();
}

}  // namespace wirepane
