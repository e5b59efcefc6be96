// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/live_feed.h"

#include "backend/feed/source_health.h"
#include "backend/feed/source_kinds.h"
#include "backend/feed/store_watch.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"

#include <QPointer>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace wirepane {

namespace {

constexpr int tickMs = 250;
constexpr int retryMs = 2000;  // after the store could not be written
constexpr std::int64_t microsOfSecond = 1'000'000;
constexpr int behindMs = 5;               // between looks whether the telling has come up to the taking
constexpr qint64 longestReturnMs = 3000;  // of sources, after an outage

}  // namespace

LiveFeed::LiveFeed(EmbeddedBackEnd& store) : backEnd(store) {
    connect(&ticking, &QTimer::timeout, this, &LiveFeed::tick);
    ticking.start(tickMs);
    pumping.setSingleShot(true);
    connect(&pumping, &QTimer::timeout, this, &LiveFeed::pump);
    connect(this, &LiveFeed::sourcesChanged, this,
            [this] { backEnd.setQuietSources(quietAmong(withOtherEnds(sources(), backEnd.storePath()))); });
    addSource(std::make_shared<StoreWatch>(backEnd));
}

LiveFeed::~LiveFeed() {
    // A source may live longer than its place here.
    for (const Entry& entry : entries)
        entry.source->setTaker(nullptr);
}

Done LiveFeed::open(const SourceKind& kind, const QString& value) {
    const auto source = kind.open(value);
    if (!source)
        return source.error();
    addSource(source.value());
    const SourceState& state = source.value()->state();
    return state.kind == SourceState::Failed ? Done(*state.reason) : Nothing{};
}

void LiveFeed::addSource(const std::shared_ptr<FeedSource>& source) {
    entries.push_back({source});
    source->setTaker(this);
    if (!isConnected)
        source->setOnline(false);
    emit sourcesChanged();
    sourceReady(*source);
}

std::vector<SourceReport> LiveFeed::sources() const {
    std::vector<SourceReport> reports;
    for (const Entry& entry : entries) {
        if (!entry.source->name().isEmpty())
            reports.push_back({entry.source->name(), entry.source->state(), entry.source->title()});
    }
    return reports;
}

void LiveFeed::sourceReady(FeedSource& source) {
    if (const Entry* entry = entryOf(source))
        resume(std::shared_ptr(entry->source));
    pumpSoon();
}

// Behind what is being taken of it, so that it goes on behind that, too.
void LiveFeed::resume(const std::shared_ptr<FeedSource>& source) {
    Entry* const entry = entryOf(*source);
    if (entry == nullptr || entry->isAsking || !source->awaitsPosition())
        return;
    const QString name = source->name();
    if (name.isEmpty()) {
        source->resume(QString());
        return;
    }
    entry->isAsking = true;
    const auto position = std::make_shared<Result<QString>>(QString());
    backEnd.ask([name, position](StoreWriter& writer) { *position = writer.positionOf(name); },
                [self = QPointer(this), source, position] {
                    Entry* const asking = self ? self->entryOf(*source) : nullptr;
                    if (asking == nullptr)
                        return;
                    asking->isAsking = false;
                    if (self->isConnected && source->awaitsPosition())
                        source->resume(*position);
                    self->pumpSoon();
                });
}

void LiveFeed::sourceStateChanged(FeedSource& source) {
    if (source.state().kind == SourceState::Failed)
        emit trouble(*source.state().reason);
    emit sourcesChanged();
}

void LiveFeed::sourceTrouble(const Error& error) {
    emit trouble(error);
}

void LiveFeed::setConnected(bool connected) {
    if (connected == isConnected)
        return;
    isConnected = connected;
    if (!connected) {
        sourcesBefore = entries.size();
        for (const Entry& entry : std::vector(entries))
            entry.source->setOnline(false);
        dropDoneSources();
        backEnd.setConnected(false);
    } else {
        isCatchingUp = true;
        sinceOutage.start();
        takenLate = 0;
        backEnd.setConnected(true);
        for (const Entry& entry : std::vector(entries))
            entry.source->setOnline(true);
        pumpSoon();
    }
    updateState();
}

bool LiveFeed::isIdle() {
    const bool isFed = isConnected && !hasTrouble() &&
                       std::any_of(entries.begin(), entries.end(),
                                   [](const Entry& entry) { return entry.source->hasBatch(); });
    return !isFed && (!isConnected || backEnd.isDelivered());
}

void LiveFeed::tick() {
    // Whoever is told of news may send clients off.
    for (const Entry& entry : std::vector(entries)) {
        entry.source->poll();
        if (!isConnected)
            continue;
        resume(entry.source);
        if (entry.source->hasBatch())
            pumpSoon();
    }
    isCatchingUp = isCatchingUp && !hasCaughtUp();
    updateState();
}

void LiveFeed::pumpSoon() {
    if (!pumping.isActive())
        pumping.start(hasTrouble() ? retryMs : 0);
}

// One batch a turn; the next turn when this one did anything. What is taken faster than the views are told
// waits at its source.
void LiveFeed::pump() {
    if (isConnected && backEnd.isBehind())
        pumping.start(behindMs);
    else if (isConnected && pumpOne())
        pumpSoon();
    dropDoneSources();
    updateState();
}

// The sources take turns.
bool LiveFeed::pumpOne() {
    const std::size_t all = entries.size();
    for (std::size_t i = 0; i < all; ++i) {
        const Entry& entry = entries[(turn + i) % all];
        if (entry.batch != 0 || !entry.source->hasBatch())
            continue;
        turn = (turn + i) % all + 1;
        take(std::shared_ptr(entry.source));
        return true;
    }
    return false;
}

