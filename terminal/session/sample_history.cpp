// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/sample_history.h"

#include "backend/database/database.h"
#include "backend/feed/feed_errors.h"
#include "backend/feed/queued_source.h"
#include "backend/store/store_writer.h"
#include "host/contract/clock.h"
#include "sample_wire/local_time.h"
#include "terminal/session/sample_filling.h"
#include "terminal/session/sample_process.h"
#include "terminal/session/session_errors.h"

#include <QDateTime>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString historyName() {
    return u"sample-history"_s;
}
constexpr std::size_t mostItems = 250;  // that live news waits for

std::int64_t dayOf(std::int64_t moment) {
    return sample::LocalTime::fromUtc(moment).day.number;
}

// Days of the wire's calendar; none where the newest is before the oldest.
struct LackingDays {
    std::int64_t oldest = 0;
    std::int64_t newest = -1;

    bool isEmpty() const { return newest < oldest; }
    QString text() const { return u"%1 %2"_s.arg(oldest).arg(newest); }
    static LackingDays of(const QString& text) {
        const QStringList parts = text.split(u' ');
        return parts.size() == 2 ? LackingDays{parts[0].toLongLong(), parts[1].toLongLong()} : LackingDays{};
    }
};

// How far a store has the wire: a moment. Nothing: the store cannot say.
std::optional<std::int64_t> reached(StoreWriter& writer, const SampleOptions& options) {
    const auto kept = writer.positionOf(sourceName(options));
    if (!kept)
        return std::nullopt;
    // One that was filled and never followed.
    std::int64_t newest = 0;
    if (kept.value().isEmpty() &&
        !writer.connection().readNumber("SELECT coalesce(max(time), 0) FROM headlines", newest))
        return std::nullopt;
    return std::max(newest, std::int64_t{kept.value().toLongLong()});
}

class HistoryReader : public SourceReader {
public:
    explicit HistoryReader(const SampleOptions& wireOptions) : options(wireOptions) {}

    void run(const QString& position, SourceQueue& queue) override {
        queue.tell(SourceState::Live);
        for (LackingDays left = LackingDays::of(position); !left.isEmpty();) {
            const std::int64_t back = dayOf(options.now) - left.newest--;
            if (!readDay(static_cast<int>(back), left.text(), queue))
                return;
        }
    }

private:
    // False: it is over.
    bool readDay(int back, const QString& position, SourceQueue& queue) const {
        SampleOptions day = options;
        day.days = back + 1;
        day.leftOut = back;
        SampleProcess wire(day);
        SourceBatch batch;
        while (auto item = wire.nextItem()) {
            batch.items.push_back({*std::move(item), makeError<feed_errors::atPosition>(position), 0});
            if (batch.items.size() >= mostItems && !queue.push(std::exchange(batch, {})))
                return false;
        }
        if (const Done whole = wire.end(); !whole) {
            queue.tell(SourceState::Failed, whole.error());
            return false;
        }
        batch.position = position;
        return queue.push(std::move(batch));
    }

    SampleOptions options;
};

}  // namespace

bool mayShowSample(Database& store) {
    std::int64_t isSample = 0;
    return store.readNumber(
               "SELECT NOT EXISTS(SELECT 1 FROM sources) AND NOT EXISTS(SELECT 1 FROM services WHERE "
               "EXISTS(SELECT 1 FROM headlines WHERE service = services.id AND "
               "identity < 'sample:') OR "
               "EXISTS(SELECT 1 FROM headlines WHERE service = services.id AND "
               "identity >= 'sample;'))",
               isSample) &&
           isSample != 0;
}

Done bringSampleUpToDate(Database& store, const SampleOptions& options,
                         const std::function<bool(std::int64_t)>& progress) {
    const std::int64_t today = dayOf(options.now);
    // The wire's calendar is not that of the terminal's place.
    const std::int64_t shown = dayOf(host_clock::today().startOfDay().toSecsSinceEpoch());
    const auto isWanted = [&](StoreWriter& writer) -> Result<bool> {
        const auto had = reached(writer, options);
        const auto kept = writer.positionOf(historyName());
        if (!had || !kept)
            return store.failure();
        if (dayOf(*had) >= shown)
            return false;
        LackingDays lacking = LackingDays::of(kept.value());
        lacking.oldest = std::max(today - options.days + 1,
                                  lacking.isEmpty() ? dayOf(*had) : std::min(lacking.oldest, dayOf(*had)));
        lacking.newest = shown - 1;
        for (const auto& [source, position] :
             {std::pair(historyName(), lacking.text()),
              std::pair(sourceName(options), QString::number(options.now))}) {
            if (const Done isKept = writer.keepPosition(source, position); !isKept)
                return isKept.error();
        }
        return true;
    };
    // Whoever lacks nothing does not wait for who writes.
    StoreWriter writer(store);
    const auto had = reached(writer, options);
    if (had && dayOf(*had) >= shown)
        return Nothing{};
    SampleOptions present = options;
    present.days = static_cast<int>(today - shown + 1);
    const auto filled = fillWithSample(store, present, progress, isWanted);
    return filled ? Done(Nothing{}) : Done(filled.error());
}

std::shared_ptr<FeedSource> sampleHistory(const SampleOptions& options) {
    return std::make_shared<QueuedSource>(historyName(), std::make_unique<HistoryReader>(options));
}

}  // namespace wirepane
