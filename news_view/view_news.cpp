// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the host tells the news view of news, days, symbols and quotes, and what the user does with them: the
// owners of that do the work.
#include "headline_list/headline_list.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"
#include "search/news_relate_symbol_quote_view.h"

using namespace wirepane;

// --- Searches ---

void TRVNewsCtrlView::OnSearch() {
    parts->searches.searchForText();
}

QStringList TRVNewsCtrlView::Parts::offersFor(const CSearch& found) {
    if (!settings.options[ViewOption::SearchOffers])
        return {};
    SearchOffers::Services asked;
    for (const ServiceEntry& entry : services.currentServices()) {
        if (entry.service != warrantService)
            (entry.selected ? asked.asked : asked.others).push_back(entry.service);
    }
    searchOffers.offerFor(found, asked);
    return searchOffers.texts();
}

void TRVNewsCtrlView::Parts::takeOffer(int offer) {
    const std::vector<SearchOffer> offers = searchOffers.offers();
    const auto place = static_cast<std::size_t>(offer);
    if (place >= offers.size())
        return;
    if (offers[place].kind == SearchOffer::Kind::OtherServices)
        serviceMenu.tickAll();
    else
        searchInstead(offers[place].condition);
}

void TRVNewsCtrlView::Parts::searchInstead(const CSearch& condition) {
    searches.replace(condition);
    standingSearches.loadHints();
}

SavedSearchMenu::Calls TRVNewsCtrlView::Parts::savedSearchCalls() {
    return {[this] { return view.settingsReader; },
            [this](const CSearch& condition) {
                showMode(ListIndex::Search);
                searches.show(condition);
            },
            [this](const CSearch& condition) {
                const auto fault = standingSearches.addKeySet(condition);
                if (!fault)
                    showMode(ListIndex::Relation);
                return fault;
            },
            [this](const CSearch& condition) {
                standingSearches.addWarningTerm(condition);
                showMode(ListIndex::WarningTerm);
                searches.send();
            }};
}

void TRVNewsCtrlView::vOnEnterDown() {
    OnSearch();
}

void TRVNewsCtrlView::OnDealsSearchDlg() {
    parts->searches.compose();
}

void TRVNewsCtrlView::OnRelationSearchDlg() {
    parts->standingSearches.composeKeySets();
}

void TRVNewsCtrlView::OnWarningSearchDlg() {
    parts->standingSearches.manageWarningTerms();
}

void TRVNewsCtrlView::OnDealsSearch() {
    parts->searches.send();
}

void TRVNewsCtrlView::RespSearchHeadLineTable(const CSearch& condition, unsigned char serviceId) {
    parts->searches.takeAnswer(condition, serviceId);
}

void TRVNewsCtrlView::ProcessNewSearchHeadline(CSearch& condition, ListIndex list, const CHeadline& headline,
                                               const QString& key) {
    parts->searches.searchFor(condition, list, headline, key);
}

void TRVNewsCtrlView::vDoSearchChangeSymbol(const CSearch& condition, unsigned char market,
                                            const QString& symbolCode) {
    parts->searches.narrow(CSearch(condition), {market, symbolCode});
}

void TRVNewsCtrlView::vShowTip(const QRect& rectangle, const QString& text) {
    parts->searches.showTip(rectangle, text);
}

// --- Days ---

void TRVNewsCtrlView::OnDateTimeDropDown() {
    parts->days.calendarOpened();
}

void TRVNewsCtrlView::OnDateTimeChange(const QDate& date) {
    parts->days.dateChanged(date);
}

void TRVNewsCtrlView::OnDateTimeCloseUp() {
    parts->days.calendarClosed();
}

bool TRVNewsCtrlView::bChangeDate(const QDate& date) {
    return parts->days.pick(date);
}

void TRVNewsCtrlView::vRecvNewMarketStatus(const CMarketStatus* status) {
    if (status != nullptr)
        parts->days.follow(*status);
}

bool TRVNewsCtrlView::bChangeDateByNewHeadLine() {
    return parts->days.readCurrentDates();
}

// --- Sent again ---

void TRVNewsCtrlView::OnReCoverHeadline() {
    parts->sentAgain.askForHeadlines();
}

void TRVNewsCtrlView::OnReCoverHeadlineTable() {
    parts->sentAgain.askForTable();
}

void TRVNewsCtrlView::vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info != nullptr)
        parts->sentAgain.takeDateTable(*info);
}

void TRVNewsCtrlView::vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info != nullptr)
        parts->sentAgain.takeCategoryTable(*info);
}

void TRVNewsCtrlView::vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info != nullptr)
        parts->sentAgain.takeSymbolTable(*info);
}

// --- Headlines that arrive ---

void TRVNewsCtrlView::RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                                      const QString& symbolCode) {
    if (headline != nullptr)
        parts->liveNews.push({*headline, categoryId, symbolCode});
}

void TRVNewsCtrlView::headlineReplaced(const CHeadline* headline, const QString& categoryId,
                                       const QString& symbolCode) {
    if (headline != nullptr)
        parts->liveNews.replace({*headline, categoryId, symbolCode});
}

void TRVNewsCtrlView::headlineGone(const HeadlineKey& key) {
    parts->liveNews.takeOut(key);
}

