// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <optional>

class BKQuoteInterface;

namespace wirepane {

// The name that the host shows of a symbol; none when it has none at hand.
WIREPANE_CONTRACT_EXPORT std::optional<QString> symbolName(BKQuoteInterface& backEnd,
                                                           const CSymbolInfo& symbol);

// A symbol that came without its market in the first one that knows it; as it is where none does.
WIREPANE_CONTRACT_EXPORT CSymbolInfo inItsMarket(BKQuoteInterface& backEnd, const CSymbolInfo& symbol);

}  // namespace wirepane
