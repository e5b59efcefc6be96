// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"
#include "backend/result.h"
#include "host/contract/view_kinds.h"
#include "terminal/frame/frame_command.h"
#include "terminal/session/news_import.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <optional>

namespace wirepane {
class GuideWindow;
class Session;
class SourcesWindow;

// What the main frame's menus and the bars of its views do to the session.
class FrameCommands : public QObject {
    Q_OBJECT

public:
    // The session is not owned and must outlive this.
    explicit FrameCommands(Session& session);

    // Takes the files into the user's store, which is opened for that when the sample's is.
    void importFiles(const QStringList& files);
    // The Sources page; of the user's own store, which is opened for that when the sample's is.
    void showSources();
    // Tells what went wrong, if anything did.
    void report(const Done& done);

private:
    void carryOut(FrameCommand command);
    void carryOutOnView(FrameCommand command);
    void openNew(NewsType type);
    void changeDensity();
    void readAsOf();
    enum class SettingsPage { First, Alerts };
    void changeSettings(SettingsPage first, const std::optional<AlertRule>& proposed = {});
    void rename(int number);
    void showGuide();
    void showKeys();
    void save();
    void tell(QMessageBox::Icon icon, const QString& text);

    Session& session;
    NewsImport newsImport;
    QPointer<GuideWindow> guide;
    QPointer<SourcesWindow> sourcesWindow;
};

}  // namespace wirepane
