// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/search_condition.h"

#include <functional>
#include <memory>
#include <vector>

namespace wirepane {

struct CountedSearch {
    CSearch condition;
    std::vector<unsigned char> services;
};

// Optional for back ends, beside BKQuoteInterface: whoever searches tells how much searches would find that
// nobody has sent. Interface thread.
class WIREPANE_CONTRACT_EXPORT SearchCounts {
public:
    virtual ~SearchCounts();

    // Counts without holding the interface thread up. Calls `told` once, from the event loop, with a number
    // for each search, as long as what is returned is kept: who lets it go is not told any more.
    using Told = std::function<void(const std::vector<int>& counts)>;
    [[nodiscard]] virtual std::shared_ptr<const void> countFound(std::vector<CountedSearch> searches,
                                                                 Told told) = 0;
};

}  // namespace wirepane
