// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/symbol_name.h"

#include "host/contract/bk_quote_interface.h"

#include <algorithm>
#include <vector>

namespace wirepane {

std::optional<QString> symbolName(BKQuoteInterface& backEnd, const CSymbolInfo& symbol) {
    const int item = backEnd.bSymbolNameIsShowRealMonth() ? symbol_items::nameWithMonth : symbol_items::name;
    QString name;
    if (!backEnd.bGetItemDataByItemNo(name, symbol.market, symbol.code, item))
        return std::nullopt;
    return name;
}

CSymbolInfo inItsMarket(BKQuoteInterface& backEnd, const CSymbolInfo& symbol) {
    std::vector<unsigned char> markets;
    if (symbol.market != 0 || !backEnd.bGetAllServiceID(markets))
        return symbol;
    const auto market = std::find_if(markets.begin(), markets.end(), [&](unsigned char candidate) {
        return backEnd.bIsSymbolIDExist(candidate, symbol.code) == 1;
    });
    return market != markets.end() ? CSymbolInfo{*market, symbol.code} : symbol;
}

}  // namespace wirepane
