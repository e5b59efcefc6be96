// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/diary/diary_file.h"
#include "backend/worker_thread.h"

#include <QJsonObject>

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace wirepane {

// Writes a diary on a thread of its own, so that nobody waits for the medium: entries that come while it is
// written to are written together, next. What `kept` was told of is on the medium, and the store knows how
// far the diary goes. When it begins, what is there already is looked through, and what is amiss becomes an
// entry.
class DiaryWriter {
public:
    // Both are called on the thread of the writer, never after its destructor returns.
    struct Told {
        std::function<void(const DiaryHead&)> kept;
        std::function<void(const Error&)> failed;  // once, until it succeeds again; it tries again
    };

    DiaryWriter(QString storePath, Told told);
    // Writes what has been added.
    ~DiaryWriter();

    // Any thread. The entry gets its number here, and the moment of receipt where it names a headline.
    void add(QJsonObject entry);
    // Returns when what was added has been written, or could not be.
    void flush();

private:
    struct Store;

    // On the thread.
    void writeAll();
    Done write(const std::vector<QJsonObject>& entries, DiaryHead& end);
    Done openStore();
    Done begin(std::vector<QJsonObject>& faults);

    const QString storePath;
    const Told told;
    DiaryFile file;
    std::unique_ptr<Store> store;
    bool isBegun = false;  // what was there has been looked through
    bool hasFailed = false;

    std::mutex mutex;
    std::vector<QJsonObject> waiting;
    std::int64_t lost = 0;  // did not find room while nothing could be written
    bool isAsked = false;

    WorkerThread thread;  // last: it uses all of the above
};

}  // namespace wirepane
