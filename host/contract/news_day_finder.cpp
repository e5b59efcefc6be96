// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_day_finder.h"

namespace wirepane {

NewsDayFinder::~NewsDayFinder() = default;

}  // namespace wirepane
