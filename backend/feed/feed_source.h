// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/import_job.h"
#include "backend/import/reading.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {
class FeedSource;

// What became of one batch of a source.
struct BatchOutcome {
    ImportTotals totals;
    qint64 news = 0;                    // taken in, of the totals
    std::vector<std::int64_t> numbers;  // of the news, where its source numbers it
    std::vector<std::int64_t> times;    // when the news taken in was published, seconds since 1970
    std::vector<Rejection> rejections;  // the first mostRejections of them
    std::optional<Error> fault;         // the batch as a whole cannot be read: nothing of it was taken

    static constexpr std::size_t mostRejections = 1000;
};

// How a source stands to where its news comes from.
struct SourceState {
    enum Kind {
        Connecting,  // not there yet
        Live,
        Stale,    // there, but nothing has come for longer than is usual
        Offline,  // the other end is gone, or the terminal is disconnected
        Failed,   // it cannot go on as it is
        Silent,   // no sign of life from the other end; the reason says what was met instead
    };
    Kind kind = Connecting;
    std::int64_t since = 0;  // when it came to be so, of Stale when its last news came; seconds since 1970
    std::optional<Error> reason = {};  // of Failed and Silent

    bool operator==(const SourceState&) const = default;
};

// What a source tells the one who takes its news. Interface thread, in the order in which it happens.
class SourceTaker {
public:
    virtual ~SourceTaker() = default;

    // A batch is at hand, or the source waits for its position.
    virtual void sourceReady(FeedSource& source) = 0;
    virtual void sourceStateChanged(FeedSource&) {}
    // For whoever runs the source.
    virtual void sourceTrouble(const Error&) {}
    // A source that brings others, one for each of its clients, hands them over here.
    virtual void addSource(const std::shared_ptr<FeedSource>&) {}
};

// Items that are taken together, and the position behind them. Made on the interface thread, then read on any
// one thread.
class FeedBatch {
public:
    FeedBatch() = default;
    FeedBatch(const FeedBatch&) = delete;
    FeedBatch& operator=(const FeedBatch&) = delete;
    virtual ~FeedBatch() = default;

    using Clock = std::chrono::steady_clock;
    // When the oldest of it reached the terminal; unless it says otherwise, when it was made.
    virtual Clock::time_point received() const { return made; }
    // Hands the items over, until `visit` answers false. An error: the batch as a whole cannot be read.
    virtual Done read(const ItemVisitor& visit) = 0;
    // The position behind what has been read; empty: there is none to keep.
    virtual QString position() const { return {}; }
    // Whether other sources may bring the same news under other identities: it is known again by its link
    // then.
    virtual bool isShared() const { return false; }
    // Whether its news is numbered, each one higher than the one before.
    virtual bool isNumbered() const { return false; }
    // Whether one item that cannot be taken is a reason to take nothing of it.
    virtual bool isWhole() const { return false; }

private:
    const Clock::time_point made = Clock::now();
};

// A source of news: it hands items over in batches that are taken whole or not at all, each with the position
// behind it, and goes on from any such position. Interface thread; one that blocks to find its batches is a
// QueuedSource.
//
// What a source has no use for it leaves as it is here.
class FeedSource {
public:
    FeedSource() = default;
    FeedSource(const FeedSource&) = delete;
    FeedSource& operator=(const FeedSource&) = delete;
    virtual ~FeedSource() = default;

    // The name under which its position is kept, the same for good; empty: a source
    // without a memory.
    virtual QString name() const = 0;
    // What its reader calls it.
    virtual QString title() const { return name(); }

    // Whether it waits to be told where to go on, as after it was opened and after an outage.
    virtual bool awaitsPosition() const { return false; }
    // Goes on behind this position, which is the one that is kept; empty: from the start. An error: the store
    // cannot say.
    virtual void resume(const Result<QString>&) {}

    // Looks for what nobody announces; called a few times a second.
    virtual void poll() {}
    // Whether a batch is at hand. Looks at once and does not wait.
    virtual bool hasBatch() { return false; }
    // The batch at hand; the same items again until it is acknowledged. It does not need the source any more.
    // Null: there is none.
    virtual std::shared_ptr<FeedBatch> batch() { return nullptr; }
    // The batch that was handed out last is on the disk, or has been refused: the next one may come.
    virtual void acknowledge(const BatchOutcome&) {}

    // The terminal is disconnected, or connected again. While it is not, nothing is taken.
    virtual void setOnline(bool on) { setState(on ? SourceState::Live : SourceState::Offline); }
    // It will never bring anything more and can be let go.
    virtual bool isDone() { return false; }

    const SourceState& state() const { return current; }
    // Who takes its news; outlives the source. At first nobody.
    void setTaker(SourceTaker* sourceTaker) { owner = sourceTaker; }

protected:
    // `reason`: for Failed and Silent. `since`: where it is not the present moment.
    void setState(SourceState::Kind kind, const std::optional<Error>& reason = {},
                  std::optional<std::int64_t> since = {});
    void tellReady();
    void tellTrouble(const Error& error);
    SourceTaker* taker() const { return owner; }

private:
    SourceState current;
    SourceTaker* owner = nullptr;
};

// Takes a batch into the sink, in one transaction together with its position, which is kept for `source`
// (empty: it is not kept). The source is told of it as soon as what the sink has committed is on the disk,
// and its batch is not taken again before. An error is the sink's: nothing was taken, and the batch stays at
// hand.
Result<BatchOutcome> takeBatch(FeedBatch& batch, const QString& source, FeedSink& sink);

}  // namespace wirepane
