// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the host tells the news view of news, days and symbols, and what the user does with them: the owners
// of that do the work.
#include "headline_list/cell_texts.h"
#include "headline_list/intake.h"
#include "host/contract/clock.h"
#include "host/contract/sync_info.h"
#include "news_view/category_mode.h"
#include "news_view/days.h"
#include "news_view/live_news.h"
#include "news_view/searches.h"
#include "news_view/sent_again.h"
#include "news_view/service_menu.h"
#include "news_view/standing_searches.h"
#include "news_view/symbol_mode.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_relate_symbol_quote_view.h"

// --- Searches ---

void TRVNewsCtrlView::OnSearch() {
    searches->searchForText();
}

void TRVNewsCtrlView::OnDealsSearchDlg() {
    searches->compose();
}

void TRVNewsCtrlView::OnRelationSearchDlg() {
    standingSearches->composeKeySets();
}

void TRVNewsCtrlView::OnWarningSearchDlg() {
    standingSearches->manageWarningTerms();
}

void TRVNewsCtrlView::OnDealsSearch() {
    searches->send();
}

void TRVNewsCtrlView::OnEndNarrowing() {
    searches->endNarrowing();
}

void TRVNewsCtrlView::RespSearchHeadLineTable(const CSearch& condition, unsigned char serviceId) {
    searches->takeAnswer(condition, serviceId);
}

void TRVNewsCtrlView::ProcessNewSearchHeadline(CSearch& condition, ListIndex list, const CHeadline& headline,
                                               const QString& key) {
    searches->searchFor(condition, list, headline, key);
}

void TRVNewsCtrlView::vDoSearchChangeSymbol(const CSearch& condition, unsigned char market,
                                            const QString& symbolCode) {
    searches->narrow(CSearch(condition), {market, symbolCode});
}

void TRVNewsCtrlView::vShowTip(const QRect& rectangle, const QString& text) {
    searches->vShowTip(rectangle, text);
}

// --- Days ---

void TRVNewsCtrlView::OnDateTimeDropDown() {
    days->calendarOpened();
}

void TRVNewsCtrlView::OnDateTimeChange(const QDate& date) {
    days->dateChanged(date);
}

void TRVNewsCtrlView::OnDateTimeCloseUp() {
    days->calendarClosed();
}

bool TRVNewsCtrlView::bChangeDate(const QDate& date) {
    return days->pick(date);
}

void TRVNewsCtrlView::vRecvNewMarketStatus(const CMarketStatus* status) {
    if (status != nullptr)
        days->follow(*status);
}

bool TRVNewsCtrlView::bChangeDateByNewHeadLine() {
    return days->readCurrentDates();
}

// --- Sent again ---

void TRVNewsCtrlView::OnReCoverHeadline() {
    sentAgain->askForHeadlines();
}

void TRVNewsCtrlView::OnReCoverHeadlineTable() {
    sentAgain->askForTable();
}

void TRVNewsCtrlView::vRecvAllHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info != nullptr)
        sentAgain->takeDateTable(*info);
}

void TRVNewsCtrlView::vRecvCatHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info != nullptr)
        sentAgain->takeCategoryTable(*info);
}

void TRVNewsCtrlView::vRecvSymHeadlineTableRecovery(const CHeadlineTableInfo* info) {
    if (info != nullptr)
        sentAgain->takeSymbolTable(*info);
}

// --- Headlines that arrive ---

IntakeState TRVNewsCtrlView::intakeChoices() const {
    IntakeState state;
    state.hasDatePicker = days->hasDay();
    state.pickedDate = days->picked();
    state.newsDay = days->newsDay();
    state.relation = &standingSearches->tickedKeySets();
    state.categoryId = categories->chosenId();
    // While another mode is shown the list may hold another symbol's news than the combo names.
    const auto symbol = symbolMode->chosen();
    if (symbol && symbol->code == lists.ListedSymbol().code) {
        state.symbolCode = symbol->code;
        state.symbolMarket = symbol->market;
    }
    return state;
}

void TRVNewsCtrlView::RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                                      const QString& symbolCode) {
    if (headline != nullptr)
        liveNews->push({*headline, categoryId, symbolCode});
}

void TRVNewsCtrlView::vHeadlineReplaced(const CHeadline* headline, const QString& categoryId,
                                        const QString& symbolCode) {
    if (headline != nullptr)
        liveNews->replace({*headline, categoryId, symbolCode});
}

void TRVNewsCtrlView::vHeadlineGone(const HeadlineKey& key) {
    liveNews->takeOut(key);
}

