// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/call_queue.h"

#include <utility>

namespace wirepane {

CallQueue::CallQueue() {
    connect(this, &CallQueue::posted, this, &CallQueue::callNext, Qt::QueuedConnection);
}

void CallQueue::post(Call call) {
    {
        const std::lock_guard lock(mutex);
        calls.push_back(std::move(call));
    }
    emit posted();
}

void CallQueue::clear() {
    const std::lock_guard lock(mutex);
    calls.clear();
}

void CallQueue::callAll() {
    while (callNext()) {
    }
}

bool CallQueue::callNext() {
    Call call;
    {
        const std::lock_guard lock(mutex);
        if (calls.empty())
            return false;
        call = std::move(calls.front());
        calls.pop_front();
    }
    call();
    return true;
}

}  // namespace wirepane
