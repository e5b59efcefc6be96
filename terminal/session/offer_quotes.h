// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/news_receiver.h"

#include <QObject>

#include <vector>

namespace wirepane {
class EmbeddedBackEnd;
class SymbolBox;

// Has the quotes told that the symbol box shows, as long as it shows them.
class OfferQuotes : public QObject, public NewsReceiver {
public:
    // Neither is owned; both outlive this.
    OfferQuotes(EmbeddedBackEnd& backEnd, SymbolBox& box);
    ~OfferQuotes() override;

    void vRecvNewMemory(const CQuoteMemory* quote) override;
    void vRecvMemoryRecovery(const CQuoteMemory* quote) override { vRecvNewMemory(quote); }
    void vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& quotes) override;

private:
    void follow(const std::vector<CSymbolInfo>& symbols);

    EmbeddedBackEnd& backEnd;
    SymbolBox& box;
    std::vector<CSymbolInfo> followed;
};

}  // namespace wirepane
