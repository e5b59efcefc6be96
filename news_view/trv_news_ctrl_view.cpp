// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/trv_news_ctrl_view.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "host/contract/fixed_services.h"
#include "host/controls/registered_message.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/mode_table.h"
#include "news_view/view_parts.h"

#include <algorithm>

using namespace wirepane;

TRVNewsCtrlView::TRVNewsCtrlView(QWidget* parent)
    : TRVQuoteBaseView(parent), parts(std::make_unique<Parts>(*this)) {}

TRVNewsCtrlView::~TRVNewsCtrlView() {
    C_UnRegisterSymbol(this);
}

void TRVNewsCtrlView::GetCaption(QString& caption) {
    caption = langText(parts->backEnd, keys::caption);
}

void TRVNewsCtrlView::ChangeActiveApp(int active) {
    if (!StoryStage::keepsDialogOnTop() || doesPopupFollowApplication())
        parts->stage.applicationActivated(active != 0);
}

bool TRVNewsCtrlView::onCommand(int id) {
    struct Command {
        int id;
        void (TRVNewsCtrlView::*carryOut)();
    };
    static constexpr Command commands[] = {
        {ids::tabStrip, &TRVNewsCtrlView::OnSelchangeTabMode},
        {ids::searchButton, &TRVNewsCtrlView::OnSearch},
        {ids::dealsSearchButton, &TRVNewsCtrlView::OnDealsSearchDlg},
        {ids::relationSearchButton, &TRVNewsCtrlView::OnRelationSearchDlg},
        {ids::warningSearchButton, &TRVNewsCtrlView::OnWarningSearchDlg},
        {ids::showTypeButton, &TRVNewsCtrlView::OnBtnChangeShowType},
        {ids::categoryCombo, &TRVNewsCtrlView::OnSelchangeComboIndex},
        {ids::symbolCombo, &TRVNewsCtrlView::OnSelchangeComboSymbol},
        {ids::serviceCombo, &TRVNewsCtrlView::OnSelchangeComboService},
        {ids::serviceButton, &TRVNewsCtrlView::OnSelectService},
        {ids::recoverHeadline, &TRVNewsCtrlView::OnReCoverHeadline},
        {ids::recoverStory, &TRVNewsCtrlView::OnReCoverStory},
        {ids::recoverHeadlineTable, &TRVNewsCtrlView::OnReCoverHeadlineTable},
        {ids::showStory, &TRVNewsCtrlView::OnShowStory},
        {ids::printButton, &TRVNewsCtrlView::OnBtnPrint},
        {ids::saveAsButton, &TRVNewsCtrlView::OnBtnSaveas},
        {ids::printNews, &TRVNewsCtrlView::OnPrintNews},
        {ids::saveNews, &TRVNewsCtrlView::OnSaveNews},
        {ids::pageDownButton, &TRVNewsCtrlView::OnBtnPageDown},
        {ids::pageUpButton, &TRVNewsCtrlView::OnBtnPageUp},
        {ids::searchAgain, &TRVNewsCtrlView::OnDealsSearch},
        {ids::changeCategoryState, &TRVNewsCtrlView::OnChangeCategoryState},
    };
    const auto* command = std::find_if(std::begin(commands), std::end(commands),
                                       [id](const Command& candidate) { return candidate.id == id; });
    if (command != std::end(commands))
        (this->*command->carryOut)();
    else if (id >= ids::firstServiceCommand && id <= ids::lastServiceCommand)
        OnSelectCheckService(static_cast<unsigned int>(id));
    else if (!parts->takeNoticeCommand(id) && !parts->takeDayCommand(id) && !parts->takeRowCommand(id))
        return TRVQuoteBaseView::onCommand(id);
    return true;
}

// --- Deferred refresh ---

void TRVNewsCtrlView::vUpdateView() {
    setTimer(ids::refreshTimer, ids::refreshDelayMs);
}

void TRVNewsCtrlView::vRealUpdateView() {
    HeadlineList& list = parts->listOf(parts->modes.shown());
    list.vFillHeadline();
    list.vFillTempHeadline();
}

void TRVNewsCtrlView::OnTimer(int id) {
    if (id == ids::refreshTimer) {
        parts->searches.searchForPushed();
        parts->categories.learn(false);
        vRealUpdateView();
        parts->categories.showColumn();
        endTimer(ids::refreshTimer);
    }
    TRVQuoteBaseView::OnTimer(id);
}

bool TRVNewsCtrlView::onRegisteredMessage(const RegisteredMessageEvent& message) {
    static const QEvent::Type changeSize = registerMessage(QStringLiteral("RVMSG_CHANGESIZE"));
    if (message.type() != changeSize)
        return TRVQuoteBaseView::onRegisteredMessage(message);
    OnChangeSize(message.firstParameter);
    return true;
}

