// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/lines/line_channel.h"
#include "terminal/automation/method_table.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <deque>

namespace wirepane {

// Carries out the requests of all channels one after the other and answers them in the order in which they
// came. Each request runs from the event loop, so that requests go on inside the loop of a dialog or a menu
// that an earlier one has opened.
class RequestQueue : public QObject {
    Q_OBJECT

public:
    // `methods` is not owned.
    explicit RequestQueue(const MethodTable& methods, QObject* parent = nullptr);

    void listenTo(LineChannel* channel);
    // True when every request that came has been answered.
    bool isIdle() const { return !running && waiting.empty(); }

signals:
    // The last answer is out.
    void becameIdle();

private:
    static constexpr qsizetype mostWaiting = 4 * 1024 * 1024;  // of one client, in bytes of its lines, about

    struct Entry {
        QPointer<LineChannel> channel;
        qsizetype bytes = 0;  // of its line
        std::variant<RpcRequest, RejectedLine> request;
    };

    void enqueue(Entry entry);
    void holdWhenFull(LineChannel* channel);
    void schedule();
    void runNext();
    void answer(const QPointer<LineChannel>& channel, const QJsonValue& id, const Answer& answer);
    const MethodTable& methods;
    std::deque<Entry> waiting;
    QHash<LineChannel*, qsizetype> waitingBytes;
    bool running = false;    // a request has not been answered yet
    bool scheduled = false;  // runNext is on its way through the event loop
};

}  // namespace wirepane
