// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/views/quote_table.h"

#include <array>

namespace wirepane {

// The widths of a quote list's columns in pixels; 0: not shown.
using QuoteWidths = std::array<int, quoteColumns>;

// Fits columns that would like the widths `wanted` into a box, which they then fill exactly. What is left
// over goes to the name. Where there is not enough, the name is narrowed first, down to the width of the
// code; then the volume, the change and the name go, in this order; then what is left is cut.
WIREPANE_HOST_EXPORT QuoteWidths fitQuoteColumns(const QuoteWidths& wanted, int box);

}  // namespace wirepane
