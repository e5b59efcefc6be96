// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Who is given what: the one place that knows how the parts of the news view hang together.
#include "news_view/view_parts.h"

#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"
#include "host/contract/quiet_sources.h"
#include "host/contract/symbol_name.h"
#include "host/contract/sync_info.h"
#include "host/controls/s_button.h"
#include "host/controls/s_edit.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/com_virtual_base_view.h"
#include "host/views/news_control_ids.h"
#include "news_view/notice_line.h"
#include "news_view/quiet_notice.h"
#include "news_view/told_notices.h"
#include "search/search_edit2.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPlainTextEdit>

using namespace wirepane;

TRVNewsCtrlView::Parts::Parts(TRVNewsCtrlView& newsView)
    : view(newsView),
      backEnd(*BKQuoteInterface::GetBKInterface()),
      lists(backEnd, *this),
      controls(view, backEnd),
      tip(view, [this] { return tipLook(); }),
      common{backEnd, view, services, lists, controls, settings, switches, loading, outages, tip, newsType},
      modes(*this, common, stage, modeCalls()),
      arrangement(*this, common, stage, arrangementCalls()),
      builder(view, common, stage, builderCalls()),
      story(*this, backEnd, storySurroundings()),
      storyInput(storyInputSurroundings()),
      newestRow(*this, [this] { return settings.options[ViewOption::FollowNewest]; }),
      reading(*this, common,
              {[this] { return selectedEntries(); }, [this] { return story.newsInPane(); },
               [this](const QString& sentence) { emit view.messageForUser(sentence); }}),
      hold(
          *this, common, [this]() -> const RelationMatcher& { return standingSearches.tickedKeySets(); },
          [this] { arrivalPill.followSoon(); }),
      arrivalPill(*this, common,
                  {[this](ListIndex list) { return hold.heldAt(list); },
                   [this](ListIndex list) { hold.letGo(list); }}),
      unreadCounts(*this, common),
      output(backEnd, outputDialogs, outputSurroundings()),
      rowsExport(backEnd, view, exportCalls()),
      board(noticeSurroundings(), noticeTellers()),
      menu(view, [this](int command) { view.onCommand(command); }),
      contextMenu(*this, menu, contextMenuSurroundings()),
      input(*this, inputSurroundings()),
      shortcuts(*this, shortcutSurroundings()),
      searches(*this, common, [this] { return story.hasOpenStory(); }),
      standingSearches(*this, common, searches.desk(),
                       {[this] { modes.read(ListIndex::Relation); }, [this] { searches.send(); }}),
      days(*this, common,
           {[this]() -> const RelationMatcher& { return standingSearches.tickedKeySets(); },
            [this](ListIndex list) { sentAgain.readAgain(list); },
            [this](ListIndex list) { sentAgain.readNowOrWhenShown(list); },
            [this](ListIndex list) { return newestRow.isRead(list); }}),
      categories(*this, common, [this] { return standingSearches.filterOfShownList(); }),
      symbolMode(*this, common, symbolCalls()),
      sentAgain(*this, common, choices()),
      serviceMenu(
          *this, common,
          {[this](int command) { view.onCommand(command); }, [this] { readForServices(); },
           [this] { return settings.options[ViewOption::KeepServicesOpen]; },
           [this] { return listOf(shownList()).headlineTable().countsOfServices(); },
           [this](bool ticked, bool aside) { return services.addNew(backEnd, view, ticked, aside); }}),
      liveNews(*this, common, liveCalls()),
      searchOffers(backEnd, [this] { emptyLists.followSoon(); }),
      emptyLists(*this, common, searches.desk(), emptyListCalls()),
      searchLine(*this, common, searches.desk(),
                 [this](const CSearch& condition) { searchInstead(condition); }),
      savedSearches(common, searches.desk(), savedSearchCalls()),
      hitMarks(backEnd) {
    lists.setOnRead([this] { placeNotices(); });
    if (auto* sources = dynamic_cast<QuietSources*>(&backEnd))
        QObject::connect(&sources->quietTeller(), &QuietTeller::changed, &view, [this] { placeNotices(); });
}

// A window that goes hands the keyboard back to the view, whose parts must all be there then.
TRVNewsCtrlView::Parts::~Parts() {
    stage.deleteWindows();
}

// --- Modes, places and what is created ---

// Over headings of a height of their own no tip lies.
ListTip::Look TRVNewsCtrlView::Parts::tipLook() const {
    const bool hasHeadings = settings.options.value(ViewOption::HeadingHeight) > 0;
    const CSuperSheetWnd* grid = hasHeadings ? lists[modes.shown()].grid() : nullptr;
    return {view.GetViewFont(), view.colText, view.colBackground,
            grid != nullptr ? grid->horizontalHeader()->height() : 0};
}

