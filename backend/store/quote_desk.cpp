// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/quote_desk.h"

namespace wirepane {

void QuoteDesk::follow(NewsReceiver* receiver, const std::vector<CSymbolInfo>& symbols) {
    const bool waiting = !asked.empty();
    for (const CSymbolInfo& symbol : symbols) {
        if (symbol.code.isEmpty())
            continue;
        if (followed[receiver].insert(symbol).second)
            followers[symbol].push_back(receiver);
        asked[receiver].push_back(symbol);
    }
    if (!waiting && !asked.empty())
        QMetaObject::invokeMethod(
            &eventLoop, [this] { handKnown(); }, Qt::QueuedConnection);
}

void QuoteDesk::leave(NewsReceiver* receiver, const std::vector<CSymbolInfo>& symbols) {
    const auto mine = followed.find(receiver);
    if (mine == followed.end())
        return;
    for (const CSymbolInfo& symbol : symbols) {
        if (mine->second.erase(symbol) == 0)
            continue;
        const auto entry = followers.find(symbol);
        std::erase(entry->second, receiver);
        if (entry->second.empty())
            followers.erase(entry);
    }
}

void QuoteDesk::leaveAll(NewsReceiver* receiver) {
    const auto mine = followed.find(receiver);
    if (mine == followed.end())
        return;
    leave(receiver, {mine->second.begin(), mine->second.end()});
    followed.erase(receiver);
    asked.erase(receiver);
}

bool QuoteDesk::follows(NewsReceiver* receiver, const CSymbolInfo& symbol) const {
    const auto mine = followed.find(receiver);
    return mine != followed.end() && mine->second.contains(symbol);
}

void QuoteDesk::tell(const CQuoteMemory& quote) {
    const auto entry = followers.find(quote.symbol);
    if (entry == followers.end())
        return;
    for (NewsReceiver* receiver : std::vector(entry->second)) {
        if (follows(receiver, quote.symbol))
            receiver->vRecvNewMemory(&quote);
    }
}

void QuoteDesk::handKnown() {
    // A receiver that is told may ask for more, which comes in the next turn, or go.
    for (const auto& [receiver, symbols] : std::exchange(asked, {})) {
        std::vector<CQuoteMemory> known;
        for (const CSymbolInfo& symbol : symbols) {
            const auto quote = follows(receiver, symbol) ? find(symbol) : std::nullopt;
            if (quote)
                known.push_back(*quote);
        }
        if (known.size() == 1)
            receiver->vRecvMemoryRecovery(&known.front());
        else if (!known.empty())
            receiver->vRecvMultiSymbolMemoryRecovery(known);
    }
}

}  // namespace wirepane
