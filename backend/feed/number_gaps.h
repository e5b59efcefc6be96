// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

namespace wirepane {

// Which items have not come of a source that numbers them, each one higher than the one before, from any
// number on. What comes late fills its gap; what has come already changes nothing. A value.
class NumberGaps {
public:
    void take(std::int64_t number);

    // Numbers below the last one that have not come.
    std::int64_t missing() const { return count; }
    // The first of them: "13, 15-17, …". Empty: none is missing.
    QString text() const;

    bool operator==(const NumberGaps&) const = default;

private:
    static constexpr std::size_t mostGaps = 1000;  // the oldest are forgotten then
    static constexpr std::size_t mostShown = 5;

    void add(std::int64_t first, std::int64_t last);
    void fill(std::int64_t number);

    std::optional<std::int64_t> highest;
    std::map<std::int64_t, std::int64_t> gaps;  // the first and the last number of each
    std::int64_t count = 0;
};

}  // namespace wirepane
