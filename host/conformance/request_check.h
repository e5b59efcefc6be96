// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/conformance/findings.h"
#include "host/contract/bk_quote_interface.h"

#include <chrono>
#include <vector>

namespace wirepane {

// The duties of what is answered later: what a look-up has missed, tables and stories that are asked for
// again, and searches, of one service. `entries` are some of its news.
void checkRequests(BKQuoteInterface& backEnd, unsigned char service,
                   const std::vector<CHeadlineTable>& entries, std::chrono::milliseconds patience,
                   Findings& findings);

}  // namespace wirepane
