// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/empty_lists.h"

#include "headline_list/headline_list.h"
#include "headline_list/service_entry.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/views/news_module.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "search/news_relate_symbol_quote_view.h"
#include "search/search_desk.h"

#include <QAction>
#include <QPlainTextEdit>

#include <algorithm>
#include <utility>

namespace wirepane {

EmptyLists::EmptyLists(ViewContext& viewContext, const CommonParts& commonParts, const SearchDesk& desk,
                       Calls ofTheView)
    : context(viewContext), parts(commonParts), searches(desk), calls(std::move(ofTheView)) {}

void EmptyLists::watch(CSuperSheetWnd& grid, ListIndex list) {
    if (!parts.settings.options[ViewOption::EmptyStates])
        return;
    auto* note = new EmptyNote(grid.viewport(), parts.window);
    notes[list] = note;
    connect(note, &EmptyNote::acted, this, &EmptyLists::act);
    connect(note, &EmptyNote::otherChosen, this, &EmptyLists::takeOther);
    followRowsOf(grid);
}

void EmptyLists::followRowsOf(const CSuperSheetWnd& grid) {
    const QAbstractItemModel* const rows = grid.model();
    connect(rows, &QAbstractItemModel::rowsInserted, this, &EmptyLists::followSoon);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &EmptyLists::followSoon);
    connect(rows, &QAbstractItemModel::layoutChanged, this, &EmptyLists::followSoon);
    connect(rows, &QAbstractItemModel::modelReset, this, &EmptyLists::followSoon);
}

// From the event loop: once for what changes together.
void EmptyLists::followSoon() {
    if (!parts.settings.options[ViewOption::EmptyStates] || std::exchange(isPosted, true))
        return;
    QMetaObject::invokeMethod(this, &EmptyLists::follow, Qt::QueuedConnection);
}

void EmptyLists::follow() {
    isPosted = false;
    followList();
    followStory();
    followQuotes();
}

// The text is made when the pane is first asked for.
void EmptyLists::followStory() {
    QPlainTextEdit* const text = calls.storyText();
    if (text == nullptr)
        return;
    if (storyNote == nullptr) {
        storyNote = new EmptyNote(text->viewport(), parts.window);
        connect(storyNote, &EmptyNote::acted, this, &EmptyLists::readNewest);
        connect(text, &QPlainTextEdit::textChanged, this, &EmptyLists::followSoon);
    }
    const CSuperSheetWnd* const grid = context.listOf(context.shownList()).grid();
    if (text->document()->isEmpty())
        storyNote->tell(emptyStoryText(grid != nullptr && grid->rowCount() > 0, parts.backEnd));
    else
        storyNote->hide();
}

// Made with the pane, too.
void EmptyLists::followQuotes() {
    CNewsRelateSymbolQuoteView* const quotes = calls.quotes();
    if (quotes == nullptr)
        return;
    if (quotesNote == nullptr) {
        quotesNote = new EmptyNote(quotes, parts.window);
        connect(quotesNote, &EmptyNote::acted, this, [this] { calls.showList(ListIndex::Symbol); });
        followRowsOf(*quotes->quoteSheet());
    }
    const bool canLookUp =
        context.shownList() != ListIndex::Symbol && context.listOf(ListIndex::Symbol).grid() != nullptr;
    if (quotes->rowCount() == 0)
        quotesNote->tell(
            emptyQuotesText(quotes->currentDataState() == DataState::NotSupported, canLookUp, parts.backEnd));
    else
        quotesNote->hide();
}

void EmptyLists::readNewest() {
    CSuperSheetWnd* const grid = context.listOf(context.shownList()).grid();
    if (grid != nullptr && grid->rowCount() > 0)
        grid->setActiveSelection(0, -1);
}

void EmptyLists::followList() {
    const ListIndex list = context.shownList();
    EmptyNote* const note = notes[list];
    if (note == nullptr) {
        calls.forgetOffers();
        return;
    }
    const CSuperSheetWnd* const grid = context.listOf(list).grid();
    const bool holdsRows = grid != nullptr && grid->rowCount() > 0 && isSupported(list);
    if (grid == nullptr || holdsRows || isAwaited()) {
        note->hide();
        calls.forgetOffers();
        return;
    }
    EmptyText text = emptyTextOf(known(list), parts.backEnd);
    const CSearch found = list == ListIndex::Search ? searches.foundUnder(list) : CSearch();
    if (found.keywords.empty())
        calls.forgetOffers();
    else
        text.others = calls.offers(found);
    if (list == ListIndex::All && text.action.isEmpty()) {
        for (const QAction* action : offeredByHost())
            text.others += QString(action->text()).remove(u'&').remove(u'…');
    }
    note->tell(text);
    // What stands in the pane was of rows that are gone.
    const QPlainTextEdit* const story = calls.storyText();
    if (story != nullptr && !story->document()->isEmpty())
        calls.clearStory();
}

// Answers may still fill the list.
bool EmptyLists::isAwaited() const {
    const std::vector<ServiceEntry>& services = parts.services.currentServices();
    return std::any_of(services.begin(), services.end(),
                       [](const ServiceEntry& entry) { return entry.searchPending; });
}

bool EmptyLists::isSupported(ListIndex list) const {
    return list != ListIndex::Symbol || calls.isSupported();
}

EmptyList EmptyLists::known(ListIndex list) const {
    EmptyList empty;
    empty.list = list;
    empty.hasServices = !parts.services.activeServices(list).empty();
    empty.isSupported = isSupported(list);
    empty.hasAllNews = context.listOf(ListIndex::All).grid() != nullptr;
    if (list == ListIndex::Category || list == ListIndex::Symbol)
        empty.subject = calls.subject();
    if (list == ListIndex::Search) {
        const CSearch found = searches.foundUnder(list);
        empty.words = QStringList(found.keywords.begin(), found.keywords.end());
    }
    if (list == ListIndex::All) {
        empty.day = calls.day();
        empty.nearest = calls.nearestDay();
    }
    return empty;
}

QList<QAction*> EmptyLists::offeredByHost() const {
    QList<QAction*> offered = parts.window.actions();
    offered.removeIf([](const QAction* action) { return !action->property(offeredWithoutNews).toBool(); });
    return offered;
}

void EmptyLists::takeOther(int place) {
    if (context.shownList() == ListIndex::Search)
        calls.takeOffer(place);
    else if (QAction* const action = offeredByHost().value(place))
        action->trigger();
}

void EmptyLists::act() {
    const EmptyList empty = known(context.shownList());
    if (wantsServices(empty)) {
        calls.chooseServices();
        return;
    }
    switch (empty.list) {
        case ListIndex::All:
            if (empty.nearest)
                calls.goToDay(*empty.nearest);
            break;
        case ListIndex::Search:
            calls.beginSearch();
            break;
        case ListIndex::Relation:
        case ListIndex::WarningTerm:
            calls.compose(empty.list);
            break;
        default:
            calls.showList(ListIndex::All);
    }
}

}  // namespace wirepane
