// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_base_view.h"

#include "host/contract/bk_quote_interface.h"
#include "host/contract/misuse.h"

using namespace wirepane;

TRVQuoteBaseView::TRVQuoteBaseView(QWidget* parent) : RVComVirtualBaseView(parent) {}

TRVQuoteBaseView::~TRVQuoteBaseView() {
    if (auto* backEnd = BKQuoteInterface::GetBKInterface())
        backEnd->detach(this);
}

void TRVQuoteBaseView::OnInitialUpdate() {
    RVComVirtualBaseView::OnInitialUpdate();
    if (auto* backEnd = BKQuoteInterface::GetBKInterface())
        backEnd->attach(this);
}

void TRVQuoteBaseView::InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                                       const QString& name) {
    requireInterfaceThread("TRVQuoteBaseView::InitialViewInfo");
    requireOfHost(reader != nullptr,
                  "TRVQuoteBaseView::InitialViewInfo was given no reader of settings: give it an "
                  "object that stays, such as a MemoryCfgIO.");
    requireOfHost(settingsReader == nullptr,
                  "TRVQuoteBaseView::InitialViewInfo was called twice on one view.");
    settingsReader = reader;
    settingsPath = {section, first, second, name};
}

void TRVQuoteBaseView::SaveViewInfo(TRVCfgIO2*, const QString&, int, int) {}

void TRVQuoteBaseView::ChangeActiveApp(int) {}

void TRVQuoteBaseView::ChangeSymbol(const QWidget*, unsigned char, unsigned char service, const QString& code,
                                    const QString&) {
    baseSymbol = {service, code};
}

int TRVQuoteBaseView::GetCurrSymbolInfo(unsigned char& service, QString& code) {
    service = baseSymbol.market;
    code = baseSymbol.code;
    return code.isEmpty() ? 0 : 1;
}

void TRVQuoteBaseView::vReRegisterSymbols() {}

void TRVQuoteBaseView::vUnregisterViewSymbol() {}

int TRVQuoteBaseView::bIsAuthService(unsigned char service) {
    auto* backEnd = BKQuoteInterface::GetBKInterface();
    return backEnd != nullptr && backEnd->BKQCheckAuthSupport(service) != 0 ? 1 : 0;
}

void C_RegisterSymbol(TRVQuoteBaseView* view, const std::vector<CSymbolInfo>& added,
                      const std::vector<CSymbolInfo>& removed) {
    if (auto* backEnd = BKQuoteInterface::GetBKInterface())
        backEnd->registerSymbols(view, added, removed);
}

void C_UnRegisterSymbol(TRVQuoteBaseView* view) {
    if (auto* backEnd = BKQuoteInterface::GetBKInterface())
        backEnd->unregisterSymbols(view);
}
