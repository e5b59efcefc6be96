// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "terminal/automation/params.h"

#include <vector>

namespace wirepane {

// A headline's key, {service, time, seq}, by itself or as the parameter "key". What is wrong with it is
// recorded in `params`.
HeadlineKey headlineFrom(Params& params);
// Those of the list "keys", or the one as above.
std::vector<HeadlineKey> headlinesFrom(Params& params);

}  // namespace wirepane