void TRVNewsCtrlView::connectionChanged(bool connected) {
    if (connected)
        parts->outages.restored(host_clock::now());
    else
        parts->outages.lost(host_clock::now());
    parts->board.place();
    update();
}

// --- Services ---

void TRVNewsCtrlView::OnSelectService() {
    parts->serviceMenu.popUp();
}

int TRVNewsCtrlView::iBeSelectNewsNum() const {
    return parts->services.selectedCount();
}

void TRVNewsCtrlView::OnSelectCheckService(unsigned int id) {
    parts->serviceMenu.toggle(static_cast<int>(id));
}

// --- Categories ---

QString TRVNewsCtrlView::cszTransferCatIDToCatName(int id) {
    return parts->categories.nameOf(0, id);
}

int TRVNewsCtrlView::GetCategoryIDbyName(const QString& name) {
    return parts->categories.idOf(0, name);
}

int TRVNewsCtrlView::GetCategoryColor(const QString& name, QColor& text, QColor& background) {
    return parts->categories.colourOf(0, name, text, background) ? 1 : 0;
}

void TRVNewsCtrlView::reloadCategories() {
    parts->categories.reloadNames();
}

void TRVNewsCtrlView::reloadServices() {
    parts->serviceMenu.addNew(parts->settings.options[ViewOption::TickNewServices]);
}

void TRVNewsCtrlView::ChangeCurrViewCategoryState(bool show) {
    parts->categories.showColumn(show);
}

void TRVNewsCtrlView::OnChangeCategoryState() {
    parts->categories.toggleColumn();
}

void TRVNewsCtrlView::OnSelchangeComboIndex() {
    parts->categories.chosen();
}

// --- Symbols ---

void TRVNewsCtrlView::ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service,
                                   const QString& code, const QString& name) {
    const CSymbolInfo symbol{service, code};
    const bool concernsView = sender == this || (group == linkedGroup() && linkedGroup() != 0);
    if (!concernsView || parts->symbolMode.current() == symbol)
        return;
    setBaseSymbol(parts->backEnd.bIsSymbolIDExist(service, code) == 1 ? symbol : CSymbolInfo{});
    const bool isRead = parts->symbolMode.take(symbol);
    parts->searches.followSymbol(symbol);
    parts->symbolMode.follow(symbol, isRead);
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        quotes->ChangeSymbol(sender, group, service, code, name);
}

void TRVNewsCtrlView::GetSymbolNews(const QString&) {
    parts->symbolMode.read();
}

void TRVNewsCtrlView::OnSelSymbol(const QString& code) {
    if (parts->listOf(ListIndex::Symbol).grid() != nullptr)
        GetSymbolNews(code);
}

void TRVNewsCtrlView::OnSelchangeComboSymbol() {
    parts->symbolMode.symbolChosen();
}

void TRVNewsCtrlView::OnSelchangeComboService() {
    parts->symbolMode.serviceChosen();
}

void TRVNewsCtrlView::vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>& updates) {
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        quotes->vDoSymbolUpdate(updates);
    parts->searches.updateSymbolPicker(updates);
    parts->symbolMode.takeUpdates(updates);
}

bool TRVNewsCtrlView::bUpdateSymbolVec() {
    parts->symbolMode.refillSymbols();
    return true;
}

int TRVNewsCtrlView::GetCurrSymbolInfo(unsigned char& service, QString& code) {
    const auto symbol = parts->symbolMode.forOthers();
    if (!symbol)
        return TRVQuoteBaseView::GetCurrSymbolInfo(service, code);
    service = symbol->market;
    code = symbol->code;
    return 1;
}

// --- Quotes ---

void TRVNewsCtrlView::InitialNewsRelateQuoteView() {
    CNewsRelateSymbolQuoteView* quotes = parts->builder.createQuotes(settingsPath);
    if (quotes == nullptr)
        return;
    // The other views of the group follow the user's choice; this one goes on showing its news.
    connect(quotes, &TRVQuoteBaseView::SendChangeSymbol, this,
            [this](unsigned char, unsigned char service, const QString& code) {
                emit SendChangeSymbol(linkedGroup(), service, code);
            });
    vSetComponentPos();
    if (parts->story.paneShowsStories() && parts->story.shownRow() >= 0)
        ChangeNewsSymbolList();
}

void TRVNewsCtrlView::vRecvNewsRelateSymbolListRecovery(const CNewsSymlistInfo* info) {
    if (info != nullptr)
        parts->story.takeRelatedSymbols(*info);
}

void TRVNewsCtrlView::vReRegisterSymbols() {
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        quotes->vReRegisterSymbols();
}

void TRVNewsCtrlView::vUnregisterViewSymbol() {
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        quotes->vUnregisterViewSymbol();
}

void TRVNewsCtrlView::vRecvNewMemory(const CQuoteMemory* quote) {
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        quotes->vRecvNewMemory(quote);
}

void TRVNewsCtrlView::vRecvMemoryRecovery(const CQuoteMemory* quote) {
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        quotes->vRecvMemoryRecovery(quote);
}

void TRVNewsCtrlView::vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& memories) {
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes())
        quotes->vRecvMultiSymbolMemoryRecovery(memories);
}

void TRVNewsCtrlView::ChangeNewsSymbolList() {
    parts->story.listRelatedSymbols();
}
