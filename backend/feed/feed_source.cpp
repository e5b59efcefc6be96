// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_source.h"

#include "backend/feed/feed_errors.h"
#include "host/contract/clock.h"

#include <utility>
#include <variant>

namespace wirepane {

namespace {

// Takes the items of one batch, and counts.
class Taking {
public:
    // `sharedBy`: the source whose news others may bring, too; empty: they do not.
    Taking(FeedSink& target, QString sharedBy, bool isNumbered)
        : sink(target), origin(std::move(sharedBy)), notesNumbers(isNumbered) {}

    bool take(const SourceItem& item) {
        if (!item.content) {
            reject(item.place, item.content.error());
            return true;
        }
        const StoreItem& content = item.content.value();
        const Result<TakeOutcome> taken =
            origin.isEmpty() ? sink.take(content) : sink.takeFrom(origin, content);
        if (!taken) {
            failure = taken.error();
            return false;
        }
        count(item, taken.value());
        const auto* news = std::get_if<NewsItem>(&content);
        if (notesNumbers && news != nullptr && news->sequence)
            outcome.numbers.push_back(*news->sequence);
        return true;
    }

    BatchOutcome outcome;
    std::optional<Error> failure;  // of the sink

private:
    void reject(const Phrase& place, const Error& reason) {
        ++outcome.totals.rejected;
        if (outcome.rejections.size() < BatchOutcome::mostRejections)
            outcome.rejections.push_back({place, reason});
    }
    void count(const SourceItem& item, const TakeOutcome& taken) {
        if (taken.take == Take::Rejected) {
            reject(item.place, *taken.reason);
        } else if (taken.take == Take::AlreadyThere) {
            ++outcome.totals.alreadyThere;
        } else {
            ++outcome.totals.takenIn;
            if (const auto* news = std::get_if<NewsItem>(&item.content.value())) {
                ++outcome.news;
                outcome.times.push_back(news->time);
            }
        }
    }

    FeedSink& sink;
    QString origin;
    bool notesNumbers;
};

}  // namespace

void FeedSource::setState(SourceState::Kind kind, const std::optional<Error>& reason,
                          std::optional<std::int64_t> wanted) {
    if (kind == current.kind && reason == current.reason)
        return;
    const std::int64_t since = kind == current.kind ? current.since : wanted.value_or(host_clock::now());
    current = {kind, since, reason};
    if (owner != nullptr)
        owner->sourceStateChanged(*this);
}

void FeedSource::tellReady() {
    if (owner != nullptr)
        owner->sourceReady(*this);
}

void FeedSource::tellTrouble(const Error& error) {
    if (owner != nullptr)
        owner->sourceTrouble(error);
}

Result<BatchOutcome> takeBatch(FeedBatch& batch, const QString& source, FeedSink& sink) {
    if (const Done begun = sink.begin(); !begun)
        return begun.error();
    Taking taking(sink, batch.isShared() ? source : QString(), batch.isNumbered());
    const Done read = batch.read([&taking](SourceItem&& item) { return taking.take(item); });
    if (taking.failure) {
        sink.rollback();
        return *taking.failure;
    }
    if (!read) {
        sink.rollback();
        BatchOutcome refused;
        refused.fault = read.error();
        return refused;
    }
    if (batch.isWhole() && !taking.outcome.rejections.empty()) {
        sink.rollback();
        BatchOutcome refused;
        const Rejection& first = taking.outcome.rejections.front();
        refused.fault = makeError<feed_errors::rejectedAt>(*first.place, first.reason);
        return refused;
    }
    const QString position = batch.position();
    if (!source.isEmpty() && !position.isEmpty()) {
        if (const Done kept = sink.keepPosition(source, position); !kept) {
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
