// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// The outages: the times at which the back end was cut off from its source. News of such a time came late.
// Times are seconds since 1970.
class Outages {
public:
    // The connection is lost, is back. Said twice it counts once.
    void lost(std::int64_t now);
    void restored(std::int64_t now);

    // Since when there is no connection; nothing while there is one.
    std::optional<std::int64_t> lostSince() const { return since; }
    // How many outages are over.
    std::size_t ended() const { return past.size(); }
    // True for a time within an outage, also the one that is on.
    bool holds(std::int64_t time) const;

private:
    struct Outage {
        std::int64_t from;
        std::int64_t to;  // not itself within it
    };
    std::vector<Outage> past;
    std::optional<std::int64_t> since;
};

}  // namespace wirepane
