// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The symbol mode of the news view: its combos, and symbol changes by the user, by linked views and by the
// host.
#include "host/contract/fixed_services.h"
#include "host/contract/sync_info.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "news_view/control_ids.h"
#include "news_view/searches.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_relate_symbol_quote_view.h"

#include <algorithm>

namespace {

constexpr int symbolMode = static_cast<int>(ListIndex::Symbol);
constexpr int symbolNewsType = 2;

const QString noSelectionCode = QStringLiteral("#001");
const QString fallbackCode = QStringLiteral("6214");

}  // namespace

bool TRVNewsCtrlView::bInitialSymbolInfo() {
    unsigned char service = symbols.Current().market;
    const int serviceIndex = symbols.iInitServiceComboBox(service);
    const int symbolIndex = serviceIndex >= 0 ? symbols.iInitSymbolComboBox(service) : -1;
    vSetComponentPos();
    const bool symbolFailed = symbolIndex < 0 && !symbols.bHasSymbols();
    if (serviceIndex < 0 || (symbolFailed && symbols.Current().code.isEmpty())) {
        vSetNotSupported();
        return true;
    }
    int index = symbols.iSymbolIndex(StartCode());
    if (index < 0)
        index = symbols.iSymbolIndex(fallbackCode);
    symbols.vSelectSymbol(index);
    if (settings.focusedTab == symbolMode)
        OnSelchangeComboSymbol();
    return true;
}

QString TRVNewsCtrlView::StartCode() const {
    const QString code = CSyncInfo::GetSettingCFG()->SYS_cszGetCurrentSymbol(GetLinkGroup());
    return code.isEmpty() && !symbolFromLink ? settings.symbolId : code;
}

// The host names symbols by their codes: of what was saved the view knows the market.
unsigned char TRVNewsCtrlView::StartMarket(const QString& code) const {
    return code == settings.symbolId ? settings.symbolService.value_or(stockExchangeService)
                                     : stockExchangeService;
}

void TRVNewsCtrlView::vSetNotSupported() {
    vSetDataState(DataState::NotSupported);
    vHideSymbolMode();
    update();
}

// The grid and the controls of the symbol mode make room for the notice that there is nothing to show.
void TRVNewsCtrlView::vHideSymbolMode() {
    vHideSymbolControls();
    if (CSuperSheetWnd* sheet = Sheet(symbolMode))
        sheet->hide();
}

// Without a list of all news the grid of symbol news stands where its controls would.
void TRVNewsCtrlView::vHideSymbolControls() {
    for (const int id : {ids::serviceButton, ids::serviceCombo, ids::symbolCombo}) {
        if (QWidget* control = GetDlgItem(this, id))
            control->hide();
    }
}

void TRVNewsCtrlView::vSetSupported() {
    vSetDataState(DataState::Normal);
    if (CSuperSheetWnd* sheet = Sheet(symbolMode))
        sheet->setVisible(currentMode == symbolMode);
}

void TRVNewsCtrlView::ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service,
                                   const QString& code, const QString& name) {
    if (sender != this && (group != GetLinkGroup() || GetLinkGroup() == 0))
        return;
    if (symbols.Current() == CSymbolInfo{service, code})
        return;
    vSetBaseSymbol(backEnd.bIsSymbolIDExist(service, code) == 1 ? CSymbolInfo{service, code} : CSymbolInfo{});
    symbols.vSetCurrent({service, code});
    const bool isListed = vDoNormalChangeSymbol(service, code);
    searches->followSymbol({service, code});
    if ((settings.functions & symbolNewsMask) != 0)
        vFollowSymbol(service, code, isListed);
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->ChangeSymbol(sender, group, service, code, name);
}

void TRVNewsCtrlView::vFollowSymbol(unsigned char service, const QString& code, bool isListed) {
    if (symbols.IsSupportNews(service, code)) {
        vSetSupported();
        if (Sheet(symbolMode) != nullptr && !isListed)
            GetSymbolNews(code);
    } else if (newsType == symbolNewsType) {
        vSetNotSupported();
    }
    update();
}

bool TRVNewsCtrlView::vDoNormalChangeSymbol(unsigned char service, const QString& code) {
    if (!symbols.IsSupportNews(service, code))
        return false;
    vOnChangeServiceCombobox(service);
    const bool isListed = vOnChangeSymbolCombobox();
    const int index = symbols.iSymbolIndex(code);
    if (currentMode == symbolMode && index >= 0) {
        symbols.vSelectSymbol(index);
        OnSelchangeComboSymbol();
    }
    return isListed;
}

