// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/cell_state.h"

#include <QHash>

#include <cstdint>

namespace wirepane {

// Which headlines have come just now, for as long as their rows fade: four seconds in eight steps. Moments
// are milliseconds of any clock that does not go back.
class Arrivals {
public:
    static constexpr int stepMs = 500;
    static constexpr std::int64_t newFor = 900;  // seconds after its publishing that news is new

    // Whether news of this time (seconds since 1970) that comes now has just been published.
    static bool isNew(std::int64_t time, std::int64_t now) { return now - time <= newFor; }

    bool isEmpty() const { return times.isEmpty(); }
    // Of more than a few screens of them, the earlier ones have been pushed out of sight.
    void note(const HeadlineKey& key, std::int64_t now);
    // Noted, and not forgotten yet.
    bool holds(const HeadlineKey& key) const { return times.contains(key); }
    // The step that it is in, from SheetCells::fullArrival down; 0: it has faded, or has not come.
    int stepOf(const HeadlineKey& key, std::int64_t now) const;
    // Forgets those that have faded.
    void forgetFaded(std::int64_t now);
    void clear() { times.clear(); }

private:
    QHash<HeadlineKey, std::int64_t> times;
};

}  // namespace wirepane