void TRVNewsCtrlView::OnChangeSize(quintptr sender) {
    if (parts->arrangement.takeWidth() && sender == reinterpret_cast<quintptr>(pGetCurrSheetView()))
        vUpdateView();
}

// --- Modes and layout ---

void TRVNewsCtrlView::SwitchFunction(int mode) {
    if (const auto index = listOfNumber(mode)) {
        parts->modes.switchTo(*index);
        if (*index == ListIndex::Search)
            parts->savedSearches.showWaiting();
    }
}

void TRVNewsCtrlView::ShowHideCtrObject(int mode) {
    if (const auto index = listOfNumber(mode))
        parts->modes.showParts(*index);
}

void TRVNewsCtrlView::vSetComponentPos() {
    parts->arrangement.place();
}

int TRVNewsCtrlView::iGetFunctionID(int stored) const {
    if (!listOfNumber(stored) ||
        (stored == static_cast<int>(ListIndex::Symbol) && bIsAuthService(stockExchangeService) != 1))
        return 0;
    return stored;
}

int TRVNewsCtrlView::iGetFunctionID(const QString& name) const {
    for (const ListKind& kind : listKinds) {
        const QLatin1StringView key = modeOf(kind.index).captionKey;
        if (name.compare(langText(parts->backEnd, key), Qt::CaseInsensitive) == 0 || name == key)
            return iGetFunctionID(static_cast<int>(kind.index));
    }
    return 0;
}

int TRVNewsCtrlView::iGetTabIndex(int mode) const {
    return parts->controls.tabIndexOf(mode);
}

void TRVNewsCtrlView::CheckInitialView(int& mode) const {
    if (sheetOf(mode) != nullptr)
        return;
    for (int candidate = 0; candidate < listCount; ++candidate) {
        if (sheetOf(candidate) != nullptr) {
            mode = candidate;
            return;
        }
    }
}

void TRVNewsCtrlView::OnSelchangeTabMode() {
    if (const auto* strip = parts->controls.find<CXTPTabControl>(ids::tabStrip))
        SwitchFunction(strip->itemData(strip->curSel()));
}

void TRVNewsCtrlView::OnBtnChangeShowType() {
    if (parts->newsType == NewsType::Full && dlgItem(this, ids::showTypeButton) != nullptr) {
        parts->stage.hideDialog();
        SetStoryShowType(static_cast<unsigned short>(GetStoryShowType() + 1));
        parts->story.forget();
        if (parts->story.paneShowsStories())
            OnShowStory();
    }
    if (CSuperSheetWnd* sheet = pGetCurrSheetView())
        sheet->setFocus();
}

void TRVNewsCtrlView::SetStoryShowType(unsigned short type) {
    parts->story.setShowType(storyShowTypeOf(type));
    vSetComponentPos();
}

unsigned short TRVNewsCtrlView::GetStoryShowType() const {
    return static_cast<unsigned short>(parts->story.showType());
}

void TRVNewsCtrlView::SetStoryWndStyle() {
    parts->stage.applyWindowStyle();
}

bool TRVNewsCtrlView::IsStoryDlgOnTop() const {
    return StoryStage::keepsDialogOnTop();
}

void TRVNewsCtrlView::vSetNewsType(int type) {
    parts->newsType = static_cast<NewsType>(type);
}

int TRVNewsCtrlView::GetNewsType() const {
    return static_cast<int>(parts->newsType);
}

int TRVNewsCtrlView::GetSheetWidth() const {
    return parts->arrangement.gridWidth();
}

// --- Lists ---

bool TRVNewsCtrlView::InitialHeadlineTable(int number) {
    const auto list = listOfNumber(number);
    return list && parts->modes.read(*list);
}

CSuperSheetWnd* TRVNewsCtrlView::pGetCurrSheetView() const {
    return parts->shownGrid();
}

CHeadlineTable TRVNewsCtrlView::GetHeadlineTable(int row) const {
    return parts->shownEntry(row).value_or(CHeadlineTable());
}

bool TRVNewsCtrlView::bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const {
    const auto index = listOfNumber(list);
    const auto found = index ? parts->entryOf(*index, row) : std::nullopt;
    entry = found.value_or(entry);
    return found.has_value();
}

int TRVNewsCtrlView::iGetHeadlineTableSize(int list) const {
    const auto index = listOfNumber(list);
    return index ? parts->entryCount(*index) : -1;
}

void TRVNewsCtrlView::vGetNewsActiveService(std::vector<unsigned char>& services) const {
    parts->vGetNewsActiveService(services);
}
