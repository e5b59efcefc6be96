// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The symbol mode of the news view: its combos, and symbol changes by the user, by linked views and by the
// host.
#include "host/contract/fixed_services.h"
#include "host/contract/sync_info.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_relate_symbol_quote_view.h"

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
    CSyncInfo* sync = CSyncInfo::GetSettingCFG();
    QString code = sync->SYS_cszGetCurrentSymbol(GetLinkGroup());
    if (code.isEmpty() && !symbolFromLink)
        code = settings.symbolId;
    int index = symbols.iSymbolIndex(code);
    if (index < 0)
        index = symbols.iSymbolIndex(fallbackCode);
    symbols.vSelectSymbol(index);
    if (settings.focusedTab == symbolMode)
        OnSelchangeComboSymbol();
    return true;
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
    vDoNormalChangeSymbol(service, code);
    vSearchForSymbol({service, code});
    if ((settings.functions & symbolNewsMask) != 0)
        vFollowSymbol(service, code);
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->ChangeSymbol(sender, group, service, code, name);
}

void TRVNewsCtrlView::vFollowSymbol(unsigned char service, const QString& code) {
    if (symbols.IsSupportNews(service, code)) {
        vSetSupported();
        if (Sheet(symbolMode) != nullptr)
            GetSymbolNews(code);
    } else if (newsType == symbolNewsType) {
        vSetNotSupported();
    }
    update();
}

void TRVNewsCtrlView::vDoNormalChangeSymbol(unsigned char service, const QString& code) {
    if (!symbols.IsSupportNews(service, code))
        return;
    vOnChangeServiceCombobox(service);
    vOnChangeSymbolCombobox();
    const int index = symbols.iSymbolIndex(code);
    if (currentMode == symbolMode && index >= 0) {
        symbols.vSelectSymbol(index);
        OnSelchangeComboSymbol();
    }
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

void TRVNewsCtrlView::vOnChangeSymbolCombobox() {
    const QString code = symbols.Current().code;
    const int index = symbols.iSymbolIndex(code);
    if (currentMode != symbolMode || code.isEmpty() || index < 0)
        return;
    for (const int id : {ids::serviceCombo, ids::symbolCombo, ids::serviceButton}) {
        if (QWidget* control = GetDlgItem(this, id))
            control->show();
    }
    symbols.vSelectSymbol(index);
    GetSymbolNews(code);
}

void TRVNewsCtrlView::GetSymbolNews(const QString&) {
    stage.vClearStory();
    lists.bRebuildSymbol(symbols.Current());
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
    vForgetShownStory();
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
    vUpdateSymbolPicker(updates);
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
