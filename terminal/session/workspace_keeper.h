// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "terminal/settings/workspace_layout.h"

#include <QTimer>

#include <functional>

namespace wirepane {
class LayoutStore;
class LinkGroups;
class MainFrame;
class SettingsFile;
class TerminalSettings;
class Workspace;
struct OpenView;
struct ViewRequest;

// The user's own views: opens them as they were left, opens more, and keeps all of it on the disk while the
// terminal runs, so that a crash loses the last seconds at most.
class WorkspaceKeeper : public QObject {
    Q_OBJECT

public:
    struct Parts {
        SettingsFile& file;
        LayoutStore& layout;
        TerminalSettings& settings;
        Workspace& workspace;
        LinkGroups& links;
        MainFrame& frame;
        std::function<Result<OpenView*>(ViewRequest)> open;
    };

    // None of the parts is owned; all outlive this.
    explicit WorkspaceKeeper(Parts parts);

    // Opens the stored views, one where none is stored, and begins to keep them. A view that fails is told in
    // the frame and left out. Fails when not one can be opened.
    Done restore();
    // Opens one more view, in the symbol box's link group; or one with the settings and the group of another.
    Result<OpenView*> openNew(NewsType newsType = NewsType::Full);
    Result<OpenView*> openLike(const OpenView& other);
    // Starts all the user's views anew with the settings that they have now.
    Done reopenAll();
    // Writes all of it to the disk. Nothing is written when nothing has changed.
    Done save();

private:
    Result<OpenView*> open(const StoredView& stored);
    Result<OpenView*> openBeside(const StoredView& view);
    WorkspaceLayout layoutNow() const;
    int freePlace() const;
    void keep();

    Parts parts;
    QTimer timer;
};

}  // namespace wirepane
