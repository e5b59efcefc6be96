// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/arrival_log.h"

namespace wirepane {

ArrivalLog::ArrivalLog(Database& database, std::int64_t mostArrivals)
    : insert(database, "INSERT INTO arrivals(headline, only_story) VALUES(?, ?)"),
      remove(database, "DELETE FROM arrivals WHERE position <= (SELECT max(position) FROM arrivals) - ?"),
      newest(database, "SELECT coalesce(max(position), 0) FROM arrivals"),
      later(database,
            "SELECT max(position), min(only_story), service, time, sequence FROM arrivals "
            "JOIN headlines ON id = headline WHERE position > ? GROUP BY headline ORDER BY 1"),
      most(mostArrivals) {}

bool ArrivalLog::add(std::int64_t headlineId, bool onlyStory) {
    return Query(insert, headlineId, onlyStory ? 1 : 0).run();
}

bool ArrivalLog::trim() {
    return Query(remove, most).run();
}

std::optional<std::int64_t> ArrivalLog::last() {
    Query query(newest);
    return query.next() ? std::optional(query.number(0)) : std::nullopt;
}

std::vector<Arrival> ArrivalLog::after(std::int64_t& position) {
    std::vector<Arrival> arrivals;
    for (Query query(later, position); query.next();) {
        position = query.number(0);
        const HeadlineKey key{query.number(3), query.smallNumber(4),
                              static_cast<unsigned char>(query.number(2))};
        arrivals.push_back({key, query.number(1) != 0});
    }
    return arrivals;
}

}  // namespace wirepane
