// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"

#include <vector>

namespace wirepane::bench {

// Ten words each, with a phrase and an exclusion; few titles hold one.
std::vector<AlertRule> rulesOf(std::int64_t count);

}  // namespace wirepane::bench
