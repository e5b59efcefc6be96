// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/conformance/findings.h"
#include "host/contract/bk_quote_interface.h"

#include <chrono>

namespace wirepane {

// The duties of real-time distribution: who registers for the quotes of symbols hears what is known of them,
// and nobody else hears it.
void checkQuotes(BKQuoteInterface& backEnd, std::chrono::milliseconds patience, Findings& findings);

}  // namespace wirepane
