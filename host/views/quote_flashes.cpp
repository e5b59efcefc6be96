// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_flashes.h"

namespace wirepane {

namespace {
constexpr int ticksOfFlash = 3;
}

void QuoteFlashes::start(const CSymbolInfo& symbol) {
    ticksLeft.insert(symbol, ticksOfFlash);
}

std::vector<CSymbolInfo> QuoteFlashes::tick() {
    std::vector<CSymbolInfo> over;
    for (auto flash = ticksLeft.begin(); flash != ticksLeft.end();) {
        if (--*flash > 0) {
            ++flash;
            continue;
        }
        over.push_back(flash.key());
        flash = ticksLeft.erase(flash);
    }
    return over;
}

}  // namespace wirepane