void LiveFeed::take(const std::shared_ptr<FeedSource>& source) {
    const int batch = ++batches;
    entryOf(*source)->batch = batch;
    const auto taken = std::make_shared<Taken>();
    backEnd.ask(
        [items = source->batch(), name = source->name(), taken](StoreWriter& writer) {
            taken->received = items->received();
            taken->outcome = takeBatch(*items, name, writer);
            taken->stored = FeedBatch::Clock::now();
        },
        [self = QPointer(this), source, taken, batch] {
            if (self)
                self->noteTaken(source, *taken, batch);
        });
}

void LiveFeed::noteTaken(const std::shared_ptr<FeedSource>& source, const Taken& handed, int batch) {
    const Result<BatchOutcome>& taken = handed.outcome;
    tellTrouble(taken ? std::nullopt : std::optional(taken.error()));
    Entry* const entry = entryOf(*source);
    if (entry == nullptr)
        return;
    if (taken) {
        takenLate += isCatchingUp ? taken.value().news : 0;
        noteDelays(*source, handed);
        awaitDisk(source, taken.value(), batch);
    } else {
        entry->batch = 0;
        pumpSoon();
    }
    updateState();
}

// The news of a batch came at several moments: the first of them counts for all.
void LiveFeed::noteDelays(const FeedSource& source, const Taken& taken) {
    using std::chrono::duration_cast;
    using std::chrono::microseconds;
    const std::vector<std::int64_t>& times = taken.outcome.value().times;
    if (times.empty())
        return;
    Delays& delays = delaysOf[source.name()];
    const std::int64_t now = host_clock::now();
    const auto since = duration_cast<microseconds>(FeedBatch::Clock::now() - taken.received).count();
    for (const std::int64_t time : times)
        delays.toReceipt.add((now - time) * microsOfSecond - since, now);
    delays.toStore.add(duration_cast<microseconds>(taken.stored - taken.received).count(), now,
                       std::ssize(times));
}

std::vector<SourceDelays> LiveFeed::delays() const {
    const std::int64_t now = host_clock::now();
    std::vector<SourceDelays> all;
    for (const auto& [name, delays] : delaysOf) {
        if (const auto toStore = delays.toStore.figures(now); toStore.count > 0)
            all.push_back({name, delays.toReceipt.figures(now), toStore});
    }
    return all;
}

void LiveFeed::awaitDisk(const std::shared_ptr<FeedSource>& source, const BatchOutcome& outcome, int batch) {
    backEnd.whenOnDisk([self = QPointer(this), source, outcome, batch](const Done& onDisk) {
        if (self)
            self->acknowledge(source, outcome, batch, onDisk);
    });
}

void LiveFeed::acknowledge(const std::shared_ptr<FeedSource>& source, const BatchOutcome& outcome, int batch,
                           const Done& onDisk) {
    Entry* entry = entryOf(*source);
    if (entry == nullptr || entry->batch != batch)
        return;
    tellTrouble(onDisk ? std::nullopt : std::optional(onDisk.error()));
    if (!onDisk) {
        QTimer::singleShot(retryMs, this,
                           [this, source, outcome, batch] { awaitDisk(source, outcome, batch); });
        return;
    }
    entry->batch = 0;
    noteNumbers(*source, outcome.numbers);
    source->acknowledge(outcome);
    pumpSoon();
}

void LiveFeed::noteNumbers(const FeedSource& source, const std::vector<std::int64_t>& numbers) {
    if (numbers.empty())
        return;
    NumberGaps& ofSource = gaps[source.name()];
    const NumberGaps before = ofSource;
    for (const std::int64_t number : numbers)
        ofSource.take(number);
    if (ofSource.text() != before.text() || ofSource.missing() != before.missing())
        emit numbersMissing(source.title(), ofSource);
}

LiveFeed::Entry* LiveFeed::entryOf(const FeedSource& source) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.source.get() == &source; });
    return found == entries.end() ? nullptr : &*found;
}

// Another program that writes for a moment is nothing to tell; what stands in the way twice is.
void LiveFeed::tellTrouble(const std::optional<Error>& now) {
    const std::optional<Error> before = std::exchange(takeTrouble, now);
    const bool lasts = now && now == before;
    if (lasts && !isTold && !lostStore())
        emit trouble(*now);
    isTold = lasts;
}

void LiveFeed::dropDoneSources() {
    const auto gone = std::erase_if(entries, [](const Entry& entry) { return entry.source->isDone(); });
    if (gone > 0)
        emit sourcesChanged();
}

// The sources of before are waited for, for a while.
bool LiveFeed::hasCaughtUp() {
    const bool areBack = entries.size() >= sourcesBefore || sinceOutage.elapsed() > longestReturnMs;
    return isConnected && areBack && isIdle();
}

void LiveFeed::updateState() {
    FeedState now = current;
    now.kind = !isConnected                   ? FeedState::Offline
               : backEnd.isReadOnly()         ? FeedState::OnlyRead
               : isCatchingUp || hasTrouble() ? FeedState::Reconnecting
                                              : FeedState::Live;
    if (now.kind != current.kind)
        now.since = host_clock::now();
    now.late = backEnd.lateHeadlines() + static_cast<int>(takenLate);
    now.trouble = lostStore() ? lostStore() : takeTrouble;
    if (now == current)
        return;
    current = now;
    emit stateChanged();
}

}  // namespace wirepane
