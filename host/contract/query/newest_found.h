// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"
#include "host/contract/search_condition.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace wirepane {

// Optional for back ends, beside BKQuoteInterface: finds the newest few of a search at once, however much
// there is of it, for somebody who is still typing. Interface thread.
class WIREPANE_CONTRACT_EXPORT NewestFound {
public:
    virtual ~NewestFound();

    // Searches without holding the interface thread up, and ahead of searches that were sent. Calls `told`
    // from the event loop with the newest of all services together, newest first, `most` of them where
    // there are more, and true; before that perhaps with those that were soon found, and false; as long as
    // what is returned is kept. Who lets it go is not told any more, and the
    // search is given up. Of a query that ends with a word cut short, what goes on may be found in the newest
    // news alone. An empty answer where the store cannot be read.
    using Told = std::function<void(const std::vector<CHeadlineTable>& newest, bool isAll)>;
    [[nodiscard]] virtual std::shared_ptr<const void> findNewest(const CSearch& condition,
                                                                 const std::vector<unsigned char>& services,
                                                                 std::size_t most, Told told) = 0;
};

}  // namespace wirepane
