// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/quote_check.h"

#include "host/conformance/hearing.h"

#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t mostSymbols = 200;  // that are asked for
const QString operation = u"RegisterSymbols"_s;

// Registers for quotes and notes those that come at a wrong time or are not for it.
class QuoteListener : public NewsReceiver {
public:
    QuoteListener(BKQuoteInterface& heard, Findings& noted) : backEnd(heard), findings(noted) {
        backEnd.Attach(this);
    }
    ~QuoteListener() override { backEnd.Detach(this); }

    void Register(const std::vector<CSymbolInfo>& added) {
        registered.insert(added.begin(), added.end());
        vSend(added, {});
    }
    void Leave(const std::vector<CSymbolInfo>& removed) {
        for (const CSymbolInfo& symbol : removed)
            registered.erase(symbol);
        vSend({}, removed);
    }
    void LeaveAll() {
        registered.clear();
        backEnd.UnregisterSymbols(this);
    }
    // Registers, also again, and waits to be told of a quote. False: none came in time.
    bool Hears(const std::vector<CSymbolInfo>& symbols, std::chrono::milliseconds patience) {
        count = 0;
        Register(symbols);
        return WaitUntil([this] { return count > 0; }, patience);
    }

    void vRecvNewMemory(const CQuoteMemory* quote) override { vHear(quote); }
    void vRecvMemoryRecovery(const CQuoteMemory* quote) override { vHear(quote); }
    void vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& quotes) override {
        for (const CQuoteMemory& quote : quotes)
            vHear(&quote);
    }

    CSymbolInfo last;  // of which it has heard

private:
    void vSend(const std::vector<CSymbolInfo>& added, const std::vector<CSymbolInfo>& removed) {
        sending = true;
        backEnd.RegisterSymbols(this, added, removed);
        sending = false;
    }
    void vHear(const CQuoteMemory* quote) {
        CheckMoment(operation, sending, findings);
        if (!findings.Expect(quote != nullptr, operation + u": a view is told of no quote."_s))
            return;
        findings.Expect(
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

void CheckQuotes(BKQuoteInterface& backEnd, std::chrono::milliseconds patience, Findings& findings) {
    const std::vector<CSymbolInfo> symbols = symbolsOf(backEnd);
    QuoteListener nobody(backEnd, findings);
    QuoteListener leaver(backEnd, findings);
    QuoteListener view(backEnd, findings);
    leaver.Leave(symbols);
    if (symbols.empty() || !view.Hears(symbols, patience))
        return;
    const std::vector<CSymbolInfo> known{view.last};
    const QString told = operation + u", \"%1\": "_s.arg(view.last.code);
    findings.Expect(view.Hears(known, patience),
                    told + u"a view that is registered already is not told what is known."_s);

    // What comes to the view comes after what would have come to one that registered before it.
    leaver.Register(known);
    leaver.Leave(known);
    view.Hears(known, patience);
    leaver.Register(known);
    leaver.LeaveAll();
    view.Hears(known, patience);
    findings.Expect(leaver.Hears(known, patience),
                    told + u"a view that has left and registers again is not told what is known."_s);
}
