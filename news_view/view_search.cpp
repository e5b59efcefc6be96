// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The searches of the news view: sending them, showing their results, following symbols and pushed headlines.
#include "headline_list/language_keys.h"
#include "headline_list/table_reading.h"
#include "host/contract/clock.h"
#include "host/contract/symbol_name.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/registered_message.h"
#include "host/controls/xt_tip_window.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/adv_search_dlg.h"
#include "search/dialog_controls.h"
#include "search/search_edit2.h"
#include "search/search_ids.h"
#include "story/news_story_view.h"
#include "story/quote_dlg_tip_msg.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int waitTipTimeMs = 100000;
constexpr int shortTipWindowMs = 2000;
constexpr unsigned char futuresMarket = 1;
constexpr unsigned char commodityMarket = 0x6D;

}  // namespace

// --- Quick search ---

void TRVNewsCtrlView::vConnectSearchEdit() {
    auto* edit = controls.Find<SearchEdit2>(ids::searchEdit);
    edit->vSetOwner(this);
    connect(edit, &SEdit::returnPressed, this, &TRVNewsCtrlView::vOnEnterDown);
}

QString TRVNewsCtrlView::cszSearchText() const {
    const auto* edit = controls.Find<SEdit>(ids::searchEdit);
    return edit != nullptr ? edit->text() : QString();
}

void TRVNewsCtrlView::OnSearch() {
    if (services.iSelectedCount() == 0) {
        OnDealsSearch();
        return;
    }
    const QString text = cszSearchText().trimmed();
    if (text.isEmpty()) {
        vTipAtSearchEdit(LangText(backEnd, keys::invalidSearch));
        return;
    }
    if (text.contains(u"AND"_s) || text.contains(u"OR"_s)) {
        TellError(this, LangText(backEnd, keys::reinput));
        return;
    }
    searches.vTakeQuickSearch(text, host_clock::now());
    OnDealsSearch();
}

void TRVNewsCtrlView::vTipAtSearchEdit(const QString& text) {
    if (const auto* edit = controls.Find<SEdit>(ids::searchEdit))
        vShowTip({edit->mapToGlobal(QPoint(0, 0)), edit->size()}, text);
}

void TRVNewsCtrlView::vShowTip(const QRect& rectangle, const QString& text) {
    shortTip->vShow(rectangle.topLeft() + QPoint(rectangle.width() / 2, rectangle.height() / 2), text,
                    shortTipWindowMs);
}

// --- Sending ---

void TRVNewsCtrlView::OnDealsSearchDlg() {
    HeapDialog dialog(
        new CAdvSearchDlg(searches.edited, searches.memory.keywordPool, searches.memory.recent, this));
    const bool accepted = dialog->DoModal() == search_ids::ok;
    if (!dialog)
        return;
    dialog->vGetResult(searches.edited, searches.memory.keywordPool, searches.memory.recent);
    dialog.Delete();
    // Nobody answers for a search that is not in force any more.
    if (!accepted && !(searches.ordinary == searches.edited))
        vStopWaiting();
    searches.ordinary = searches.edited;
    vPlaceNotices();
    if (!accepted)
        return;
    OnDealsSearch();
    // To the list of what is found, wherever in the view the dialog was asked for.
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (sheet != nullptr && !searches.ordinary.keywords.empty())
        sheet->setFocus();
}

void TRVNewsCtrlView::OnDealsSearch() {
    const auto mode = ListOfNumber(currentMode);
    CSearch* condition = mode ? searches.ConditionOf(*mode) : nullptr;
    if (condition == nullptr || List(*mode).pGetGrid() == nullptr)
        return;
    if (condition->keywords.empty()) {
        vTipAtSearchEdit(LangText(backEnd, keys::invalidSearch));
        return;
    }
    SearchDesk::vCompleteMethod(*condition);
    const bool awaited = searches.bTakeSearchText(cszSearchText());
    // A wait tip that is still up must not name a search that nobody waits for any more.
    if (tip != nullptr && (awaited || bWaitTipIsUp())) {
        vTipOver(*mode, searches.WaitText(*condition), waitTipTimeMs);
        waitTipText = tip->cszGetText();
    }
    searches.vSend(*mode, services.vGetLive(), awaited, {host_clock::now(), breaks.Ended()});
    List(*mode).vSetTable(ReadTables(backEnd, services.Entries(), TableKind::Search, searchTableKey));
    vShowFound(*mode, false);
}

bool TRVNewsCtrlView::bWaitTipIsUp() const {
    return tip->isVisible() && !waitTipText.isEmpty() && tip->cszGetText() == waitTipText;
}

// --- Results ---

void TRVNewsCtrlView::vShowFound(ListIndex index, bool selectFirst) {
    HeadlineList& list = List(index);
    list.vRefill();
    if (list.Table().empty())
        vSetStatusText({});
    else if (selectFirst)
        list.pGetGrid()->vSetActiveSelection(0, -1);
    // An answer opens no window; one that is open follows the rows. Without rows there is no story: that of
    // a row that went would stand beside an empty list.
    const bool isStoryAsked = !selectFirst || bPaneShowsStories() || list.Table().empty();
    if (currentMode == static_cast<int>(index) && (isStoryAsked || pStoryDialogOnShow() != nullptr))
        OnShowStory();
    vPlaceNotices();
}

