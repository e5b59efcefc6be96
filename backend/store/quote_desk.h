// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/news_receiver.h"

#include <QObject>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace wirepane {

// Who follows the quotes of which symbols, and how they are told. Interface thread.
class QuoteDesk {
public:
    // What is known of a symbol at the moment of the question.
    using LookUp = std::function<std::optional<CQuoteMemory>(const CSymbolInfo&)>;

    explicit QuoteDesk(LookUp lookUp) : find(std::move(lookUp)) {}

    // From here on the receiver is told of the symbols' quotes. Those that are known it gets from the event
    // loop, also for symbols that it follows already. Symbols without a code are passed over.
    void follow(NewsReceiver* receiver, const std::vector<CSymbolInfo>& symbols);
    void leave(NewsReceiver* receiver, const std::vector<CSymbolInfo>& symbols);
    void leaveAll(NewsReceiver* receiver);

    // Tells those who follow the symbol. A receiver that leaves meanwhile is not told any more.
    void tell(const CQuoteMemory& quote);

private:
    bool follows(NewsReceiver* receiver, const CSymbolInfo& symbol) const;
    void handKnown();

    LookUp find;
    std::map<CSymbolInfo, std::vector<NewsReceiver*>> followers;
    std::map<NewsReceiver*, std::set<CSymbolInfo>> followed;
    std::map<NewsReceiver*, std::vector<CSymbolInfo>> asked;  // to be told what is known
    QObject eventLoop;
};

}  // namespace wirepane
