// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <cstdint>

namespace wirepane {

// What a back end may offer beside BKQuoteInterface, by inheriting this, too: it numbers the news that comes
// in. A view that finds it (by dynamic_cast from the installed back end) does not take a pushed headline into
// a list that had it already when the list was read, be it read during an outage or between the keeping of
// the headline and the telling. Without it such a headline counts as sent again and moves to the top.
// Interface thread.
class WIREPANE_CONTRACT_EXPORT NewsPositions {
public:
    virtual ~NewsPositions();

    // The position of the latest news that tables hold now; 0: none yet. News that comes, or replaces other
    // news, takes a higher one. Asked before a table is read.
    virtual std::int64_t readPosition() = 0;
    // The position of the headline for which RecvNewHeadLine is being called; 0 otherwise.
    virtual std::int64_t positionTold() const = 0;
};

}  // namespace wirepane
