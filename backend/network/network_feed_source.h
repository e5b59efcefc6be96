// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "backend/network/poll_schedule.h"
#include "backend/network/secret_store.h"
#include "backend/network/source_asker.h"
#include "backend/network/source_list.h"
#include "backend/network/usual_gaps.h"

#include <QHash>

#include <deque>
#include <functional>
#include <memory>

namespace wirepane {

// What a source over the network is read with. None of it is owned; all outlives the source.
struct NetworkMeans {
    SourceAsker* asker = nullptr;
    SecretStore* secrets = nullptr;       // null: there are none
    std::function<std::int64_t()> clock;  // milliseconds since 1970, for when to ask
    std::function<double()> chance;       // 0 to 1
};

// A source of the user's list that is asked again and again. Of each answer it hands over what the last did
// not hold; its position holds what the server calls that answer, so that an unchanged one is not sent again.
// One that is a stream is followed instead, and called again when it ends; its position is the last event.
class NetworkFeedSource : public FeedSource {
public:
    NetworkFeedSource(NetworkSource definition, NetworkMeans means, SourceStanding standing);
    ~NetworkFeedSource() override;

    const NetworkSource& definition() const { return source; }
    // How it stands; since the last call of takeStanding() it may have changed.
    const SourceStanding& standing() const { return kept; }
    bool takeChanged() { return std::exchange(hasChanged, false); }
    // It is asked at once, if it is not just being asked.
    void askNow() { nextTryMs = 0; }
    // It is not on the list any more, or another has its place: it is let go.
    void leave();

    QString name() const override { return source.name; }
    QString title() const override { return source.title.isEmpty() ? source.name : source.title; }
    bool awaitsPosition() const override { return isWaiting; }
    void resume(const Result<QString>& position) override;
    void poll() override;
    bool hasBatch() override { return !batches.empty(); }
    std::shared_ptr<FeedBatch> batch() override;
    void acknowledge(const BatchOutcome& outcome) override;
    void setOnline(bool on) override;
    bool isDone() override { return hasLeft; }

private:
    struct Pending;

    void findSecret();
    void ask(const SourceSecret& secret);
    void take(SourceAnswer&& answer);
    void takeStream(SourceAnswer&& answer);
    int takeItems(SourceAnswer&& answer, bool isFirst);
    void handOver(std::vector<SourceItem>&& items, const std::shared_ptr<void>& room);
    void keepOpen();
    void noteDelay(const std::vector<SourceItem>& items);
    void planCall(const SourceAnswer& answer);
    void keepFault();
    void planNext(const PollSchedule::Outcome& outcome);
    void show();
    std::int64_t seconds() const { return means.clock() / 1000; }

    NetworkSource source;
    NetworkMeans means;
    SourceStanding kept;
    PollSchedule schedule;
    UsualGaps gaps;
    std::int64_t nextTryMs = 0;
    bool isWaiting = true;  // for its position
    bool isOnline = true;
    bool isAsking = false;  // or follows a stream
    std::unique_ptr<SourceStream> stream;
    bool isOpen = false;        // the stream stands
    std::int64_t openedMs = 0;  // when it came to
    bool hasBrought = false;    // something since then
    CallSchedule calls;
    bool hasLeft = false;
    bool isFollowed = false;  // it has answered since this began, or the terminal was connected
    bool hasChanged = false;
    Validators validators;
    qsizetype listed = 0;           // items of the last answer
    QHash<QString, size_t> handed;  // of the last answer: what each identity was handed over as
    std::deque<std::shared_ptr<Pending>> batches;
    std::optional<Error> fault;
    bool hasAnswer = false;  // to the last try, whatever it was
    bool isReadable = true;  // that it was
    bool isAlive = true;     // the last try has heard of the other end
    int generation = 0;      // answers to what was asked before count no more
    std::shared_ptr<bool> alive = std::make_shared<bool>(true);
};

}  // namespace wirepane