void TRVNewsCtrlView::RespSearchHeadLineTable(const CSearch& condition, unsigned char serviceId) {
    const auto kind = searches.KindOfAnswer(condition);
    if (!kind)
        return;
    const ListIndex target =
        *kind == TableKind::Search && switches.showWarningSearch ? ListIndex::WarningTerm : ListIndex::Search;
    if (List(target).pGetGrid() == nullptr)
        return;
    const TableRuns found = ReadEveryTable(backEnd, services.Entries(), *kind, searchTableKey);
    if (*kind == TableKind::Search && !searches.bTakeAnswerDue(condition, serviceId)) {
        vTakeFoundAgain(target, found);
        return;
    }
    List(target).vSetTable(found);
    const bool othersPending = *kind == TableKind::Search && TakeAnswer(services.vGetLive(), serviceId);
    if (!othersPending && tip != nullptr)
        tip->vStop();
    vShowFound(target, true);
    if (List(target).Table().empty() && !othersPending)
        vTipOver(target, LangText(backEnd, keys::newsNotFound));
}

void TRVNewsCtrlView::vStopWaiting() {
    if (ForgetPending(services.vGetLive()) && tip != nullptr)
        tip->vStop();
}

// --- What changes results ---

void TRVNewsCtrlView::vSearchForPushed() {
    const std::map<unsigned char, CHeadline> pushed = std::exchange(pushedToSearch, {});
    if (currentMode != static_cast<int>(ListIndex::WarningTerm) || searches.warningTerm.keywords.empty())
        return;
    for (const auto& [service, headline] : pushed)
        ProcessNewSearchHeadline(searches.warningTerm, ListIndex::WarningTerm, headline, searchTableKey);
}

void TRVNewsCtrlView::ProcessNewSearchHeadline(CSearch& condition, ListIndex index, const CHeadline& headline,
                                               const QString& key) {
    HeadlineList& list = List(index);
    if (list.pGetGrid() == nullptr)
        return;
    SearchDesk::vCompleteMethod(condition);
    searches.vSent(condition, headline.service);
    backEnd.BKQNEWS_bSearchNews(headline.service, searchKind, condition);
    // The answer brings the rows of all services.
    if (settings.options[ViewOption::KeepWarningRows])
        return;
    list.vSetTable(ReadServiceTable(backEnd, headline.service, TableKind::Search, key));
    list.vRefill();
    const int row = list.Table().rowOfNumber(KeyOf(headline));
    if (row >= 0 && list.Table().rowOf(KeyOf(headline)) < 0)
        list.vInsertHeadline(row, headline, true);
}

// Until something has been searched for there is nothing to narrow.
void TRVNewsCtrlView::vSearchForSymbol(const CSymbolInfo& symbol) {
    const CSearch& condition = currentMode == static_cast<int>(ListIndex::Relation) ? searches.second
                               : currentMode == static_cast<int>(ListIndex::WarningTerm)
                                   ? searches.warningTerm
                                   : searches.ordinary;
    if (!condition.keywords.empty())
        vDoSearchChangeSymbol(CSearch(condition), symbol.market, symbol.code);
}

void TRVNewsCtrlView::vUpdateSymbolPicker(const std::vector<CSymbolUpdateInfo>& updates) {
    static const QEvent::Type treeUpdate = RegisterMessage(u"MSG_SYMBOLUPDATE_TREEDLG"_s);
    auto* dialog = findChild<KeywordEntryDlg*>();
    if (dialog == nullptr || updates.empty())
        return;
    SendRegisteredMessage(dialog, treeUpdate,
                          updates.size() == 1 ? reinterpret_cast<quintptr>(&updates.front()) : 0);
}

void TRVNewsCtrlView::vDoSearchChangeSymbol(const CSearch& condition, unsigned char market,
                                            const QString& symbolCode) {
    const auto mode = ListOfNumber(currentMode);
    const bool warningTermsFollow = !settings.options[ViewOption::WarningTermsStandFast];
    if (mode == ListIndex::WarningTerm && !warningTermsFollow)
        return;
    CSymbolInfo symbol{market, symbolCode};
    const bool isFuture =
        backEnd.bIsFromTheSameAuthServiceID(futuresMarket, market) == 1 || market == commodityMarket;
    if (isFuture && !backEnd.bGetCommodityIDBySymbolID(symbol.code, market, symbolCode))
        return;
    const bool hasSymbol = !condition.symbols.empty() && !condition.symbols.front().code.isEmpty();
    if ((mode == ListIndex::WarningTerm && hasSymbol) ||
        (mode != ListIndex::Search && mode != ListIndex::WarningTerm)) {
        OnDealsSearch();
        return;
    }
    if (!SymbolName(backEnd, symbol))
        return;
    searches.vNarrow(condition, symbol, warningTermsFollow);
    OnDealsSearch();
}
