// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/headline_query.h"

namespace wirepane {

HeadlineQuery::~HeadlineQuery() = default;

HeadlineQueries::~HeadlineQueries() = default;

}  // namespace wirepane
