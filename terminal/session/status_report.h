// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/news_receiver.h"
#include "terminal/frame/status_line.h"

namespace wirepane {
class EmbeddedBackEnd;
class LiveFeed;
class Workspace;

// The present moment, where it is not the machine's; else empty.
QString asOfText();

// What the session knows of itself.
struct SessionFacts {
    QString storeFile;
    bool isSampleFollowed = false;
    int alerts = 0;  // that were told and not seen
};

// Gathers what the status bar says.
class StatusReport : public NewsReceiver {
public:
    // None is owned; all outlive this.
    StatusReport(EmbeddedBackEnd& backEnd, const LiveFeed& feed, Workspace& workspace);
    ~StatusReport() override;
    StatusReport(const StatusReport&) = delete;
    StatusReport& operator=(const StatusReport&) = delete;

    FrameStatus now(const SessionFacts& session);

    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                         const QString& symbolCode) override;

private:
    EmbeddedBackEnd& backEnd;
    const LiveFeed& feed;
    Workspace& workspace;
    void watchDay(std::int64_t moment);

    std::int64_t lastHeadline = 0;
    std::int64_t lastMoment = 0;
    std::int64_t dayBeganAt = 0;  // seen by this; 0: none has
};

}  // namespace wirepane
