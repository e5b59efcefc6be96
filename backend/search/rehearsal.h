// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/title_query.h"

#include <QDate>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

class Database;

// The past that a query is tried on: the services, and the local days up to `last`, until a moment in seconds
// since 1970.
struct RehearsedTime {
    std::vector<unsigned char> services;
    QDate last;
    int days = 30;
    std::int64_t latest = 0;
};

// How often a query for headlines would have spoken.
struct Rehearsal {
    struct Day {
        QDate day;
        int hits = 0;
    };
    struct Hour {
        std::int64_t begin = 0;  // seconds since 1970
        int hits = 0;
    };
    struct Word {
        QString text;
        int hits = 0;
    };
    static constexpr std::size_t mostWords = 10;

    int tried = 0;                  // headlines
    std::vector<HeadlineKey> hits;  // newest first
    std::vector<Day> days;          // oldest first, also those without a hit
    std::vector<Hour> hours;        // those with hits, busiest first, of equal ones the latest
    // Parts of the query that ask for something, as they are written, by the hits that hold them.
    std::vector<Word> bringing;
    // Words, and pairs of characters of a script without blanks, that the query does not name and that stand
    // at least twice as often in its hits as elsewhere: how many hits fewer it had if it excluded one of
    // them.
    std::vector<Word> exclusions;

    // In how many hours there were more hits.
    int hoursOver(int budget) const;
};

// Tries the query as the live lists do. Nothing where it has a fault or the store cannot be read. 300,000
// headlines take about a second; thread: that of the database.
std::optional<Rehearsal> rehearse(Database& store, const QString& query, const RehearsedTime& time,
                                  const TitleQuery::RelatedSymbols& related);

}  // namespace wirepane
