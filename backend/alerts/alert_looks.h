// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"
#include "backend/store/look_desk.h"

#include <vector>

namespace wirepane {
class EmbeddedBackEnd;

// How headlines look by the rules that are on: in the tint of the first that wants them and has one, with the
// tags of all that do. None: no rule is on. The back end outlives what is returned. Interface thread.
LookDesk::Judge looksBy(const std::vector<AlertRule>& rules, EmbeddedBackEnd& backEnd);

}  // namespace wirepane
