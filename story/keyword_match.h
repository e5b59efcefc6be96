// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace wirepane {

// Characters of a text from `start` to before `end`.
struct TextRange {
    int start = 0;
    int end = 0;

    bool operator==(const TextRange&) const = default;
};

// What is left selected after every match of every keyword has been selected in turn, matches that overlap
// included: the last match of the last keyword that has one. Case is ignored (not that of letters outside the
// basic plane), empty keywords are skipped. Linear in the length of the text.
std::optional<TextRange> lastKeywordMatch(const QString& text, const std::vector<QString>& keywords);

}  // namespace wirepane
