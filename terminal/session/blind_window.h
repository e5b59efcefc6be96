// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/number_gaps.h"
#include "host/contract/news_receiver.h"
#include "host/contract/quiet_sources.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace wirepane {
class AlertDesk;
class EmbeddedBackEnd;
class LiveFeed;
class MainFrame;

// Tells, until the user has closed it, from when to when the terminal was cut off or a source gave no sign of
// life, once that is over: how much of that time came late, and how much of it matched alert rules. And what
// is missing of a source that numbers its news. Interface thread.
class BlindWindow : public QObject, public NewsReceiver {
    Q_OBJECT

public:
    // None is owned; all outlive this.
    BlindWindow(EmbeddedBackEnd& backEnd, const AlertDesk& alerts, const LiveFeed& feed, MainFrame& frame);
    ~BlindWindow() override;

    void connectionChanged(bool connected) override;
    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                         const QString& symbolCode) override;

private:
    struct Away {
        QString source;  // empty: the terminal was cut off
        std::int64_t from = 0;
        std::int64_t to = 0;
        int late = 0;  // headlines of that time that have come since then
    };
    void followSources();
    void add(const Away& away);
    void noteMissing(const QString& source, const NumberGaps& gaps);
    void tell();
    QString textOf(const Away& away) const;

    EmbeddedBackEnd& backEnd;
    const AlertDesk& alerts;
    MainFrame& frame;
    std::optional<std::int64_t> cutOffSince;
    std::vector<QuietSource> quiet;
    std::vector<Away> over;                 // and not told yet
    std::map<QString, NumberGaps> missing;  // by source; neither
    QTimer soon;                            // when what was kept away has come
};

}  // namespace wirepane
