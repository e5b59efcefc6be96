// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/import_job.h"
#include "backend/import/reading.h"

#include <optional>
#include <vector>

namespace wirepane {

// What became of one portion of a source.
struct PortionOutcome {
    ImportTotals totals;
    qint64 news = 0;                    // taken in, of the totals
    std::vector<Rejection> rejections;  // the first mostRejections of them
    std::optional<Error> fault;         // the portion as a whole cannot be read: nothing of it was taken

    static constexpr std::size_t mostRejections = 1000;
};

// A source of news: it hands items over in portions that are taken whole or not at all, each with the
// position behind it, and goes on from any such position. One thread.
class FeedSource {
public:
    FeedSource() = default;
    FeedSource(const FeedSource&) = delete;
    FeedSource& operator=(const FeedSource&) = delete;
    virtual ~FeedSource() = default;

    // The name under which its position is kept, the same for good; empty: a source without a memory.
    virtual QString name() const = 0;
    // Goes on behind this position; empty: from the start.
    virtual void resume(const QString& position) = 0;

    // Whether a portion is at hand. Looks at once and does not wait.
    virtual bool hasPortion() = 0;
    // Hands the items of the portion over, until `visit` answers false. The same portion again until it is
    // settled. An error: the portion as a whole cannot be read.
    virtual Done read(const ItemVisitor& visit) = 0;
    // The position behind the portion that was read last; empty: there is none to keep.
    virtual QString position() const = 0;
    // The portion that was taken is on the disk, or has been refused: the next one may come.
    virtual void settle(const PortionOutcome& outcome) = 0;
};

// Takes the portion at hand into the sink, in one transaction together with its position. The caller settles
// it as soon as what the sink has committed is on the disk, and does not take it again before. An error is
// the sink's: nothing was taken, and the portion stays at hand.
Result<PortionOutcome> takePortion(FeedSource& source, FeedSink& sink);

}  // namespace wirepane
