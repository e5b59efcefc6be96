// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/later_news.h"

#include "host/contract/clock.h"

#include <algorithm>
#include <limits>

namespace wirepane {

LaterNews::LaterNews(Database& database)
    : between(database,
              "SELECT service, time, sequence FROM headlines WHERE service IN (SELECT id FROM services) AND "
              "time > ? AND time <= ? ORDER BY time, sequence") {}

void LaterNews::hold(Held wanted) {
    which = wanted;
    end = host_clock::now();
    admitted.clear();
}

bool LaterNews::admits(const HeadlineKey& key) {
    if (which == Held::Nothing || key.time <= end)
        return true;
    if (which == Held::All && key.time > host_clock::now())
        return false;
    admitted.insert({key});
    return true;
}

void LaterNews::takeOut(std::vector<CHeadlineTable>& table, std::size_t from) const {
    if (which == Held::Nothing)
        return;
    const auto isHeld = [this](const CHeadlineTable& entry) {
        return entry.time > end && !admitted.contains({keyOf(entry)});
    };
    table.erase(std::remove_if(table.begin() + static_cast<std::ptrdiff_t>(from), table.end(), isHeld),
                table.end());
}

std::int64_t LaterNews::shownUpTo() const {
    return which == Held::Nothing ? std::numeric_limits<std::int64_t>::max() : end;
}

std::vector<HeadlineKey> LaterNews::due() {
    std::vector<HeadlineKey> keys;
    const std::int64_t now = host_clock::now();
    if (which == Held::Nothing || now <= end)
        return keys;
    Query query(between, end, now);
    while (query.next()) {
        const HeadlineKey key{query.number(1), query.smallNumber(2),
                              static_cast<unsigned char>(query.number(0))};
        if (!admitted.remove({key}))
            keys.push_back(key);
    }
    // What could not be read is due the next time.
    if (query.failed())
        keys.clear();
    else
        end = now;
    return keys;
}

}  // namespace wirepane
