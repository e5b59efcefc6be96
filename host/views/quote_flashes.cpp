// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_flashes.h"

namespace {
constexpr int ticksOfFlash = 3;
}

void QuoteFlashes::start(const CSymbolInfo& symbol, int direction) {
    running.insert(keyOf(symbol), {ticksOfFlash, direction});
}

std::vector<CSymbolInfo> QuoteFlashes::tick() {
    std::vector<CSymbolInfo> over;
    for (auto flash = running.begin(); flash != running.end();) {
        if (--flash->ticksLeft > 0) {
            ++flash;
            continue;
        }
        over.push_back({flash.key().first, flash.key().second});
        flash = running.erase(flash);
    }
    return over;
}
