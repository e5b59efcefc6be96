// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/trv_news_ctrl_view.h"

#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/clock.h"
#include "host/contract/item_display.h"
#include "host/controls/registered_message.h"
#include "host/controls/sc_combo_box.h"
#include "news_view/category_mode.h"
#include "news_view/control_ids.h"
#include "news_view/days.h"
#include "news_view/list_tip.h"
#include "news_view/live_news.h"
#include "news_view/searches.h"
#include "news_view/sent_again.h"
#include "news_view/service_menu.h"
#include "news_view/standing_searches.h"
#include "news_view/symbol_mode.h"
#include "story/trv_news_story.h"

#include <algorithm>

TRVNewsCtrlView::TRVNewsCtrlView(QWidget* parent)
    : TRVQuoteBaseView(parent),
      backEnd(*BKQuoteInterface::GetBKInterface()),
      lists(backEnd, *this),
      controls(*this, backEnd),
      output(backEnd, outputDialogs, outputSurroundings()),
      board(noticeSurroundings(), noticeTellers()),
      menu(*this, [this](int command) { OnCommand(command); }),
      contextMenu(*this, menu, contextMenuSurroundings()),
      story(*this, backEnd, storySurroundings()),
      input(*this, inputSurroundings()),
      shortcuts(*this, shortcutSurroundings()),
      tip(std::make_unique<ListTip>(*this,
                                    [this] {
                                        return ListTip::Look{GetViewFont(), colText, colBackground};
                                    })),
      common{backEnd, *this, services, lists, controls, settings, switches, loading, breaks, *tip, newsType},
      searches(std::make_unique<Searches>(context(), common)),
      standingSearches(std::make_unique<StandingSearches>(
          context(), common, searches->desk(),
          StandingSearches::Calls{[this] { InitialHeadlineTable(static_cast<int>(ListIndex::Relation)); },
                                  [this] { searches->send(); }})),
      days(std::make_unique<Days>(
          context(), common,
          Days::Calls{[this]() -> const RelationMatcher& { return standingSearches->tickedKeySets(); },
                      [this](ListIndex list) { sentAgain->readAgain(list); },
                      [this](ListIndex list) { sentAgain->readNowOrWhenShown(list); }})),
      categories(std::make_unique<CategoryMode>(context(), common,
                                                [this] { return standingSearches->filterOfShownList(); })),
      symbolMode(std::make_unique<SymbolMode>(context(), common, symbolCalls())),
      sentAgain(std::make_unique<SentAgain>(
          context(), common,
          SentAgain::Choices{
              [this] { return days->pickedKey(); }, [this] { return categories->chosenId(); },
              [this] { return symbolMode->current(); }, [this] { return symbolMode->listed(); },
              [this]() -> const RelationMatcher& { return standingSearches->tickedKeySets(); }})),
      serviceMenu(std::make_unique<ServiceMenu>(
          context(), common,
          ServiceMenu::Calls{[this](int command) { OnCommand(command); }, [this] { vReloadForServices(); }})),
      liveNews(std::make_unique<LiveNews>(
          context(), common,
          LiveNews::Calls{
              [this] { return intakeChoices(); },
              [this](ListIndex list, const HeadlinePlace& place) { vKeepShownStory(list, place); },
              [this](const CHeadline& headline, const QString& categoryId) {
                  searches->notePushed(headline);
                  categories->notePushed(headline, categoryId);
              }})),
      modes(context(), common, stage, modeCalls()),
      arrangement(context(), common, stage, arrangementCalls()),
      builder(*this, common, stage, builderCalls()) {
    lists.vSetOnRead([this] { vPlaceNotices(); });
}

TRVNewsCtrlView::~TRVNewsCtrlView() {
    C_UnRegisterSymbol(this);
}

void TRVNewsCtrlView::GetCaption(QString& caption) {
    caption = LangText(backEnd, keys::caption);
}

void TRVNewsCtrlView::ChangeActiveApp(int active) {
    if (!StoryStage::IsStoryDlgOnTop() || bPopupFollowsApplication())
        stage.ChangeActiveApp(active != 0);
}

