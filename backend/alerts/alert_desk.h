// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_worker.h"
#include "host/contract/news_receiver.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace wirepane {
class EmbeddedBackEnd;
class StoreWriter;

// The alerts of a terminal: keeps what the rules match in the store, with how far the news has been looked
// at, and then tells it. What is told is in the store before, so that nobody is told it twice, whoever is
// killed when; what was not stored yet is found again. Of a store that can only be read nothing is kept.
// Interface thread.
class AlertDesk : public QObject, public NewsReceiver {
    Q_OBJECT

public:
    // The back end outlives this. Nothing is looked at before begin().
    AlertDesk(EmbeddedBackEnd& backEnd, const AlertSettings& settings);
    ~AlertDesk() override;

    // Goes on behind what was looked at last: from here on somebody is there to be told.
    void begin();
    void setSettings(const AlertSettings& settings);
    // The last 500, oldest first.
    const std::deque<AlertEntry>& entries() const { return known; }
    // Those that were told and that the user has not seen.
    int unseen() const;
    // The user has seen them all.
    void see();
    // Up to this position of the log of arrivals the news has been looked at; 0: not yet at all.
    std::int64_t looked() const { return lookedAt; }
    // Looks at what came, from the event loop. By itself it looks at each push, and each second: news of
    // other days, stories, and what comes while there is no connection are not pushed.
    void look();

    void RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                         const QString& symbolCode) override;

signals:
    // What is to be told now, oldest first.
    void told(const std::vector<wirepane::AlertEntry>& entries);
    // There are other entries, or more of them are seen.
    void changed();

private:
    void take(const AlertFindings& found);
    void keep(const AlertFindings& found);
    void add(const std::vector<AlertEntry>& entries);

    EmbeddedBackEnd& backEnd;
    AlertSettings settings;
    std::deque<AlertEntry> known;
    std::int64_t seen = 0;
    std::int64_t lookedAt = 0;
    std::int64_t written = 0;  // the position that the store has
    bool isAsked = false;      // to look, and the event loop will
    QTimer eachSecond;
    CallQueue found;                      // on the interface thread
    std::unique_ptr<AlertWorker> worker;  // last: it posts what it finds; null before the beginning
};

}  // namespace wirepane
