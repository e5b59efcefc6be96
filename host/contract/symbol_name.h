// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <optional>

class BKQuoteInterface;

// The name that the host shows of a symbol; none when it has none at hand.
std::optional<QString> SymbolName(BKQuoteInterface& backEnd, const CSymbolInfo& symbol);
