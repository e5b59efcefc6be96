// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QStringList>

namespace wirepane {

// Optional for back ends, beside BKQuoteInterface: which sources have brought a piece of news, where it comes
// from several that may carry the same. Interface thread.
class WIREPANE_CONTRACT_EXPORT NewsOrigins {
public:
    virtual ~NewsOrigins();

    // What the sources are called for their reader, in the order in which they brought it. Asked for a story
    // that is shown: answered from memory or an index. Empty where nothing is known.
    virtual QStringList originsOf(const HeadlineKey& key) = 0;
};

}  // namespace wirepane
