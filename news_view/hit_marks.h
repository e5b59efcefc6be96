// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <map>
#include <memory>

class BKQuoteInterface;

namespace wirepane {
class HitFinder;
enum class ListIndex : int;

// What the lists of searches mark in their titles: what their rows were found by. Interface thread only.
class HitMarks {
public:
    explicit HitMarks(BKQuoteInterface& newsBackEnd) : backEnd(newsBackEnd) {}

    // For the list's rows, which were found under this condition; null: nothing is marked. The same as
    // before where the condition is.
    std::shared_ptr<const HitFinder> finderOf(ListIndex list, const CSearch& condition);

private:
    BKQuoteInterface& backEnd;
    struct Prepared {
        CSearch condition;
        std::shared_ptr<const HitFinder> finder;
    };
    std::map<ListIndex, Prepared> prepared;
};

}  // namespace wirepane
