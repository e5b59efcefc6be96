// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"

#include <vector>

namespace wirepane::bench {

// News as it comes in: titles of ten words, stories of about 1,500 characters from a vocabulary of 5,000
// words, two related symbols each. The same every time.
std::vector<NewsItem> newsSamples(int count);

}  // namespace wirepane::bench
