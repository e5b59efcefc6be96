// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"
#include "backend/store/look_desk.h"
#include "host/contract/query/headline_query.h"

#include <vector>

namespace wirepane {

// How headlines look by the rules that are on and have a tint or a tag: in the tint of the first that wants
// them and has one, with the tags of all that do. None: no rule has either. `queries` outlives what is
// returned. Interface thread.
LookDesk::Judge looksBy(const std::vector<AlertRule>& rules, HeadlineQueries& queries);

}  // namespace wirepane
