// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/worker_thread.h"

#include <QObject>
#include <QString>

#include <memory>

namespace wirepane {

// Has the desktop tell of something in its own way (org.freedesktop.Notifications), where it can; else
// nothing happens. The desktop is first asked when there is something to tell, on a thread of its own:
// nothing waits for it.
class DesktopNotices : public QObject {
    Q_OBJECT

public:
    DesktopNotices();
    ~DesktopNotices() override;

    // Both are plain texts.
    void tell(const QString& title, const QString& text);

signals:
    // The user has clicked one of them.
    void opened();

private slots:
    void invoked(uint notice, const QString& action);

private:
    class Bus;

    std::unique_ptr<Bus> bus;              // used on the thread alone, but for the notices that it knows
    std::unique_ptr<WorkerThread> thread;  // made when it is needed; last: it uses the bus
};

}  // namespace wirepane