void TRVNewsCtrlView::vConnectionChanged(bool connected) {
    if (connected)
        breaks.vRestored(host_clock::now());
    else
        breaks.vLost(host_clock::now());
    vPlaceNotices();
    update();
}

// --- Services ---

void TRVNewsCtrlView::OnSelectService() {
    serviceMenu->popUp();
}

void TRVNewsCtrlView::OnSelectCheckService(unsigned int id) {
    serviceMenu->toggle(static_cast<int>(id));
}

void TRVNewsCtrlView::vReloadForServices() {
    const RelationMatcher* filter = standingSearches->filterOfShownList();
    lists.bRebuild(ListIndex::All, TableKind::ByDate, days->pickedKey(), filter);
    categories->refill();
    symbolMode->readFiltered(filter);
    lists.bRebuild(ListIndex::Relation, TableKind::ByDate, DateKey(host_clock::today()), filter);
    if (shownList() == ListIndex::Search && List(ListIndex::Search).pGetGrid() != nullptr)
        OnSearch();
    services.CheckRegisterService(*this);
    OnShowStory();
    update();
}

// --- Categories ---

QString TRVNewsCtrlView::CategoryNameOf(unsigned char service, int id) {
    return categories->nameOf(service, id);
}

int TRVNewsCtrlView::GetCategoryIDbyName(const QString& name) {
    return categories->idOf(0, name);
}

int TRVNewsCtrlView::CategoryColourOf(unsigned char service, const QString& name, QColor& text,
                                      QColor& background) {
    return categories->colourOf(service, name, text, background) ? 1 : 0;
}

void TRVNewsCtrlView::vReloadCategories() {
    categories->reloadNames();
}

void TRVNewsCtrlView::vCategoryStateAfterWriting() {
    categories->showColumn();
}

void TRVNewsCtrlView::ChangeCurrViewCategoryState(bool show) {
    categories->showColumn(show);
}

void TRVNewsCtrlView::OnChangeCategoryState() {
    categories->toggleColumn();
}

void TRVNewsCtrlView::OnSelchangeComboIndex() {
    categories->chosen();
}

// --- Symbols ---

SymbolMode::Calls TRVNewsCtrlView::symbolCalls() {
    return {
        [this] { vSetComponentPos(); },
        [this] { ShowHideCtrObject(currentMode()); },
        [this] { return GetDataState() != DataState::NotSupported; },
        [this](bool supported) { vSetDataState(supported ? DataState::Normal : DataState::NotSupported); },
        [this] { return CSyncInfo::GetSettingCFG()->SYS_cszGetCurrentSymbol(GetLinkGroup()); },
        [this](const CSymbolInfo& symbol) {
            emit SendChangeSymbol(GetLinkGroup(), symbol.market, symbol.code);
        }};
}

void TRVNewsCtrlView::ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service,
                                   const QString& code, const QString& name) {
    const CSymbolInfo symbol{service, code};
    const bool concernsView = sender == this || (group == GetLinkGroup() && GetLinkGroup() != 0);
    if (!concernsView || symbolMode->current() == symbol)
        return;
    vSetBaseSymbol(backEnd.bIsSymbolIDExist(service, code) == 1 ? symbol : CSymbolInfo{});
    const bool isRead = symbolMode->take(symbol);
    searches->followSymbol(symbol);
    symbolMode->follow(symbol, isRead);
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->ChangeSymbol(sender, group, service, code, name);
}

void TRVNewsCtrlView::GetSymbolNews(const QString&) {
    symbolMode->read();
}

void TRVNewsCtrlView::OnSelSymbol(const QString& code) {
    if (List(ListIndex::Symbol).pGetGrid() != nullptr)
        GetSymbolNews(code);
}

void TRVNewsCtrlView::OnSelchangeComboSymbol() {
    symbolMode->symbolChosen();
}

void TRVNewsCtrlView::OnSelchangeComboService() {
    symbolMode->serviceChosen();
}

void TRVNewsCtrlView::vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>& updates) {
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vDoSymbolUpdate(updates);
    searches->updateSymbolPicker(updates);
    symbolMode->takeUpdates(updates);
}

bool TRVNewsCtrlView::bUpdateSymbolVec() {
    symbolMode->refillSymbols();
    return true;
}

int TRVNewsCtrlView::GetCurrSymbolInfo(unsigned char& service, QString& code) {
    const auto symbol = symbolMode->forOthers();
    if (!symbol)
        return TRVQuoteBaseView::GetCurrSymbolInfo(service, code);
    service = symbol->market;
    code = symbol->code;
    return 1;
}