void TRVNewsCtrlView::vOnChangeServiceCombobox(unsigned char service) {
    const int index = symbols.iServiceIndex(service);
    if (currentMode != symbolMode || index < 0)
        return;
    const int symbolIndex = symbols.iInitSymbolComboBox(service);
    if (symbolIndex < 0)
        return;
    symbols.vSelectService(index);
    symbols.vSelectSymbol(symbolIndex);
}

bool TRVNewsCtrlView::vOnChangeSymbolCombobox() {
    const QString code = symbols.Current().code;
    const int index = symbols.iSymbolIndex(code);
    if (currentMode != symbolMode || code.isEmpty() || index < 0)
        return false;
    for (const int id : {ids::serviceCombo, ids::symbolCombo, ids::serviceButton}) {
        if (QWidget* control = GetDlgItem(this, id))
            control->show();
    }
    symbols.vSelectSymbol(index);
    GetSymbolNews(code);
    return true;
}

void TRVNewsCtrlView::GetSymbolNews(const QString&) {
    clearStory();
    lists.bRebuildSymbol(symbols.Current());
    // The reader of another list reads on.
    if (currentMode != symbolMode && bPaneShowsStories())
        OnShowStory();
}

void TRVNewsCtrlView::OnSelSymbol(const QString& code) {
    if (Sheet(symbolMode) != nullptr)
        GetSymbolNews(code);
}

void TRVNewsCtrlView::OnSelchangeComboSymbol() {
    const auto selected = symbols.SelectedSymbol();
    if (Sheet(symbolMode) == nullptr || !selected)
        return;
    if (selected->code == symbols.Current().code) {
        symbols.vSelectSymbol(symbols.iSymbolIndex(selected->code));
        return;
    }
    symbols.vSetCurrent(*selected);
    GetSymbolNews(selected->code);
    emit SendChangeSymbol(GetLinkGroup(), selected->market, selected->code);
}

void TRVNewsCtrlView::OnSelchangeComboService() {
    const auto* combo = controls.Find<SCComboBox>(ids::serviceCombo);
    const int index = combo != nullptr ? combo->currentIndex() : -1;
    if (Sheet(symbolMode) == nullptr || index < 0)
        return;
    const unsigned char service = symbols.ServiceAt(index);
    if (service == symbols.Current().market) {
        symbols.vSelectService(index);
        return;
    }
    symbols.vSetCurrent({service, symbols.Current().code});
    symbols.vSelectSymbol(symbols.iInitSymbolComboBox(service));
    OnSelchangeComboSymbol();
    vSetComponentPos();
}

void TRVNewsCtrlView::vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>& updates) {
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vDoSymbolUpdate(updates);
    searches->updateSymbolPicker(updates);
    if (loading.bHasSymbolInformation() &&
        std::any_of(updates.begin(), updates.end(), [this](const CSymbolUpdateInfo& update) {
            return symbols.bLacksMarket(update.service) && symbols.IsSupportNews(update.service, update.code);
        }))
        vOfferMarket();
    for (const CSymbolUpdateInfo& update : updates) {
        if (!symbols.IsSupportNews(update.service, update.code))
            continue;
        const unsigned char service = symbols.Current().market;
        if (symbols.iServiceIndex(service) >= 0 && symbols.iInitSymbolComboBox(service) >= 0 &&
            newsType == symbolNewsType)
            OnSelchangeComboSymbol();
        return;
    }
}

// The first symbols of a market have come.
void TRVNewsCtrlView::vOfferMarket() {
    if (symbols.bHasSymbols()) {
        symbols.vOfferMarkets();
        vSetComponentPos();
        return;
    }
    vSetDataState(DataState::Normal);
    bInitialSymbolInfo();
    ShowHideCtrObject(currentMode);
    if (currentMode == symbolMode)
        InitialHeadlineTable(symbolMode);
    update();
}

bool TRVNewsCtrlView::bUpdateSymbolVec() {
    const unsigned char service = symbols.Current().market;
    if (symbols.iServiceIndex(service) >= 0)
        symbols.iInitSymbolComboBox(service);
    return true;
}

int TRVNewsCtrlView::GetCurrSymbolInfo(unsigned char& service, QString& code) {
    if (currentMode != symbolMode || !symbols.bHasSymbols())
        return TRVQuoteBaseView::GetCurrSymbolInfo(service, code);
    const CSymbolInfo selected =
        symbols.SelectedSymbol().value_or(CSymbolInfo{stockExchangeService, noSelectionCode});
    service = selected.market;
    code = selected.code;
    return 1;
}
