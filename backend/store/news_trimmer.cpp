// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/news_trimmer.h"

#include <algorithm>
#include <sqlite3.h>
#include <vector>

namespace wirepane {

namespace {

constexpr int removedAtOnce = 200;  // headlines: some 10 ms
constexpr std::int64_t secondsOfDay = 86'400;
constexpr std::int64_t horizonMoves = 600;  // seconds, at least
constexpr double filledAgain = 0.9;         // of the size: so much is left when it was exceeded
constexpr int timesSampled = 1000;
constexpr int pagesMergedAtOnce = 200;  // of the index

}  // namespace

NewsTrimmer::NewsTrimmer(Database& database, NewsWriter& news, ArrivalLog& arrivals)
    : store(database),
      writer(news),
      log(arrivals),
      readHorizon(database, "SELECT horizon, compacting FROM retention"),
      writeHorizon(database, "REPLACE INTO retention(id, horizon, compacting) VALUES(1, ?, ?)"),
      services(database, "SELECT id FROM services"),
      readHidden(database, "SELECT min(first) FROM import_blocks WHERE hidden"),
      oldest(database,
             "SELECT id, time, sequence FROM headlines WHERE service = ? AND time < ? AND "
             "id < ? AND NOT EXISTS(SELECT 1 FROM marks WHERE headline = id AND starred) "
             "ORDER BY time, sequence LIMIT ?"),
      nextTime(database, "SELECT time FROM all_headlines WHERE id >= ? ORDER BY id LIMIT 1"),
      merge(database, "INSERT INTO news_search(news_search, rank) VALUES('merge', ?)") {}

std::optional<std::int64_t> NewsTrimmer::horizon() {
    Query query(readHorizon);
    return query.next() ? std::optional(query.number(0)) : std::nullopt;
}

bool NewsTrimmer::lift() {
    return store.execute("DELETE FROM retention");
}

bool NewsTrimmer::raise(std::int64_t horizon, bool isCompacting) {
    return Query(writeHorizon, horizon, isCompacting ? 1 : 0).run();
}

std::optional<TrimStep> NewsTrimmer::step(const Retention& keep, std::int64_t now) {
    std::optional<std::int64_t> before;
    bool isCompacting = false;
    {
        Query query(readHorizon);
        if (query.next()) {
            before = query.number(0);
            isCompacting = query.number(1) != 0;
        }
        if (query.failed())
            return std::nullopt;
    }
    if (before) {
        const std::optional<int> removed = removeOlder(*before);
        if (!removed || *removed > 0)
            return removed ? std::optional(TrimStep{*removed, false}) : std::nullopt;
    }
    if (isCompacting)
        return compact() || raise(*before, false) ? std::optional(TrimStep{}) : std::nullopt;
    if (const std::int64_t ofAge = now - keep.days * secondsOfDay;
        keep.days > 0 && (!before || ofAge >= *before + horizonMoves))
        return raise(ofAge, false) ? std::optional(TrimStep{}) : std::nullopt;
    // While an import hides what it brings it is not known how much there will be.
    if (const double used = bytesInUse();
        keep.bytes > 0 && used > double(keep.bytes) && !isMeasured && !firstHidden()) {
        isMeasured = true;
        const auto ofSize = timeOfShare(1 - filledAgain * double(keep.bytes) / used);
        if (ofSize && (!before || *ofSize > *before))
            return raise(*ofSize, true) ? std::optional(TrimStep{}) : std::nullopt;
    }
    isMeasured = false;
    return TrimStep{0, true};
}

std::optional<std::int64_t> NewsTrimmer::firstHidden() {
    Query query(readHidden);
    return query.next() && !query.isNull(0) ? std::optional(query.number(0)) : std::nullopt;
}

std::optional<int> NewsTrimmer::removeOlder(std::int64_t horizon) {
    struct Old {
        std::int64_t id;
        HeadlineKey key;
    };
    std::int64_t newest = 0;
    if (!store.readNumber("SELECT coalesce(max(id), 0) FROM all_headlines", newest))
        return std::nullopt;
    // It stays, so that no id is given out twice; what is hidden may go again, and gives its ids back.
    const std::int64_t end = std::min(newest, firstHidden().value_or(newest + 1) - 1);
    std::vector<Old> leaving;
    for (Query service(services); service.next() && leaving.size() < removedAtOnce;) {
        const auto id = static_cast<unsigned char>(service.number(0));
        Query query(oldest, id, horizon, end, removedAtOnce - int(leaving.size()));
        while (query.next())
            leaving.push_back({query.number(0), {query.number(1), query.smallNumber(2), id}});
        if (query.failed())
            return std::nullopt;
    }
    for (const Old& old : leaving) {
        if (!writer.remove(old.id) || !log.add(old.id, false, old.key))
            return std::nullopt;
    }
    return int(leaving.size());
}

std::optional<std::int64_t> NewsTrimmer::timeOfShare(double share) {
    std::int64_t first = 0;
    std::int64_t last = 0;
    if (!store.readNumber("SELECT min(id) FROM all_headlines", first) ||
        !store.readNumber("SELECT max(id) FROM all_headlines", last))
        return std::nullopt;
    std::vector<std::int64_t> times;
    for (int i = 0; i < timesSampled; ++i) {
        Query query(nextTime, first + std::int64_t(double(last - first) * i / timesSampled));
        if (query.next())
            times.push_back(query.number(0));
    }
    if (times.empty())
        return std::nullopt;
    const auto place = std::min(times.size() - 1, std::size_t(double(times.size()) * share));
    std::nth_element(times.begin(), times.begin() + std::ptrdiff_t(place), times.end());
    return times[place];
}

// A negative number of pages begins to put all segments together, a positive one goes on; what news has left
// behind in the index goes only then.
bool NewsTrimmer::compact() {
    const int before = sqlite3_total_changes(store.handle());
    const int pages = std::exchange(isMerging, true) ? pagesMergedAtOnce : -pagesMergedAtOnce;
    // A merge that does nothing changes one row.
    isMerging = Query(merge, pages).run() && sqlite3_total_changes(store.handle()) - before > 1;
    return isMerging;
}

double NewsTrimmer::bytesInUse() {
    std::int64_t pages = 0;
    std::int64_t unused = 0;
    std::int64_t size = 0;
    store.readNumber("PRAGMA page_count", pages);
    store.readNumber("PRAGMA freelist_count", unused);
    store.readNumber("PRAGMA page_size", size);
    return double(pages - unused) * double(size);
}

}  // namespace wirepane
