// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QHash>

#include <vector>

namespace wirepane {

// Which quotes have changed just now. A flash lasts some ticks of the list's timer; a tick costs as much as
// there are flashes.
class WIREPANE_HOST_EXPORT QuoteFlashes {
public:
    // Begins a flash, or begins it anew.
    void start(const CSymbolInfo& symbol);
    bool isFlashing(const CSymbolInfo& symbol) const { return ticksLeft.contains(symbol); }
    bool isEmpty() const { return ticksLeft.isEmpty(); }
    // Result: the symbols whose flash is over.
    std::vector<CSymbolInfo> tick();

private:
    QHash<CSymbolInfo, int> ticksLeft;
};

}  // namespace wirepane
