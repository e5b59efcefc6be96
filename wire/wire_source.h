// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "wire/wire_driver.h"
#include "wire/wire_position.h"

#include <QElapsedTimer>

namespace wirepane {

// A wire as a source of a terminal's news. What does not follow on what the store has ends it: nothing of it
// is handed over, until the terminal was disconnected and is connected again. Without a beat for a while it
// is silent, whatever the connection says.
class WireSource : public FeedSource {
public:
    using MakeTail = std::function<std::unique_ptr<WireTail>(WireTail::Listener)>;

    WireSource(QString service, const MakeTail& makeTail);
    ~WireSource() override;

    QString name() const override { return wireName; }
    QString title() const override { return service; }
    bool awaitsPosition() const override { return isWaiting; }
    void resume(const Result<QString>& kept) override;
    void poll() override;
    bool hasBatch() override { return pending != nullptr; }
    std::shared_ptr<FeedBatch> batch() override { return pending; }
    void acknowledge(const BatchOutcome& outcome) override;
    void setOnline(bool on) override;

    // Rows that the wire has and the store has not.
    std::int64_t behind() const { return headLast - position.sequence(); }

private:
    void take(const WirePage& page);
    void readOn();
    void call();
    void hangUp();
    void noteSign();
    void lose(const Error& reason);
    void fail(const Error& reason);

    const QString wireName;
    QString service;
    WirePosition position;  // of what was handed over
    std::int64_t headLast = 0;
    std::shared_ptr<FeedBatch> pending;
    std::unique_ptr<WireTail> tail;
    QElapsedTimer sinceSign;
    QElapsedTimer sinceTry;  // to connect, or since a connection was lost
    bool isWaiting = true;   // for its position
    bool isOpen = false;
    bool isTrying = false;
    bool isReading = false;
    bool isStirred = false;  // more may be there than was read
};

}  // namespace wirepane
