// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/quote_check.h"

#include "host/conformance/hearing.h"

#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::size_t mostSymbols = 200;  // that are asked for
const QString operation = u"RegisterSymbols"_s;

// Registers for quotes and notes those that come at a wrong time or are not for it.
class QuoteListener : public NewsReceiver {
public:
    QuoteListener(BKQuoteInterface& heard, Findings& noted) : backEnd(heard), findings(noted) {
        backEnd.attach(this);
    }
    ~QuoteListener() override { backEnd.detach(this); }

    void registerAll(const std::vector<CSymbolInfo>& added) {
        registered.insert(added.begin(), added.end());
        sendSearch(added, {});
    }
    void leave(const std::vector<CSymbolInfo>& removed) {
        for (const CSymbolInfo& symbol : removed)
            registered.erase(symbol);
        sendSearch({}, removed);
    }
    void leaveAll() {
        registered.clear();
        backEnd.unregisterSymbols(this);
    }
    // Registers, also again, and waits to be told of a quote. False: none came in time.
    bool hears(const std::vector<CSymbolInfo>& symbols, std::chrono::milliseconds patience) {
        count = 0;
        registerAll(symbols);
        return waitUntil([this] { return count > 0; }, patience);
    }

    void vRecvNewMemory(const CQuoteMemory* quote) override { hear(quote); }
    void vRecvMemoryRecovery(const CQuoteMemory* quote) override { hear(quote); }
    void vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& quotes) override {
        for (const CQuoteMemory& quote : quotes)
            hear(&quote);
    }

    CSymbolInfo last;  // of which it has heard

private:
    void sendSearch(const std::vector<CSymbolInfo>& added, const std::vector<CSymbolInfo>& removed) {
        sending = true;
        backEnd.registerSymbols(this, added, removed);
        sending = false;
    }
    void hear(const CQuoteMemory* quote) {
        checkMoment(operation, sending, findings);
        if (!findings.expect(quote != nullptr, operation + u": a view is told of no quote."_s))
            return;
        findings.expect(
            registered.contains(quote->symbol),
            operation + u": a quote of \"%1\" comes to a view that is not registered for it."_s.arg(
                            quote->symbol.code));
        last = quote->symbol;
        ++count;
    }

    BKQuoteInterface& backEnd;
    Findings& findings;
    std::set<CSymbolInfo> registered;
    int count = 0;
    bool sending = false;
};

std::vector<CSymbolInfo> symbolsOf(BKQuoteInterface& backEnd) {
    std::vector<unsigned char> markets;
    backEnd.bGetAllServiceID(markets);
    std::vector<CSymbolInfo> symbols;
    for (const unsigned char market : markets) {
        std::vector<QString> codes;
        std::vector<QString> names;
        backEnd.bGetSymbolID(market, codes, names);
        for (std::size_t i = 0; i < codes.size() && symbols.size() < mostSymbols; ++i)
            symbols.push_back({market, codes[i]});
    }
    return symbols;
}

}  // namespace

void checkQuotes(BKQuoteInterface& backEnd, std::chrono::milliseconds patience, Findings& findings) {
    const std::vector<CSymbolInfo> symbols = symbolsOf(backEnd);
    QuoteListener nobody(backEnd, findings);
    QuoteListener leaver(backEnd, findings);
    QuoteListener view(backEnd, findings);
    leaver.leave(symbols);
    if (symbols.empty() || !view.hears(symbols, patience))
        return;
    const std::vector<CSymbolInfo> known{view.last};
    const QString told = operation + u", \"%1\": "_s.arg(view.last.code);
    findings.expect(view.hears(known, patience),
                    told + u"a view that is registered already is not told what is known."_s);

    // What comes to the view comes after what would have come to one that registered before it.
    leaver.registerAll(known);
    leaver.leave(known);
    view.hears(known, patience);
    leaver.registerAll(known);
    leaver.leaveAll();
    view.hears(known, patience);
    findings.expect(leaver.hears(known, patience),
                    told + u"a view that has left and registers again is not told what is known."_s);
}

}  // namespace wirepane
