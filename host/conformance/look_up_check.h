// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/conformance/findings.h"
#include "host/contract/bk_quote_interface.h"

#include <vector>

namespace wirepane {

// The duties of what is answered at once. Services, names, categories and symbols; result: the services.
std::vector<unsigned char> checkCatalogues(BKQuoteInterface& backEnd, Findings& findings);

// Tables, headlines, stories and related symbols of one service; result: entries of its current day.
std::vector<CHeadlineTable> checkNews(BKQuoteInterface& backEnd, unsigned char service, Findings& findings);

}  // namespace wirepane
