// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/arrival_log.h"

namespace wirepane {

ArrivalLog::ArrivalLog(Database& database, std::int64_t mostArrivals)
    : insert(database, "INSERT INTO arrivals(headline, only_story) VALUES(?, ?)"),
      insertReplaced(database,
                     "INSERT INTO arrivals(headline, only_story, gone_service, gone_time, gone_sequence) "
                     "VALUES(?, 0, ?, ?, ?)"),
      remove(database, "DELETE FROM arrivals WHERE position <= (SELECT max(position) FROM arrivals) - ?"),
      newest(database, "SELECT coalesce(max(position), 0) FROM arrivals"),
      later(database,
            "SELECT max(position), min(only_story), 0, service, time, sequence FROM arrivals "
            "JOIN headlines ON id = headline WHERE position > ?1 AND position <= ?2 GROUP BY headline UNION "
            "ALL "
            "SELECT position, 0, 1, gone_service, gone_time, gone_sequence FROM arrivals "
            "WHERE position > ?1 AND position <= ?2 AND gone_service IS NOT NULL ORDER BY 1, 3"),
      most(mostArrivals) {}

bool ArrivalLog::add(std::int64_t headlineId, bool onlyStory, const std::optional<HeadlineKey>& gone) {
    if (gone)
        return Query(insertReplaced, headlineId, gone->service, gone->time, gone->sequence).run();
    return Query(insert, headlineId, onlyStory ? 1 : 0).run();
}

bool ArrivalLog::trim() {
    return Query(remove, most).run();
}

std::optional<std::int64_t> ArrivalLog::last() {
    Query query(newest);
    return query.next() ? std::optional(query.number(0)) : std::nullopt;
}

std::vector<Arrival> ArrivalLog::after(std::int64_t& position, std::int64_t last) {
    std::vector<Arrival> arrivals;
    for (Query query(later, position, last); query.next();) {
        position = query.number(0);
        const HeadlineKey key{query.number(4), query.smallNumber(5),
                              static_cast<unsigned char>(query.number(3))};
        arrivals.push_back({key, query.number(1) != 0, query.number(2) != 0, position});
    }
    return arrivals;
}

}  // namespace wirepane