Modes::Calls TRVNewsCtrlView::Parts::modeCalls() {
    return {[this](ListIndex list) { sentAgain.readAgain(list); },
            [this](ListIndex list) { return sentAgain.read(list); },
            [this] { return symbolMode.readFirst(); },
            [this] { NewsServices::RegisterService(view, warrantService); },
            [this] { categories.bInitialCategoryInfo(); },
            [this] { symbolMode.offer(); },
            [this] { symbolMode.hideWithoutUse(); },
            [this] { serviceMenu.showTicks(); },
            [this] { arrangement.place(); }};
}

Arrangement::Calls TRVNewsCtrlView::Parts::arrangementCalls() {
    return {[this] { return g_iGetFontHeight(view.GetViewFont()); }, [this] { return view.titleHeight(); },
            [this] { return story.showType(); }};
}

ViewBuilder::Calls TRVNewsCtrlView::Parts::builderCalls() {
    return {[this] { return days.picked(); },
            [this](CSuperSheetWnd& grid, ListIndex list) { connectGrid(grid, list); },
            [this] { days.connectPicker(); },
            [this] {
                searches.connectEdit();
                savedSearches.connectEdit();
            },
            [this] { searchLine.create(); },
            [this] { categories.connectCombo(); }};
}

void TRVNewsCtrlView::Parts::connectGrid(CSuperSheetWnd& grid, ListIndex list) {
    QObject::connect(&grid, &CSuperSheetWnd::leftButtonUp, &view,
                     [this](const QPoint& point) { view.OnLButtonUp(forwardedByGrid, point); });
    QObject::connect(&grid, &CSuperSheetWnd::lButtonDblClk, &view,
                     [this](const QPoint& point) { view.OnLButtonDblClk(forwardedByGrid, point); });
    QObject::connect(&grid, &CSuperSheetWnd::scrolledVertically, &view, &TRVNewsCtrlView::OnVScroll);
    QObject::connect(grid.selectionModel(), &QItemSelectionModel::currentRowChanged, &view,
                     [this, &grid, list] { story.follow(grid, list); });
    newestRow.watch(grid, list);
    arrivalPill.watch(grid, list);
    emptyLists.watch(grid, list);
    if (list == ListIndex::Search || list == ListIndex::WarningTerm)
        searchLine.watch(grid);
}

// --- Stories, output, notices ---

StoryDisplay::Surroundings TRVNewsCtrlView::Parts::storySurroundings() {
    return {stage, [this](ListIndex list) { return searches.desk().foundUnder(list); },
            [this] { return view.GetViewFont(); }, [this](ListIndex list, int row) { goTo(list, row); },
            [this](const CHeadlineTable& entry, bool byHand) {
                reading.noteShown(entry, byHand && !newestRow.isGoingThere());
            }};
}

StoryInput::Surroundings TRVNewsCtrlView::Parts::storyInputSurroundings() {
    return {view,
            stage,
            settings,
            [this] { return new TRVNewsStory(*this, &view); },
            [this](const CSymbolInfo& symbol) {
                emit view.SendChangeSymbol(view.linkedGroup(), symbol.market, symbol.code);
            },
            [this] { story.openWindow(); },
            [this] { return lists[ListIndex::Search].grid() != nullptr; },
            [this](const QString& words) { searchFor(words); }};
}

void TRVNewsCtrlView::Parts::searchFor(const QString& words) {
    showMode(ListIndex::Search);
    if (auto* edit = controls.find<SEdit>(ids::searchEdit)) {
        edit->setText(words);
        searches.searchForText();
    }
}

OutputJobs::Surroundings TRVNewsCtrlView::Parts::outputSurroundings() {
    return {view,
            stage,
            [this] { return settings.options[ViewOption::WholeTitles]; },
            [this] { return services.activeServices(modes.shown()); },
            [this] { board.place(); },
            [this](const QString& sentence) { emit view.messageForUser(sentence); }};
}

NoticeBoard::Surroundings TRVNewsCtrlView::Parts::noticeSurroundings() {
    return {view,
            controls,
            [this] { return arrangement.layout().datePicker; },
            [this] {
                return NoticeBoard::Look{view.GetViewFont(), view.colText, view.colBackground};
            },
            [this] { return output.isWaiting(); },
            [this] { return shownGrid(); }};
}

