// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_flashes.h"

namespace wirepane {

void QuoteFlashes::start(const CSymbolInfo& symbol, const QuoteCells& cells, int ticks) {
    flashes.insert(symbol, {ticks, cells});
}

bool QuoteFlashes::isFlashing(const CSymbolInfo& symbol, int column) const {
    const auto flash = flashes.constFind(symbol);
    return flash != flashes.cend() &&
           (column == anyColumn || flash->cells.test(static_cast<std::size_t>(column)));
}

std::vector<CSymbolInfo> QuoteFlashes::tick() {
    std::vector<CSymbolInfo> over;
    for (auto flash = flashes.begin(); flash != flashes.end();) {
        if (--flash->ticksLeft > 0) {
            ++flash;
            continue;
        }
        over.push_back(flash.key());
        flash = flashes.erase(flash);
    }
    return over;
}

}  // namespace wirepane
