// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_columns.h"

#include <algorithm>
#include <numeric>

namespace wirepane {

namespace {

int& widthOf(QuoteWidths& widths, QuoteColumn column) {
    return widths.at(static_cast<std::size_t>(column));
}

int sumOf(const QuoteWidths& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

}  // namespace

QuoteWidths fitQuoteColumns(const QuoteWidths& wanted, int box) {
    QuoteWidths widths = wanted;
    box = std::max(0, box);
    int& name = widthOf(widths, QuoteColumn::Name);
    const int excess = std::max(0, sumOf(widths) - box);
    name = std::max(name - excess, std::min(name, widthOf(widths, QuoteColumn::Code)));
    for (const QuoteColumn column : {QuoteColumn::Volume, QuoteColumn::Change, QuoteColumn::Name}) {
        if (sumOf(widths) > box)
            widthOf(widths, column) = 0;
    }
    const int sum = sumOf(widths);
    if (sum > box) {
        for (int& width : widths)
            width = width * box / sum;
    }
    widthOf(widths, name > 0 ? QuoteColumn::Name : QuoteColumn::Code) += box - sumOf(widths);
    return widths;
}

}  // namespace wirepane