std::vector<NoticeBoard::Teller> TRVNewsCtrlView::Parts::noticeTellers() {
    return {
        [this](ListNotices& notices) { notices.tell(NoticeKind::Awaited, output.awaitedText()); },
        [this](ListNotices& notices) { tellOfBackEnd(notices, backEnd, outages); },
        [this](ListNotices& notices) {
            if (settings.options[ViewOption::QuietSources])
                tellOfSources(notices, backEnd);
        },
        [this](ListNotices& notices) {
            tellOfList(notices, backEnd, modes.shown(), lists, searches.desk(), outages);
        },
        [this](ListNotices& notices) { standingSearches.tell(notices); },
    };
}

QColor TRVNewsCtrlView::Parts::timeColour(std::int64_t time) const {
    return outages.holds(time) ? lateColour(view.colBackground) : QColor();
}

void TRVNewsCtrlView::Parts::rowsReplaced(ListIndex list) {
    if (modes.shown() == list)
        story.forget();
    arrivalPill.forget(list);
    unreadCounts.forget(list);
    if (!story.isReadInPlace()) {
        newestRow.forget(list);
        hold.letGo(list);
    }
    if (settings.options[ViewOption::MarkHits])
        lists[list].markHits(hitMarks.finderOf(list, searches.desk().foundUnder(list)));
}

// --- Keys, mouse, menu ---

ContextMenu::Surroundings TRVNewsCtrlView::Parts::contextMenuSurroundings() {
    return {view, [this] { return view.titleHeight(); },
            [this](bool onRow) {
                return contextMenuEntries(
                    {modes.shown(), onRow, settings.showCategory, story.hasStoryWindow(),
                     settings.options[ViewOption::RowMenu], reading.isOn(), reading.isStarred(),
                     settings.options[ViewOption::HoldLists], hold.isHeld(shownList()),
                     listOf(shownList()).isFold(currentRow()), rowsExport.isPossible(),
                     listOf(shownList()).showsPrices()},
                    backEnd, output.waitingCommands(), board.notices());
            }};
}

ListInput::Surroundings TRVNewsCtrlView::Parts::inputSurroundings() {
    return {view, stage, [this] { return newsType; }, [this] { return story.paneShowsStories(); },
            [this] { contextMenu.openByKey(); }};
}

Shortcuts::Surroundings TRVNewsCtrlView::Parts::shortcutSurroundings() {
    return {view, controls, stage, [this](int command) { view.onCommand(command); },
            [this] { view.OnSelchangeTabMode(); }};
}

// --- Symbols, what is sent again, what arrives ---

SymbolMode::Calls TRVNewsCtrlView::Parts::symbolCalls() {
    return {[this] { arrangement.place(); },
            [this] { modes.showParts(modes.shown()); },
            [this] { return view.currentDataState() != DataState::NotSupported; },
            [this](bool supported) {
                view.setDataState(supported ? DataState::Normal : DataState::NotSupported);
                emptyLists.followSoon();
            },
            [this] { return CSyncInfo::GetSettingCFG()->SYS_cszGetCurrentSymbol(view.linkedGroup()); },
            [this](const CSymbolInfo& symbol) {
                emit view.SendChangeSymbol(view.linkedGroup(), symbol.market, symbol.code);
            }};
}

SentAgain::Choices TRVNewsCtrlView::Parts::choices() {
    return {[this] { return days.pickedKey(); },
            [this] { return categories.chosenId(); },
            [this] { return symbolMode.current(); },
            [this] { return symbolMode.listed(); },
            [this]() -> const RelationMatcher& { return standingSearches.tickedKeySets(); },
            [this] { return board.status(); }};
}

LiveNews::Calls TRVNewsCtrlView::Parts::liveCalls() {
    return {[this] { return intakeChoices(); },
            [this](ListIndex list, const HeadlinePlace& place) { rowsMoved(list, place); },
            [this](ListIndex list, const PushedHeadline& pushed) { hold.noteCome(list, pushed); },
            [this] { story.forget(); },
            [this](const CHeadline& headline, const QString& categoryId) {
                searches.notePushed(headline);
                categories.notePushed(headline, categoryId);
            }};
}

IntakeState TRVNewsCtrlView::Parts::intakeChoices() const {
    IntakeState state;
    state.hasDatePicker = days.hasDay();
    state.pickedDate = days.picked();
    state.newsDay = days.newsDay();
    state.relation = &standingSearches.tickedKeySets();
    state.categoryId = categories.chosenId();
    // While another mode is shown the list may hold another symbol's news than the combo names.
    const auto symbol = symbolMode.chosen();
    if (symbol && symbol->code == lists.listSymbol().code) {
        state.symbolCode = symbol->code;
        state.symbolMarket = symbol->market;
    }
    return state;
}

