// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "terminal/automation/params.h"

namespace wirepane {

// A headline's key, {service, time, seq}, by itself or as the parameter "key". What is wrong with it is
// recorded in `params`.
HeadlineKey headlineFrom(Params& params);

}  // namespace wirepane
