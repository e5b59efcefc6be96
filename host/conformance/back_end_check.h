// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/bk_quote_interface.h"

#include <QString>

#include <chrono>
#include <vector>

namespace wirepane {

// Puts a back end through the duties that BKQuoteInterface states, and tells which it breaks.
//
// The back end should hold some news: what it has none of (headlines, stories, categories, symbols, quotes)
// cannot be checked. It is asked as views ask it, with good arguments and with bad ones, and is sent nothing
// that changes its news. Requests, searches and quotes are awaited in the event loop, each `patience` at
// most: every service is searched once, and quotes are registered for a few times. A story that its source
// still owes is taken for one that nobody tells of: check while none is on its way.
//
// Result: a sentence for each broken duty, with the operation and its arguments; empty: none was seen broken.
// An operation that hangs or crashes cannot be told of. Call it on the interface thread, with an application
// object, while no view is attached.
std::vector<QString> brokenDuties(BKQuoteInterface& backEnd,
                                  std::chrono::milliseconds patience = std::chrono::seconds(10));

}  // namespace wirepane