void TRVNewsCtrlView::Parts::readForServices() {
    const RelationMatcher* filter = standingSearches.filterOfShownList();
    lists.rebuild(ListIndex::All, TableKind::ByDate, days.pickedKey(), filter);
    categories.vRefreshCategoryCombo();
    symbolMode.readFiltered(filter);
    lists.rebuild(ListIndex::Relation, TableKind::ByDate, dateKey(host_clock::today()), filter);
    if (modes.shown() == ListIndex::Search && shownGrid() != nullptr)
        searches.searchServices();
    services.CheckRegisterService(view);
    story.show();
    view.update();
}

// --- Entries ---

int TRVNewsCtrlView::Parts::entryCount(ListIndex list) const {
    return lists[list].headlineTable().size();
}

std::optional<CHeadlineTable> TRVNewsCtrlView::Parts::entryOf(ListIndex list, int row) const {
    return lists[list].headlineTable().entryAt(row);
}

int TRVNewsCtrlView::Parts::rowOf(ListIndex list, const CHeadlineTable& headline) const {
    return lists[list].headlineTable().rowOf(keyOf(headline));
}

void TRVNewsCtrlView::Parts::vGetNewsActiveService(std::vector<unsigned char>& active) const {
    active = services.activeServices(modes.shown());
}

QString TRVNewsCtrlView::Parts::topicOf(unsigned char service, int category) {
    const QString name = categories.nameOf(service, category);
    return name == langText(backEnd, keys::recover) ? QString() : name;
}

std::vector<CHeadlineTable> TRVNewsCtrlView::Parts::selectedEntries() const {
    std::vector<int> rows;
    if (const CSuperSheetWnd* grid = shownGrid())
        grid->vGetAllSelectionNdx(rows);
    std::vector<CHeadlineTable> entries;
    for (const int row : rows) {
        if (const auto entry = shownEntry(row))
            entries.push_back(*entry);
    }
    return entries;
}

void TRVNewsCtrlView::Parts::printHeadline(const CHeadlineTable& headline) {
    output.tell(output.print({headline}, std::nullopt));
}

void TRVNewsCtrlView::Parts::saveHeadline(const CHeadlineTable& headline) {
    output.tell(output.save({headline}, std::nullopt));
}

void TRVNewsCtrlView::Parts::showMode(ListIndex list) {
    if (list == modes.shown())
        return;
    view.SwitchFunction(view.iGetFunctionID(static_cast<int>(list)));
    if (auto* strip = controls.find<CXTPTabControl>(ids::tabStrip))
        strip->SetCurSel(controls.tabIndexOf(static_cast<int>(modes.shown())));
}

void TRVNewsCtrlView::Parts::goTo(ListIndex list, int row) {
    showMode(list);
    if (NewsStoryView* pane = stage.storyPane()) {
        pane->SetHeadLinePos(row);
        // A position just below the last row stays: hosts rely on it.
        const int size = lists[modes.shown()].headlineTable().size();
        if (pane->GetHeadLinePos() > size)
            pane->SetHeadLinePos(size - 1);
    }
    if (CSuperSheetWnd* grid = shownGrid()) {
        grid->setActiveSelection(row, -1);
        grid->vAutoVerScrolling(row);
    }
    story.show();
}

// --- What empty lists offer ---

EmptyLists::Calls TRVNewsCtrlView::Parts::emptyListCalls() {
    return {[this] { return days.picked(); },
            [this] { return days.nearestWithNews(); },
            [this](QDate day) { goToDay(day); },
            [this] { return shownSubject(); },
            [this] { return view.currentDataState() != DataState::NotSupported; },
            [this](ListIndex list) { showMode(list); },
            [this] { serviceMenu.popUp(); },
            [this] {
                if (auto* edit = controls.find<SearchEdit2>(ids::searchEdit))
                    edit->setFocus(Qt::OtherFocusReason);
            },
            [this](ListIndex list) {
                if (list == ListIndex::Relation)
                    standingSearches.composeKeySets();
                else
                    standingSearches.manageWarningTerms();
            },
            [this] { return qobject_cast<QPlainTextEdit*>(stage.paneText()); },
            [this] { story.clear(); },
            [this] { return stage.relatedQuotes(); },
            [this](const CSearch& found) { return offersFor(found); },
            [this](int offer) { takeOffer(offer); },
            [this] { searchOffers.forget(); }};
}

QString TRVNewsCtrlView::Parts::shownSubject() {
    if (modes.shown() == ListIndex::Symbol) {
        const CSymbolInfo symbol = symbolMode.listed();
        return (symbol.code + QLatin1Char(' ') + symbolName(backEnd, symbol).value_or(QString())).trimmed();
    }
    const auto* combo = controls.find<SCComboBox>(ids::categoryCombo);
    return combo != nullptr ? combo->currentText() : QString();
}
