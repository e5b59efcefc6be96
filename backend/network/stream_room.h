// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <atomic>
#include <memory>

namespace wirepane {

// How much of a stream may be on its way between the network and the store: who sends faster than the disk
// takes waits. Any thread.
class StreamRoom {
public:
    static constexpr qint64 most = qint64(4) << 20;  // bytes

    StreamRoom() : used(std::make_shared<std::atomic<qint64>>(0)) {}

    qint64 bytes() const { return *used; }
    bool isFull() const { return bytes() >= most; }
    // Takes this much of it until the last copy of what is answered goes.
    std::shared_ptr<void> take(qint64 bytes) const {
        *used += bytes;
        return {nullptr, [place = used, bytes](void*) { *place -= bytes; }};
    }

private:
    std::shared_ptr<std::atomic<qint64>> used;
};

}  // namespace wirepane