bool TRVNewsCtrlView::OnCommand(int id) {
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
        {ids::stopWaiting, &TRVNewsCtrlView::OnStopWaiting},
        {ids::putOutReady, &TRVNewsCtrlView::OnPutOutReady},
        {ids::askBeforeStop, &TRVNewsCtrlView::OnStopButton},
        {ids::endNarrowing, &TRVNewsCtrlView::OnEndNarrowing},
        {ids::readUnfiltered, &TRVNewsCtrlView::OnReadUnfiltered},
        {ids::searchAgain, &TRVNewsCtrlView::OnDealsSearch},
        {ids::changeCategoryState, &TRVNewsCtrlView::OnChangeCategoryState},
    };
    const auto* command = std::find_if(std::begin(commands), std::end(commands),
                                       [id](const Command& candidate) { return candidate.id == id; });
    if (command != std::end(commands))
        (this->*command->carryOut)();
    else if (id >= ids::firstServiceCommand && id <= ids::lastServiceCommand)
        OnSelectCheckService(static_cast<unsigned int>(id));
    else
        return TRVQuoteBaseView::OnCommand(id);
    return true;
}

// --- Deferred refresh ---

void TRVNewsCtrlView::vUpdateView() {
    SetTimer(ids::refreshTimer, ids::refreshDelayMs);
}

void TRVNewsCtrlView::vRealUpdateView() {
    HeadlineList* list = CurrentList();
    if (list == nullptr || list->pGetGrid() == nullptr)
        return;
    list->vFillHeadline();
    list->vFillTempHeadline();
}

void TRVNewsCtrlView::OnTimer(int id) {
    if (id == ids::refreshTimer) {
        searches->searchForPushed();
        categories->learn(false);
        vRealUpdateView();
        categories->showColumn();
        KillTimer(ids::refreshTimer);
    }
    TRVQuoteBaseView::OnTimer(id);
}

bool TRVNewsCtrlView::OnRegisteredMessage(const RegisteredMessageEvent& message) {
    static const QEvent::Type changeSize = RegisterMessage(QStringLiteral("RVMSG_CHANGESIZE"));
    if (message.type() != changeSize)
        return TRVQuoteBaseView::OnRegisteredMessage(message);
    OnChangeSize(message.firstParameter);
    return true;
}

void TRVNewsCtrlView::OnChangeSize(quintptr sender) {
    if (width() == lastClientWidth)
        return;
    lastClientWidth = width();
    if (sender == reinterpret_cast<quintptr>(pGetCurrSheetView()))
        vUpdateView();
}

// --- Lists ---

bool TRVNewsCtrlView::InitialHeadlineTable(int number) {
    const auto list = ListOfNumber(number);
    return list && modes.read(*list);
}

HeadlineList* TRVNewsCtrlView::CurrentList() {
    return &List(modes.shown());
}

CSuperSheetWnd* TRVNewsCtrlView::pGetCurrSheetView() const {
    return Sheet(currentMode());
}

CHeadlineTable TRVNewsCtrlView::GetHeadlineTable(int row) const {
    CHeadlineTable entry;
    bGetHeadlineTable(entry, currentMode(), row);
    return entry;
}

bool TRVNewsCtrlView::bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const {
    const auto index = ListOfNumber(list);
    if (!index || row < 0 || row >= lists[*index].Table().size())
        return false;
    entry = lists[*index].Table().at(row);
    return true;
}

std::optional<CHeadlineTable> TRVNewsCtrlView::entryAt(ListIndex list, int row) const {
    CHeadlineTable entry;
    if (!bGetHeadlineTable(entry, static_cast<int>(list), row))
        return std::nullopt;
    return entry;
}

int TRVNewsCtrlView::iGetHeadlineTableSize(int list) const {
    const auto index = ListOfNumber(list);
    return index ? lists[*index].Table().size() : -1;
}

void TRVNewsCtrlView::vGetNewsActiveService(std::vector<unsigned char>& active) const {
    active = services.ActiveServices(currentMode());
}
