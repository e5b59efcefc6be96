// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

namespace wirepane {

// What is to be marked in a text that a condition has found: its keywords, or the texts that a query asks for
// and does not exclude, in their order.
WIREPANE_CONTRACT_EXPORT std::vector<QString> textsToMark(const CSearch& condition);

}  // namespace wirepane
