// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/story_display.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "host/contract/bk_quote_interface.h"
#include "news_view/story_stage.h"
#include "news_view/view_context.h"
#include "news_view/view_layout.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

#include <QScopedValueRollback>

namespace wirepane {

namespace {

int focusedRow(const CSuperSheetWnd* grid) {
    return grid != nullptr ? grid->cptGetFocusNdx().y() : -1;
}

}  // namespace

StoryDisplay::StoryDisplay(ViewContext& context, BKQuoteInterface& newsBackEnd, Surroundings surroundings)
    : view(context), backEnd(newsBackEnd), around(std::move(surroundings)) {}

bool StoryDisplay::paneShowsStories() const {
    return around.stage.storyPane() != nullptr && type != StoryShowType::None;
}

bool StoryDisplay::hasStoryWindow() const {
    return around.stage.storyDialog() != nullptr && !paneShowsStories();
}

TRVNewsStory* StoryDisplay::windowOnShow() const {
    TRVNewsStory* window = around.stage.storyDialog();
    return hasStoryWindow() && window->isVisible() ? window : nullptr;
}

void StoryDisplay::tellShown(int shownRow, bool byHand) const {
    if (const auto entry = view.listOf(view.shownList()).headlineTable().entryAt(shownRow))
        around.shown(*entry, byHand);
}

std::optional<CHeadlineTable> StoryDisplay::newsInPane() const {
    return paneShowsStories() ? shownOf(view.shownList()) : std::nullopt;
}

void StoryDisplay::show(bool byHand) {
    const ListIndex list = view.shownList();
    CSuperSheetWnd* grid = view.listOf(list).grid();
    const int focused = focusedRow(grid);
    if (focused < 0) {
        around.stage.hideDialog();
        clear();
        return;
    }
    grid->vAutoVerScrolling(focused);
    if (hasStoryWindow()) {
        around.stage.dialogForNext()->vSetStoryData(static_cast<int>(list), focused, around.foundUnder(list));
        around.stage.showDialog();
        tellShown(focused, byHand);
    }
    if (!paneShowsStories())
        return;
    if (focused == row) {
        if (byHand)
            tellShown(row, true);
        return;
    }
    row = focused;
    NewsStoryView* pane = around.stage.storyPane();
    pane->vSetFont(around.font());
    pane->vSetStoryData(static_cast<int>(list), row, around.foundUnder(list));
    listRelatedSymbols();
    tellShown(row, byHand);
}

void StoryDisplay::openWindow() {
    if (!paneShowsStories()) {
        open();
        return;
    }
    const NewsStoryView* pane = around.stage.storyPane();
    TRVNewsStory* window = around.stage.dialogForNext();
    if (pane == nullptr || window == nullptr || !pane->headlinePointedAt())
        return;
    const ListIndex list = view.shownList();
    window->vSetStoryData(static_cast<int>(list), pane->GetHeadLinePos(), around.foundUnder(list));
    around.stage.showDialog();
    window->activateWindow();
}

void StoryDisplay::clear() {
    around.stage.clearStory();
    forget();
}

void StoryDisplay::follow(const CSuperSheetWnd& grid, ListIndex list) {
    if (!grid.isTakingUpRows() && !keepsPlace && paneShowsStories() && view.shownList() == list)
        open();
}

bool StoryDisplay::takeClick() {
    NewsStoryView* pane = around.stage.storyPane();
    if (pane == nullptr)
        return false;
    if (paneShowsStories()) {
        open();
        return true;
    }
    const HeadlineList& list = view.listOf(view.shownList());
    const int focused = focusedRow(list.grid());
    if (focused < 0)
        return true;
    row = focused;
    if (!list.headlineTable().empty()) {
        pane->SetHeadLinePos(row);
        around.goTo(view.shownList(), row);
    }
    return true;
}

void StoryDisplay::takeDoubleClick() {
    if (hasStoryWindow())
        open();
}

void StoryDisplay::page(int step) {
    NewsStoryView* pane = around.stage.storyPane();
    const int size = view.listOf(view.shownList()).headlineTable().size();
    if (pane == nullptr || size <= 0)
        return;
    const int wanted = pane->GetHeadLinePos() + step;
    pane->SetHeadLinePos(wanted < 0 ? size - 1 : wanted >= size ? 0 : wanted);
    pane->vShowData();
    around.goTo(view.shownList(), pane->GetHeadLinePos());
    listRelatedSymbols();
    tellShown(pane->GetHeadLinePos(), true);
}

int StoryDisplay::pointAt(int newRow) {
    if (paneShowsStories()) {
        around.stage.storyPane()->SetHeadLinePos(newRow);
        return around.stage.storyPane()->GetHeadLinePos();
    }
    if (!hasStoryWindow())
        return -1;
    around.stage.storyDialog()->SetHeadLinePos(newRow);
    return around.stage.storyDialog()->GetHeadLinePos();
}

std::optional<CHeadlineTable> StoryDisplay::shownOf(ListIndex list) const {
    if (!paneShowsStories() || around.stage.storyPane()->list() != list)
        return std::nullopt;
    return view.listOf(list).headlineTable().entryAt(around.stage.storyPane()->GetHeadLinePos());
}

bool StoryDisplay::readInPlace(ListIndex list, const std::function<bool()>& read) {
    const auto shown = shownOf(list);
    view.listOf(list).holdPlace();
    const bool result = [&] {
        const QScopedValueRollback keeping(keepsPlace, true);
        return read();
    }();
    const int newRow = shown ? view.listOf(list).headlineTable().rowOf(keyOf(*shown)) : -1;
    if (newRow >= 0)
        around.stage.storyPane()->SetHeadLinePos(newRow);
    return result;
}

void StoryDisplay::keepThrough(ListIndex list, const HeadlinePlace& place) {
    if (!paneShowsStories() || place == HeadlinePlace() || around.stage.storyPane()->list() != list)
        return;
    NewsStoryView& pane = *around.stage.storyPane();
    const int shown = pane.GetHeadLinePos();
    const bool came = place.row >= 0;
    if (place.oldRow == shown && came)
        pane.moveHeadLinePos(place.row);
    else if (place.oldRow == shown)
        pane.leaveHeadline();
    else if (came && place.row <= shown && (place.oldRow < 0 || place.oldRow > shown))
        pane.moveHeadLinePos(shown + 1);
    else if (!came && place.oldRow < shown)
        pane.moveHeadLinePos(shown - 1);
}

void StoryDisplay::takeHeadlines(const std::vector<CHeadlineTable>& entries) {
    if (paneShowsStories())
        around.stage.storyPane()->RespHeadLine(entries);
    for (TRVNewsStory* window : around.stage.windows()) {
        if (window->isVisible())
            window->RespHeadLine(entries);
    }
}

void StoryDisplay::takeStory(const CHeadlineTable& entry) {
    if (paneShowsStories())
        around.stage.storyPane()->RespStory(entry);
    for (TRVNewsStory* window : around.stage.windows()) {
        if (window->isVisible())
            window->RespStory(entry);
    }
}

void StoryDisplay::takeUpdate(const CHeadlineTable& entry) {
    if (view.listOf(view.shownList()).headlineTable().rowOf(keyOf(entry)) < 0)
        return;
    if (TRVNewsStory* window = windowOnShow())
        window->vStoryUpdateNotify(&entry);
    else if (around.stage.storyPane() != nullptr)
        around.stage.storyPane()->vStoryUpdateNotify(&entry);
}

void StoryDisplay::turnChanges() {
    if (TRVNewsStory* window = windowOnShow())
        window->turnChanges();
    else if (paneShowsStories())
        around.stage.storyPane()->turnChanges();
}

void StoryDisplay::listRelatedSymbols() {
    CNewsRelateSymbolQuoteView* quotes = around.stage.relatedQuotes();
    const NewsStoryView* pane = around.stage.storyPane();
    if (quotes == nullptr || pane == nullptr)
        return;
    // Not what stands at the pane's row by now: the headline may have left it.
    const auto& shown = pane->headlinePointedAt();
    if (!shown)
        return;
    CNewsSymLst related;
    backEnd.BKNEWS_GetSymbolListBySeqNo(related, *shown);
    quotes->setSymbolList(related);
}

void StoryDisplay::takeRelatedSymbols(const CNewsSymlistInfo& info) {
    CNewsRelateSymbolQuoteView* quotes = around.stage.relatedQuotes();
    const NewsStoryView* pane = around.stage.storyPane();
    if (quotes == nullptr || pane == nullptr)
        return;
    const auto& shown = pane->headlinePointedAt();
    if (shown && keyOf(*shown) == info.headline) {
        quotes->setSymbolList(info.list);
        around.stage.storyPane()->showSymbolsAgain();
    }
}

}  // namespace wirepane
