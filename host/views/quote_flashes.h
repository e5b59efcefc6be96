// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QHash>

#include <utility>
#include <vector>

// Which quotes have changed just now. A flash lasts some ticks of the list's timer; a tick costs as much as
// there are flashes.
class QuoteFlashes {
public:
    // Begins a flash, or begins it anew: the price went up (1), down (-1), or neither (0).
    void start(const CSymbolInfo& symbol, int direction);
    bool isFlashing(const CSymbolInfo& symbol) const { return running.contains(keyOf(symbol)); }
    int direction(const CSymbolInfo& symbol) const { return running.value(keyOf(symbol)).direction; }
    bool isEmpty() const { return running.isEmpty(); }
    // Result: the symbols whose flash is over.
    std::vector<CSymbolInfo> tick();
    void clear() { running.clear(); }

private:
    struct Flash {
        int ticksLeft = 0;
        int direction = 0;
    };
    using Key = std::pair<unsigned char, QString>;
    static Key keyOf(const CSymbolInfo& symbol) { return {symbol.market, symbol.code}; }

    QHash<Key, Flash> running;
};
