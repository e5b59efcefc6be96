// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/search_counts.h"

namespace wirepane {

SearchCounts::~SearchCounts() = default;

}  // namespace wirepane
