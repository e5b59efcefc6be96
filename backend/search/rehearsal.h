// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/title_query_set.h"
#include "host/contract/query/key_set_rehearsal.h"

#include <QDate>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
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
    const std::atomic<bool>* dropped = nullptr;  // set from any thread: nobody waits for it any more
};

// What a query may have to know of a headline, asked only then.
struct RehearsedNews {
    TitleQuerySet::RelatedSymbols related;
    std::function<QString(const HeadlineKey&)> story;  // empty: it has none
};

// Tries the query as alerts do, on stories too where it looks for texts in them. Nothing
// where it has a fault or is dropped, or the store cannot be read. 300,000 headlines take about a second;
// thread: that of the database.
std::optional<Rehearsal> rehearse(Database& store, const QString& query, const RehearsedTime& time,
                                  const RehearsedNews& news);
// The same of a key set: the services that count are those of `time`.
std::optional<Rehearsal> rehearse(Database& store, const KeySetRehearsal::KeySet& keySet,
                                  const RehearsedTime& time, const RehearsedNews& news);

}  // namespace wirepane
