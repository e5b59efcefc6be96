// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
class ControlSet;
class ViewOptions;

// The symbol whose news the symbol mode shows, and the two combos that choose it: the service combo, and the
// symbol combo with the supported symbols of the chosen service. What happens when it changes is the view's
// affair.
class SymbolBinding {
public:
    SymbolBinding(BKQuoteInterface& backEnd, const ControlSet& controls, const ViewOptions& options);

    // The current news symbol.
    const CSymbolInfo& currentSymbol() const { return current; }
    void setCurrent(const CSymbolInfo& symbol) { current = symbol; }

    // Fills the service combo with the markets that the user may see and selects the current symbol's, else
    // the first. The index of the selection, its service in `selected`; -1, and `selected` unchanged, when
    // there is none.
    int iInitServiceComboBox(unsigned char& selected);
    // Fills the symbol combo with the supported symbols of a service and selects the current symbol. The
    // index of the selection; -1 when it is not among them or there are none. A service whose symbols cannot
    // be had leaves the service combo for good.
    int iInitSymbolComboBox(unsigned char service);

    // Whether the symbol mode can show news of a symbol.
    bool IsSupportNews(unsigned char service, const QString& code) const;

    // Whether a market that the service combo may offer is not offered.
    bool lacksMarket(unsigned char service) const;
    // Fills the service combo with the markets of this moment. It chooses that of the current symbol; where
    // that is not offered, its choice stays if it still is.
    void offerMarkets();
    // Names the markets that are offered in the language in force, if they are to be.
    void nameMarkets();

    // The place of a service in the service combo; -1 when it is not offered.
    int serviceIndex(unsigned char service) const;
    unsigned char serviceAt(int index) const { return services.at(static_cast<std::size_t>(index)); }
    // The place of a code in the symbol combo, by exact text and in constant time; -1 when it is not there.
    int symbolIndex(const QString& code) const { return indexOfCode.value(code, -1); }
    bool hasSymbols() const { return !symbols.empty(); }
    // What is selected in the symbol combo.
    std::optional<CSymbolInfo> selectedSymbol() const;

    // Makes both combos name the current symbol: its market's symbols are offered, and nothing is chosen
    // where it is not among them.
    void showCurrent();

    void selectService(int index);
    void selectSymbol(int index);

private:
    QString marketName(unsigned char service) const;
    void offerService(unsigned char service, const std::vector<unsigned char>& all);
    void dropService(unsigned char service);
    bool fetchSymbols(unsigned char service, std::vector<QString>& codes, std::vector<QString>& names) const;

    BKQuoteInterface& backEnd;
    const ControlSet& controls;
    const ViewOptions& options;
    CSymbolInfo current;
    std::vector<unsigned char> services;  // in the order of the service combo
    std::vector<CSymbolInfo> symbols;     // in the order of the symbol combo
    QHash<QString, int> indexOfCode;
};

}  // namespace wirepane
