// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/quote_keys.h"
#include "host/views/quote_table.h"

#include <QLatin1StringView>

#include <array>

namespace wirepane {

// What differs from column to column of a quote list, in the order of QuoteColumn.
struct QuoteColumnKind {
    QLatin1StringView headerKey;
    int characters;  // that have room; the name's are set up
    int width;       // with finished rows, in pixels, where the type has its usual size
    Qt::Alignment alignment;
};

inline constexpr std::array<QuoteColumnKind, quoteColumns> quoteColumnKinds{{
    {quote_keys::code, 7, 52, Qt::AlignLeft | Qt::AlignVCenter},
    {quote_keys::name, 0, 188, Qt::AlignLeft | Qt::AlignVCenter},
    {quote_keys::last, 9, 84, Qt::AlignRight | Qt::AlignVCenter},
    {quote_keys::change, 7, 76, Qt::AlignRight | Qt::AlignVCenter},
    {quote_keys::percent, 7, 80, Qt::AlignRight | Qt::AlignVCenter},
    {quote_keys::volume, 11, 90, Qt::AlignRight | Qt::AlignVCenter},
}};

}  // namespace wirepane
