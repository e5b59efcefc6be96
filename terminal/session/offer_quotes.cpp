// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/offer_quotes.h"

#include "backend/store/embedded_back_end.h"
#include "terminal/frame/symbol_box.h"

namespace wirepane {

OfferQuotes::OfferQuotes(EmbeddedBackEnd& embedded, SymbolBox& symbolBox)
    : backEnd(embedded), box(symbolBox) {
    backEnd.attach(this);
    connect(&box, &SymbolBox::offersInSight, this, &OfferQuotes::follow);
}

OfferQuotes::~OfferQuotes() {
    backEnd.unregisterSymbols(this);
    backEnd.detach(this);
}

void OfferQuotes::follow(const std::vector<CSymbolInfo>& symbols) {
    backEnd.registerSymbols(this, symbols, followed);
    followed = symbols;
}

void OfferQuotes::vRecvNewMemory(const CQuoteMemory* quote) {
    if (quote != nullptr)
        box.showQuote(*quote);
}

void OfferQuotes::vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& quotes) {
    for (const CQuoteMemory& quote : quotes)
        box.showQuote(quote);
}

}  // namespace wirepane
