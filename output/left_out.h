// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_output.h"

#include <cstddef>

class BKQuoteInterface;

namespace wirepane {

// What the user is told of news without a story.

// Nothing was put out, as there was no story among what was to be; a file of that name stays as it is.
NewsOutcome nothingToPutOut(BKQuoteInterface& backEnd);
// Adds how many pieces of news were left out, where any were and the others were put out.
void tellLeftOut(BKQuoteInterface& backEnd, std::size_t leftOut, NewsOutcome& outcome);

}  // namespace wirepane
