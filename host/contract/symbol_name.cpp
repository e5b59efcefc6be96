// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/symbol_name.h"

#include "host/contract/bk_quote_interface.h"

namespace wirepane {

std::optional<QString> symbolName(BKQuoteInterface& backEnd, const CSymbolInfo& symbol) {
    const int item = backEnd.bSymbolNameIsShowRealMonth() ? symbol_items::nameWithMonth : symbol_items::name;
    QString name;
    if (!backEnd.bGetItemDataByItemNo(name, symbol.market, symbol.code, item))
        return std::nullopt;
    return name;
}

}  // namespace wirepane
