// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_book.h"

#include "backend/database/database.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr QChar between = u'\n';  // words; a title has none
}

AlertBook::AlertBook(Database& database)
    : store(database),
      all(database,
          "SELECT number, rule, service, time, sequence, title, words, received, matched, told, outcome "
          "FROM alerts ORDER BY number"),
      state(database, "SELECT position, seen FROM alert_state"),
      insert(database,
             "INSERT OR IGNORE INTO alerts(rule, service, time, sequence, title, words, received, matched, "
             "told, "
             "outcome) VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      // What a rule told last stays: its pause goes on from there.
      trim(database,
           "DELETE FROM alerts WHERE number <= (SELECT max(number) FROM alerts) - ? AND number NOT IN "
           "(SELECT max(number) FROM alerts WHERE outcome = 0 GROUP BY rule)"),
      move(database,
           "INSERT INTO alert_state(one, position, seen) VALUES(1, ?1, 0) "
           "ON CONFLICT(one) DO UPDATE SET position = max(position, ?1)"),
      look(database,
           "INSERT INTO alert_state(one, position, seen) VALUES(1, 0, ?1) "
           "ON CONFLICT(one) DO UPDATE SET seen = max(seen, ?1)") {}

std::vector<AlertEntry> AlertBook::entries() {
    std::vector<AlertEntry> found;
    Query row(all);
    while (row.next()) {
        AlertEntry entry;
        entry.number = row.number(0);
        entry.rule = row.text(1);
        entry.headline = {row.number(3), row.smallNumber(4), static_cast<unsigned char>(row.number(2))};
        entry.title = row.text(5);
        entry.words = row.text(6).split(between, Qt::SkipEmptyParts);
        entry.received = row.number(7);
        entry.matched = row.number(8);
        entry.told = row.number(9);
        entry.outcome =
            static_cast<AlertOutcome>(std::clamp<std::int64_t>(row.number(10), 0, lastAlertOutcome));
        found.push_back(std::move(entry));
    }
    return found;
}

std::optional<std::int64_t> AlertBook::position() {
    Query row(state);
    return row.next() ? std::optional(row.number(0)) : std::nullopt;
}

std::int64_t AlertBook::seen() {
    Query row(state);
    return row.next() ? row.number(1) : 0;
}

bool AlertBook::add(const std::vector<AlertEntry>& entries, std::vector<AlertEntry>& added) {
    for (const AlertEntry& entry : entries) {
        if (!Query(insert, entry.rule, int(entry.headline.service), entry.headline.time,
                   entry.headline.sequence, entry.title, entry.words.join(between), entry.received,
                   entry.matched, entry.told, static_cast<int>(entry.outcome))
                 .run())
            return false;
        if (store.changes() == 0)
            continue;
        added.push_back(entry);
        added.back().number = store.lastInsertId();
    }
    return Query(trim, mostKept).run();
}

bool AlertBook::moveTo(std::int64_t position) {
    return Query(move, position).run();
}

bool AlertBook::see(std::int64_t number) {
    return Query(look, number).run();
}

}  // namespace wirepane
