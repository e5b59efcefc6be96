// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/symbol_mode.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "host/contract/fixed_services.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/control_set.h"
#include "news_view/mode_loading.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

const QString noSelectionCode = QStringLiteral("#001");
const QString fallbackCode = QStringLiteral("6214");

}  // namespace

SymbolMode::SymbolMode(ViewContext& viewContext, const CommonParts& commonParts, Calls given)
    : context(viewContext),
      parts(commonParts),
      calls(std::move(given)),
      binding(parts.backEnd, parts.controls, parts.settings.options) {}

bool SymbolMode::isShown() const {
    return context.shownList() == ListIndex::Symbol;
}

CSuperSheetWnd* SymbolMode::grid() const {
    return parts.lists[ListIndex::Symbol].grid();
}

// --- Start and end ---

void SymbolMode::start(bool isLinked, bool only) {
    fromLink = isLinked;
    binding.setCurrent({startMarket(startCode()), {}});
    if (only) {
        const QString code = calls.codeOfLinkGroup();
        binding.setCurrent({startMarket(code), code});
    }
}

// The symbol code that the mode opens with.
QString SymbolMode::startCode() const {
    const QString code = calls.codeOfLinkGroup();
    return code.isEmpty() && !fromLink ? parts.settings.symbolId : code;
}

// The host names symbols by their codes: of what was saved the view knows the market.
unsigned char SymbolMode::startMarket(const QString& code) const {
    return code == parts.settings.symbolId ? parts.settings.symbolService.value_or(stockExchangeService)
                                           : stockExchangeService;
}

void SymbolMode::keep() const {
    if (current().code.isEmpty())
        return;
    parts.settings.symbolId = current().code;
    parts.settings.symbolService = current().market;
}

void SymbolMode::offer() {
    if (parts.loading.takeSymbolInformation())
        bInitialSymbolInfo();
    else if (!current().code.isEmpty())
        binding.showCurrent();
}

void SymbolMode::bInitialSymbolInfo() {
    unsigned char service = current().market;
    const int serviceIndex = binding.iInitServiceComboBox(service);
    const int symbolIndex = serviceIndex >= 0 ? binding.iInitSymbolComboBox(service) : -1;
    calls.layOut();
    const bool symbolFailed = symbolIndex < 0 && !binding.hasSymbols();
    if (serviceIndex < 0 || (symbolFailed && current().code.isEmpty())) {
        setNotSupported();
        return;
    }
    int index = binding.symbolIndex(startCode());
    if (index < 0)
        index = binding.symbolIndex(fallbackCode);
    binding.selectSymbol(index);
    if (parts.settings.focusedTab == static_cast<int>(ListIndex::Symbol))
        symbolChosen();
}

// --- Whether there is anything to show ---

void SymbolMode::setNotSupported() {
    calls.setSupported(false);
    hideMode();
    parts.window.update();
}

void SymbolMode::setSupported() {
    calls.setSupported(true);
    if (CSuperSheetWnd* sheet = grid())
        sheet->setVisible(isShown());
}

void SymbolMode::hideWithoutUse() {
    if (!calls.isSupported())
        hideMode();
    else if (parts.lists[ListIndex::All].grid() == nullptr)
        hideControls();
}

// The grid and the controls of the mode make room for the notice that there is nothing to show; where empty
// lists say so, that stands on the grid.
void SymbolMode::hideMode() {
    hideControls();
    if (CSuperSheetWnd* sheet = grid(); sheet != nullptr && !parts.settings.options[ViewOption::EmptyStates])
        sheet->hide();
}

// Without a list of all news the grid of symbol news stands where its controls would.
void SymbolMode::hideControls() {
    for (const int id : {ids::serviceButton, ids::serviceCombo, ids::symbolCombo}) {
        if (QWidget* control = dlgItem(&parts.window, id))
            control->hide();
    }
}

// --- The list ---

CSymbolInfo SymbolMode::listed() const {
    return fromLink ? chosen().value_or(CSymbolInfo()) : current();
}

bool SymbolMode::readFirst() {
    const QString code = current().code;
    if (const int row = binding.symbolIndex(code); row >= 0)
        binding.selectSymbol(row);
    // A choice that is the symbol shown already is none to the combo, but the list is read all the same.
    const auto selected = chosen();
    if (fromLink && selected && selected->code != code)
        symbolChosen();
    else
        read();
    return !code.isEmpty();
}

void SymbolMode::read() {
    context.clearStory();
    parts.lists.rebuildSymbol(current());
    // The reader of another list reads on.
    if (!isShown() && context.paneShowsStories())
        context.showStory();
}

