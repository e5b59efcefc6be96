// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/symbol_binding.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"
#include "host/contract/search_control.h"
#include "host/contract/view_options.h"
#include "host/controls/quote_combo_box_auto.h"
#include "host/controls/sc_combo_box.h"
#include "host/views/news_control_ids.h"
#include "news_view/control_set.h"

#include <QStringList>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int symbolsWithNews = 1;
constexpr int supportedHongKongCategory = 1;

struct MarketName {
    QString stated;
    QLatin1StringView key;  // of that in the language in force
};

// Every other service is the Hong Kong market, whatever number it is delivered under.
MarketName nameOf(unsigned char service) {
    if (service == stockExchangeService)
        return {QStringLiteral("台灣證券"), keys::stockExchange};
    if (service == emergingBoardService)
        return {QStringLiteral("興櫃股票"), keys::emergingBoard};
    return {QStringLiteral("香港股市"), keys::hongKong};
}

bool contains(const std::vector<unsigned char>& services, unsigned char service) {
    return std::find(services.begin(), services.end(), service) != services.end();
}

}  // namespace

SymbolBinding::SymbolBinding(BKQuoteInterface& newsBackEnd, const ControlSet& controlSet,
                             const ViewOptions& viewOptions)
    : backEnd(newsBackEnd), controls(controlSet), options(viewOptions) {}

int SymbolBinding::iInitServiceComboBox(unsigned char& selected) {
    auto* combo = controls.find<SCComboBox>(ids::serviceCombo);
    std::vector<unsigned char> all;
    if (combo == nullptr || !backEnd.bGetAllServiceID(all))
        return -1;
    combo->clear();
    services.clear();
    offerService(stockExchangeService, all);
    offerService(emergingBoardService, all);
    offerService(hongKongService, all);
    unsigned char delayed = 0;
    if (!contains(services, hongKongService) && backEnd.bGetServiceID2Delay(hongKongService, delayed))
        offerService(delayed, all);
    if (services.empty())
        return -1;
    const int index = std::max(serviceIndex(current.market), 0);
    selected = serviceAt(index);
    combo->setCurrentIndex(index);
    return index;
}

bool SymbolBinding::lacksMarket(unsigned char service) const {
    unsigned char delayed = hongKongService;
    backEnd.bGetServiceID2Delay(hongKongService, delayed);
    const bool takes = service == stockExchangeService || service == emergingBoardService ||
                       service == hongKongService || service == delayed;
    return takes && !contains(services, service);
}

void SymbolBinding::offerMarkets() {
    const auto* combo = controls.find<SCComboBox>(ids::serviceCombo);
    const int chosen = combo != nullptr ? combo->currentIndex() : -1;
    const unsigned char before = chosen >= 0 ? serviceAt(chosen) : current.market;
    unsigned char selected = before;
    iInitServiceComboBox(selected);
    if (serviceIndex(current.market) < 0 && serviceIndex(before) >= 0)
        selectService(serviceIndex(before));
}

QString SymbolBinding::marketName(unsigned char service) const {
    const MarketName name = nameOf(service);
    return options[ViewOption::MarketNames] ? langText(backEnd, name.key) : name.stated;
}

void SymbolBinding::nameMarkets() {
    auto* combo = controls.find<SCComboBox>(ids::serviceCombo);
    for (std::size_t i = 0; combo != nullptr && i < services.size(); ++i)
        combo->setItemText(static_cast<int>(i), marketName(services[i]));
}

void SymbolBinding::offerService(unsigned char service, const std::vector<unsigned char>& all) {
    if (!contains(all, service) || backEnd.BKQCheckAuthSupport(service) == 0)
        return;
    services.push_back(service);
    controls.find<SCComboBox>(ids::serviceCombo)->addItem(marketName(service));
}

void SymbolBinding::dropService(unsigned char service) {
    const int index = serviceIndex(service);
    if (index < 0)
        return;
    services.erase(services.begin() + index);
    if (auto* combo = controls.find<SCComboBox>(ids::serviceCombo))
        combo->removeItem(index);
}

bool SymbolBinding::fetchSymbols(unsigned char service, std::vector<QString>& codes,
                                 std::vector<QString>& names) const {
    const bool found = service == emergingBoardService
                           ? backEnd.bGetSymbolID(service, codes, names)
                           : SearchControl::GetSearchObjInterface()->GetSymbolsByService(
                                 service, codes, names, symbolsWithNews);
    return found && !codes.empty() && codes.size() == names.size();
}

int SymbolBinding::iInitSymbolComboBox(unsigned char service) {
    auto* combo = controls.find<CQuoteComboBoxAuto>(ids::symbolCombo);
    if (combo == nullptr)
        return -1;
    std::vector<QString> codes;
    std::vector<QString> names;
    if (!fetchSymbols(service, codes, names)) {
        dropService(service);
        return -1;
    }
    symbols.clear();
    indexOfCode.clear();
    QStringList items;
    for (std::size_t i = 0; i < codes.size(); ++i) {
        if (!IsSupportNews(service, codes[i]))
            continue;
        indexOfCode.insert(codes[i], static_cast<int>(symbols.size()));
        symbols.push_back({service, codes[i]});
        items.append(codes[i] + u' ' + names[i]);
    }
    combo->clear();
    combo->addItems(items);
    const int index = symbolIndex(current.code);
    combo->setCurrentIndex(index);
    return index;
}

bool SymbolBinding::IsSupportNews(unsigned char service, const QString& code) const {
    const bool candidate = bIsNormalTWSESymbolID(service, code) ||
                           (service == emergingBoardService && !code.startsWith(u'#')) ||
                           backEnd.bIsFromTheSameAuthServiceID(service, hongKongService) == 1;
    if (!candidate || service != hongKongService)
        return candidate;
    int category = 0;
    return backEnd.bGetCategorybySymbolID(category, hongKongService, code) &&
           category == supportedHongKongCategory;
}

int SymbolBinding::serviceIndex(unsigned char service) const {
    const auto found = std::find(services.begin(), services.end(), service);
    return found == services.end() ? -1 : static_cast<int>(found - services.begin());
}

std::optional<CSymbolInfo> SymbolBinding::selectedSymbol() const {
    const auto* combo = controls.find<CQuoteComboBoxAuto>(ids::symbolCombo);
    const int index = combo != nullptr ? combo->currentIndex() : -1;
    if (index < 0 || index >= static_cast<int>(symbols.size()))
        return std::nullopt;
    return symbols[static_cast<std::size_t>(index)];
}

void SymbolBinding::showCurrent() {
    if (selectedSymbol() == current)
        return;
    const bool offered = serviceIndex(current.market) >= 0;
    selectSymbol(offered ? iInitSymbolComboBox(current.market) : -1);
    if (offered)
        selectService(serviceIndex(current.market));
}

void SymbolBinding::selectService(int index) {
    if (auto* combo = controls.find<SCComboBox>(ids::serviceCombo))
        combo->setCurrentIndex(index);
}

void SymbolBinding::selectSymbol(int index) {
    if (auto* combo = controls.find<CQuoteComboBoxAuto>(ids::symbolCombo))
        combo->setCurrentIndex(index);
}

}  // namespace wirepane
