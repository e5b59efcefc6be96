// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"
#include "host/views/quote_table.h"

#include <QHash>

#include <bitset>
#include <vector>

namespace wirepane {

// Cells of a row, by QuoteColumn.
using QuoteCells = std::bitset<quoteColumns>;

// Which quotes have changed just now. A flash lasts some ticks of the list's timer; a tick costs as much as
// there are flashes.
class WIREPANE_HOST_EXPORT QuoteFlashes {
public:
    // Begins a flash of these cells, for so many ticks, or begins it anew.
    void start(const CSymbolInfo& symbol, const QuoteCells& cells, int ticks);
    static constexpr int anyColumn = -1;
    bool isFlashing(const CSymbolInfo& symbol, int column = anyColumn) const;
    bool isEmpty() const { return flashes.isEmpty(); }
    // Result: the symbols whose flash is over.
    std::vector<CSymbolInfo> tick();

private:
    struct Flash {
        int ticksLeft = 0;
        QuoteCells cells;
    };
    QHash<CSymbolInfo, Flash> flashes;
};

}  // namespace wirepane