void SymbolMode::readFiltered(const RelationMatcher* filter) {
    if (chosen())
        parts.lists.rebuildSymbol(current(), filter);
}

// --- The user's choice ---

void SymbolMode::symbolChosen() {
    const auto selected = chosen();
    if (grid() == nullptr || !selected)
        return;
    if (selected->code == current().code) {
        binding.selectSymbol(binding.symbolIndex(selected->code));
        return;
    }
    binding.setCurrent(*selected);
    read();
    calls.tellLinkGroup(*selected);
}

void SymbolMode::serviceChosen() {
    const auto* combo = parts.controls.find<SCComboBox>(ids::serviceCombo);
    const int index = combo != nullptr ? combo->currentIndex() : -1;
    if (grid() == nullptr || index < 0)
        return;
    const unsigned char service = binding.serviceAt(index);
    if (service == current().market) {
        binding.selectService(index);
        return;
    }
    binding.setCurrent({service, current().code});
    binding.selectSymbol(binding.iInitSymbolComboBox(service));
    symbolChosen();
    calls.layOut();
}

// --- Changes from elsewhere ---

bool SymbolMode::take(const CSymbolInfo& symbol) {
    binding.setCurrent(symbol);
    return binding.IsSupportNews(symbol.market, symbol.code) && vDoNormalChangeSymbol(symbol);
}

bool SymbolMode::vDoNormalChangeSymbol(const CSymbolInfo& symbol) {
    vOnChangeServiceCombobox(symbol.market);
    const bool isRead = vOnChangeSymbolCombobox();
    const int index = binding.symbolIndex(symbol.code);
    if (isShown() && index >= 0) {
        binding.selectSymbol(index);
        symbolChosen();
    }
    return isRead;
}

void SymbolMode::vOnChangeServiceCombobox(unsigned char service) {
    const int index = binding.serviceIndex(service);
    if (!isShown() || index < 0)
        return;
    const int symbolIndex = binding.iInitSymbolComboBox(service);
    if (symbolIndex < 0)
        return;
    binding.selectService(index);
    binding.selectSymbol(symbolIndex);
}

bool SymbolMode::vOnChangeSymbolCombobox() {
    const QString code = current().code;
    const int index = binding.symbolIndex(code);
    if (!isShown() || code.isEmpty() || index < 0)
        return false;
    for (const int id : {ids::serviceCombo, ids::symbolCombo, ids::serviceButton}) {
        if (QWidget* control = dlgItem(&parts.window, id))
            control->show();
    }
    binding.selectSymbol(index);
    read();
    return true;
}

void SymbolMode::follow(const CSymbolInfo& symbol, bool isRead) {
    if ((parts.settings.functions & symbolNewsMask) == 0)
        return;
    if (binding.IsSupportNews(symbol.market, symbol.code)) {
        setSupported();
        if (grid() != nullptr && !isRead)
            read();
    } else if (parts.newsType == NewsType::Symbol) {
        setNotSupported();
    }
    parts.window.update();
}

void SymbolMode::takeUpdates(const std::vector<CSymbolUpdateInfo>& updates) {
    const auto isNewMarket = [this](const CSymbolUpdateInfo& update) {
        return binding.lacksMarket(update.service) && binding.IsSupportNews(update.service, update.code);
    };
    if (parts.loading.hasSymbolInformation() && std::any_of(updates.begin(), updates.end(), isNewMarket))
        offerMarket();
    const bool concernsMode =
        std::any_of(updates.begin(), updates.end(), [this](const CSymbolUpdateInfo& update) {
            return binding.IsSupportNews(update.service, update.code);
        });
    const unsigned char service = current().market;
    if (concernsMode && binding.serviceIndex(service) >= 0 && binding.iInitSymbolComboBox(service) >= 0 &&
        parts.newsType == NewsType::Symbol)
        symbolChosen();
}

// The first symbols of a market have come.
void SymbolMode::offerMarket() {
    if (binding.hasSymbols()) {
        binding.offerMarkets();
        calls.layOut();
        return;
    }
    calls.setSupported(true);
    bInitialSymbolInfo();
    calls.showControlsOfMode();
    if (isShown() && grid() != nullptr)
        readFirst();
    parts.window.update();
}

void SymbolMode::refillSymbols() {
    const unsigned char service = current().market;
    if (binding.serviceIndex(service) >= 0)
        binding.iInitSymbolComboBox(service);
}

std::optional<CSymbolInfo> SymbolMode::forOthers() const {
    if (!isShown() || !binding.hasSymbols())
        return std::nullopt;
    return chosen().value_or(CSymbolInfo{stockExchangeService, noSelectionCode});
}

}  // namespace wirepane
