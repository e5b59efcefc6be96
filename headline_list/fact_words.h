// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <cstdint>
#include <vector>

namespace wirepane {

// The words of a title without its figures, of Chinese each two neighbours: what tells whether two titles
// speak of the same. A value.
class FactWords {
public:
    explicit FactWords(QStringView title);

    // One of them has all the words of the other: a name alone that is another one makes another fact.
    bool areLike(const FactWords& other) const;

private:
    std::vector<std::uint32_t> hashes;  // ascending
};

}  // namespace wirepane
