// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/gathered_numbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <sqlite3.h>

namespace wirepane {

namespace {

constexpr std::size_t firstRoom = 1024;

// The pairs of one run, in memory that grows where it stands and is handed over as it is. All zero before the
// first row.
struct Pairs {
    GatheredPair* first;
    std::size_t count;
    std::size_t room;
};

bool makeRoom(Pairs& pairs) {
    if (pairs.count < pairs.room)
        return true;
    const std::size_t room = std::max(firstRoom, pairs.room * 2);
    void* const grown = std::realloc(pairs.first, room * sizeof(GatheredPair));
    if (grown == nullptr)
        return false;
    pairs.first = static_cast<GatheredPair*>(grown);
    pairs.room = room;
    return true;
}

void addPair(sqlite3_context* context, int, sqlite3_value** values) {
    auto* const pairs = static_cast<Pairs*>(sqlite3_aggregate_context(context, sizeof(Pairs)));
    if (pairs == nullptr || !makeRoom(*pairs)) {
        sqlite3_result_error_nomem(context);
        return;
    }
    pairs->first[pairs->count++] = {sqlite3_value_int64(values[0]), sqlite3_value_int64(values[1])};
}

// Called at the end of each run, also of one that failed.
void handOver(sqlite3_context* context) {
    const auto* const pairs = static_cast<Pairs*>(sqlite3_aggregate_context(context, 0));
    if (pairs != nullptr)
        sqlite3_result_blob64(context, pairs->first, pairs->count * sizeof(GatheredPair), std::free);
}

}  // namespace

void registerGathering(sqlite3* connection) {
    sqlite3_create_function_v2(connection, "gather", 2, SQLITE_UTF8 | SQLITE_DIRECTONLY, nullptr, nullptr,
                               addPair, handOver, nullptr);
}

}  // namespace wirepane
