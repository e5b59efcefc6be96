// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the back end answers about symbols.
#include "backend/store/embedded_back_end.h"
#include "host/contract/fixed_services.h"

#include <algorithm>
#include <utility>

namespace wirepane {

SymbolTable& EmbeddedBackEnd::symbols() {
    if (!symbolsRead)
        symbolsRead = static_cast<bool>(symbolTable.load(*connections.reading));
    return symbolTable;
}

bool EmbeddedBackEnd::bGetAllServiceID(std::vector<unsigned char>& services) {
    services = symbols().markets();
    return !services.empty();
}

// The delayed Hong Kong market is a service of its own where a store has it.
bool EmbeddedBackEnd::bGetServiceID2Delay(unsigned char service, unsigned char& delayed) {
    if (service != hongKongService)
        return false;
    const std::vector<unsigned char> markets = symbols().markets();
    if (std::find(markets.begin(), markets.end(), delayedHongKongService) == markets.end())
        return false;
    delayed = delayedHongKongService;
    return true;
}

int EmbeddedBackEnd::bIsFromTheSameAuthServiceID(unsigned char service, unsigned char other) {
    const auto group = [](unsigned char id) { return id == delayedHongKongService ? hongKongService : id; };
    return group(service) == group(other) ? 1 : 0;
}

bool EmbeddedBackEnd::bGetSymbolID(unsigned char service, std::vector<QString>& codes,
                                   std::vector<QString>& names) {
    return symbols().GetSymbolsByService(service, codes, names, 0);
}

int EmbeddedBackEnd::bIsSymbolIDExist(unsigned char service, const QString& code) {
    return symbols().find(service, code) != nullptr ? 1 : 0;
}

bool EmbeddedBackEnd::bGetCategorybySymbolID(int& category, unsigned char service, const QString& code) {
    const SymbolItem* symbol = symbols().find(service, code);
    if (symbol == nullptr)
        return false;
    category = symbol->category;
    return true;
}

bool EmbeddedBackEnd::bGetItemDataByItemNo(QString& value, unsigned char market, const QString& code,
                                           int item) {
    const SymbolItem* symbol = symbols().find(market, code);
    if (symbol == nullptr || (item != symbol_items::name && item != symbol_items::nameWithMonth))
        return false;
    value = symbolTable.nameOf(*symbol);
    return true;
}

void EmbeddedBackEnd::setPrefersEnglishNames(bool on) {
    if (!symbolTable.setPrefersEnglish(on))
        return;
    tellRenamed(symbolTable.withTwoNames());
}

void EmbeddedBackEnd::setConvertsToSimplified(bool on) {
    if (std::exchange(simplified, on) == on)
        return;
    if (on)
        symbolTable.convertNames([this](const QString& name) { return chinese.convert(name); });
    else
        symbolTable.convertNames({});
    tellRenamed(symbolTable.all());
}

void EmbeddedBackEnd::tellRenamed(const std::vector<CSymbolUpdateInfo>& renamed) {
    if (!renamed.empty())
        forEachReceiver([&](NewsReceiver& receiver) { receiver.vDoSymbolUpdate(renamed); });
}

}  // namespace wirepane
