// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace wirepane {

// Calls from any thread for the thread that the queue lives on, which makes them from its event loop, one by
// one in the order of posting. What has not begun is dropped with the queue. The calls are handed over under
// a lock of our own: the thread sanitizer does not see into that of the event loop.
class CallQueue : public QObject {
    Q_OBJECT

public:
    using Call = std::function<void()>;

    CallQueue();

    // Any thread.
    void post(Call call);
    // Drops what has not begun. Any thread.
    void clear();
    // Makes the calls that have been posted until now, at once. The thread that the queue lives on.
    void callAll();

signals:
    void posted();

private:
    bool callNext();

    std::mutex mutex;
    std::deque<Call> calls;
};

}  // namespace wirepane
