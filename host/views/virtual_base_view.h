// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QBasicTimer>
#include <QString>
#include <QWidget>

#include <map>
#include <vector>

namespace wirepane {
class RegisteredMessageEvent;

}  // namespace wirepane

// The root of the views that a host places in its frames: timers by number, registered messages, commands by
// number. Views live on the interface thread and belong to their parent.
class WIREPANE_HOST_EXPORT TRVVirtualBaseView : public QWidget {
    Q_OBJECT

public:
    explicit TRVVirtualBaseView(QWidget* parent = nullptr);

    // The host calls this once, after the window exists and before anything else.
    virtual void OnInitialUpdate();

    // Starts timer `id` with a period in milliseconds; a running timer of that id starts anew.
    void setTimer(int id, int periodMs);
    void endTimer(int id);
    // The ids of the running timers, ascending.
    std::vector<int> runningTimers() const;

    // Carries out a command by its number, as menus, buttons and scripts send it. False: not a command of
    // this view.
    virtual bool onCommand(int id);

    // The identifier of the host frame that holds the view; children get their parent's.
    void setFrameId(int id) { frameId = id; }
    int idOfFrame() const { return frameId; }

protected:
    // Called at every period of a running timer.
    virtual void OnTimer(int id);
    // A registered message has arrived; false: not one that this view knows.
    virtual bool onRegisteredMessage(const wirepane::RegisteredMessageEvent& message);

    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    std::map<int, QBasicTimer> timers;
    int frameId = 0;
};
