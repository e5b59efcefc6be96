// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>

#include <chrono>

namespace wirepane {

struct SpoolOptions {
    // How long a file must have stayed as it is before it counts as whole.
    std::chrono::milliseconds quiet{2000};
    qint64 largestFile = qint64(512) << 20;  // bytes
    ReadOptions read;                        // the source name is filled in per file
};

// A folder into which files of news are put, of any format that can be imported. Each is taken whole, oldest
// first (then by name), and moved to the folder "done" inside; one that cannot be read, or of which nothing
// can be taken, is moved to "rejected". Reasons stand beside it in NAME.reason.txt. A name that is there
// already gets a number, one that leaves no room for that is cut. A folder that is a link is not used.
//
// Not taken: names that start with "." or end with ".part", ".tmp" or ".filepart", and files that were
// changed or are being written. Folders are left alone; whatever else is no file (a link, a pipe) is
// rejected. A file that cannot be moved away is taken once and then left. Whoever runs the spool is told of
// each file that was rejected or could not be moved, once.
class SpoolSource : public FeedSource {
public:
    // Makes the two folders. The error says why the folder cannot be used.
    static Result<std::unique_ptr<SpoolSource>> open(const QString& folder, const SpoolOptions& options = {});

    // The folder is its own memory: what is in it has not been taken, and no position need be kept.
    QString name() const override;
    bool hasBatch() override;
    std::shared_ptr<FeedBatch> batch() override;
    void acknowledge(const BatchOutcome& outcome) override;

private:
    // How a file looked.
    struct Look {
        qint64 size = 0;
        QDateTime changed;
        qint64 since = 0;  // on the steady clock, in milliseconds

        bool isLike(const Look& other) const { return size == other.size && changed == other.changed; }
    };

    SpoolSource(QString folder, const SpoolOptions& options);

    bool isWhole(const QFileInfo& file);
    void moveAway(const QString& subfolder, const std::vector<Error>& reasons);

    QString folder;
    SpoolOptions options;
    QHash<QString, Look> seen;  // files that may still be written
    QHash<QString, Look> left;  // files that were done with and could not be moved
    QString current;            // the name of the file at hand; empty: none
};

}  // namespace wirepane
