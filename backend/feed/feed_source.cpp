// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_source.h"

#include <variant>

namespace wirepane {

namespace {

// Takes the items of one portion, and counts.
class Taking {
public:
    explicit Taking(FeedSink& target) : sink(target) {}

    bool take(const SourceItem& item) {
        if (!item.content) {
            reject(item.place, item.content.error());
            return true;
        }
        const Result<TakeOutcome> taken = sink.take(item.content.value());
        if (!taken) {
            failure = taken.error();
            return false;
        }
        count(item, taken.value());
        return true;
    }

    PortionOutcome outcome;
    std::optional<Error> failure;  // of the sink

private:
    void reject(const Phrase& place, const Error& reason) {
        ++outcome.totals.rejected;
        if (outcome.rejections.size() < PortionOutcome::mostRejections)
            outcome.rejections.push_back({place, reason});
    }
    void count(const SourceItem& item, const TakeOutcome& taken) {
        if (taken.take == Take::Rejected) {
            reject(item.place, *taken.reason);
        } else if (taken.take == Take::AlreadyThere) {
            ++outcome.totals.alreadyThere;
        } else {
            ++outcome.totals.takenIn;
            outcome.news += std::holds_alternative<NewsItem>(item.content.value()) ? 1 : 0;
        }
    }

    FeedSink& sink;
};

}  // namespace

Result<PortionOutcome> takePortion(FeedSource& source, FeedSink& sink) {
    if (const Done begun = sink.begin(); !begun)
        return begun.error();
    Taking taking(sink);
    const Done read = source.read([&taking](SourceItem&& item) { return taking.take(item); });
    if (taking.failure) {
        sink.rollback();
        return *taking.failure;
    }
    if (!read) {
        sink.rollback();
        PortionOutcome refused;
        refused.fault = read.error();
        return refused;
    }
    const QString position = source.position();
    if (!source.name().isEmpty() && !position.isEmpty()) {
        if (const Done kept = sink.keepPosition(source.name(), position); !kept) {
            sink.rollback();
            return kept.error();
        }
    }
    if (const Done committed = sink.commit(); !committed) {
        sink.rollback();
        return committed.error();
    }
    return std::move(taking.outcome);
}

}  // namespace wirepane
