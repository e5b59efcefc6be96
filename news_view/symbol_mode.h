// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "news_view/common_parts.h"
#include "news_view/symbol_binding.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

class CSuperSheetWnd;

namespace wirepane {
class RelationMatcher;
class ViewContext;

// The symbol mode of a view: the symbol whose news its list holds, the combos that choose it, and its changes
// by the user, by linked views and by the host. Interface thread only.
class SymbolMode {
public:
    struct Calls {
        std::function<void()> layOut;
        std::function<void()> showControlsOfMode;
        // Whether the view has something to show for its symbol.
        std::function<bool()> isSupported;
        std::function<void(bool)> setSupported;
        std::function<QString()> codeOfLinkGroup;
        // The user has chosen a symbol: the views of the link group follow.
        std::function<void(const CSymbolInfo&)> tellLinkGroup;
    };
    SymbolMode(ViewContext& context, const CommonParts& parts, Calls calls);

    // Takes the symbol that the mode opens with from the settings and the link group. `fromLink`: the host
    // asked for the news of the linked symbol; `only`: the view shows nothing but symbol news.
    void start(bool fromLink, bool only);
    bool isFromLink() const { return fromLink; }
    // The mode is shown: fills the combos once, later they name the current symbol again.
    void offer();
    // The symbol and the market to save.
    void keep() const;

    // The current news symbol; what is chosen in the combo; whose news the list is to hold.
    const CSymbolInfo& current() const { return binding.currentSymbol(); }
    std::optional<CSymbolInfo> chosen() const { return binding.selectedSymbol(); }
    CSymbolInfo listed() const;
    // The symbol that other views may take from this one; nothing while the mode is not shown.
    std::optional<CSymbolInfo> forOthers() const;

    // Chooses the current symbol in the combo and reads its news. False without a current symbol.
    bool readFirst();
    // Reads the news of the current symbol into the list.
    void read();
    // The same after a change of services, where a symbol is chosen.
    void readFiltered(const RelationMatcher* filter);

    // The user has chosen in a combo.
    void symbolChosen();
    void serviceChosen();
    // The symbol has changed elsewhere. True when the symbol's news has been read.
    bool take(const CSymbolInfo& symbol);
    // What take left to do, after the searches have followed.
    void follow(const CSymbolInfo& symbol, bool isRead);
    // The back end's symbols have changed.
    void takeUpdates(const std::vector<CSymbolUpdateInfo>& updates);
    void refillSymbols();
    void nameMarkets() { binding.nameMarkets(); }

    // The mode's controls are shown: those go that have nothing to choose, or no place.
    void hideWithoutUse();

private:
    bool isShown() const;
    CSuperSheetWnd* grid() const;
    QString startCode() const;
    unsigned char startMarket(const QString& code) const;
    void bInitialSymbolInfo();
    void setNotSupported();
    void setSupported();
    void hideMode();
    void hideControls();
    bool vDoNormalChangeSymbol(const CSymbolInfo& symbol);
    void vOnChangeServiceCombobox(unsigned char service);
    bool vOnChangeSymbolCombobox();
    void offerMarket();

    ViewContext& context;
    const CommonParts parts;
    const Calls calls;
    SymbolBinding binding;
    bool fromLink = false;
};

}  // namespace wirepane
