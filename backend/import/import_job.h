// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/item_sink.h"

#include <QElapsedTimer>
#include <QStringList>

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class QFile;

namespace wirepane {

struct ImportTotals {
    qint64 takenIn = 0;
    qint64 alreadyThere = 0;
    qint64 rejected = 0;  // items

    ImportTotals& operator+=(const ImportTotals& other);
};

// An item that was not taken, or, without a place, a whole file.
struct ImportRejection {
    QString file;
    Rejection rejection;
};

struct ImportProgress {
    QString file;           // the one being read
    qint64 bytesDone = 0;   // of all files; about, within a file
    qint64 bytesTotal = 0;  // of all files
    qint64 items = 0;       // seen so far
};

// What an import did. Totals count the files that were taken in as a whole.
struct ImportReport {
    ImportTotals totals;
    int filesRead = 0;
    int filesRejected = 0;
    bool stopped = false;          // by stop()
    std::optional<Error> failure;  // of the store; it ended the import
    // Of the news among the items that are now in the store: the time of the newest, if there is any, and
    // whether one lies within the last 255 days of the host's clock.
    std::optional<std::int64_t> newest;
    bool anyRecent = false;

    // All that was taken in is too old to be seen without moving the clock.
    bool nothingRecent() const { return newest && !anyRecent; }
};

// What a command that imported returns: 0 when everything was taken or was there already, 1 when something
// was not, 2 when no file could be read or the store failed.
int importExitStatus(const ImportReport& report);

// Takes files into a store. Each file is taken in as a whole or not at all; running the same files again is
// harmless, and that is how a stopped import goes on. run() takes items on the thread that calls it, and so
// do the two callbacks; meanwhile another thread reads ahead.
class ImportJob {
public:
    // `sink` outlives the job. Of `options` the source name is filled in per file.
    ImportJob(QStringList files, ItemSink& sink, ReadOptions options = {});

    // Both before run(). Rejections come as they happen, progress at most ten times a second and once at the
    // end.
    void onRejection(std::function<void(const ImportRejection&)> callback) { reject = std::move(callback); }
    void onProgress(std::function<void(const ImportProgress&)> callback) { tell = std::move(callback); }

    // From any thread: the file being read is given up, those before it stay.
    void stop() { stopping = true; }

    ImportReport run();

private:
    // An item that commit() decides on.
    struct PutOff {
        Phrase place;
        std::optional<std::int64_t> time;  // of news
    };
    // What happened to the file being read; it counts once the file is committed.
    struct FileState {
        ImportTotals totals;
        std::optional<std::int64_t> newest;
        bool anyRecent = false;
        std::optional<Error> failure;
        std::vector<PutOff> putOff;
    };

    void runFile(const QString& path);
    void takeFile(QFile& file, const QString& path);
    bool takeItem(SourceItem&& item, const QString& path, FileState& state);
    bool store(const StoreItem& item, const QString& path, const Phrase& place, FileState& state);
    void count(const TakeOutcome& outcome, const QString& path, const PutOff& item, FileState& state);
    void countLate(const QString& path, FileState& state);
    void finishFile(const QString& path, FileState& state, const Done& read);
    void rejectFile(const QString& path, const Error& reason);
    void rejectItem(const QString& path, const Phrase& place, const Error& reason, FileState& state);
    void showProgress(const QString& path, qint64 bytesOfFile, bool always);

    QStringList files;
    ItemSink& sink;
    ReadOptions options;
    std::function<void(const ImportRejection&)> reject;
    std::function<void(const ImportProgress&)> tell;
    std::atomic<bool> stopping = false;
    ImportReport report;
    ImportProgress progress;
    qint64 bytesBefore = 0;  // of the files that are done
    QElapsedTimer sinceTold;
};

}  // namespace wirepane
