// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The story of the selected headline: which row is shown, and what the back end has to say about it.
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

bool TRVNewsCtrlView::bPaneShowsStories() const {
    return newsType == 0 && storyShowType != StoryShowType::None;
}

void TRVNewsCtrlView::OnShowStory() {
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    const int row = sheet != nullptr ? sheet->cptGetFocusNdx().y() : -1;
    NewsStoryView* pane = stage.pGetPane();
    if (row < 0) {
        stage.vHideDialog();
        vClearStory();
        return;
    }
    sheet->vAutoVerScrolling(row);
    const CSearch foundUnder = searches.FoundUnder(static_cast<ListIndex>(currentMode));
    if (!bPaneShowsStories()) {
        if (TRVNewsStory* dialog = stage.pGetDialog()) {
            dialog->vSetStoryData(currentMode, row, foundUnder);
            stage.vShowDialog();
        }
        return;
    }
    if (pane == nullptr || row == shownStoryRow)
        return;
    shownStoryRow = row;
    pane->vSetFont(GetViewFont());
    pane->vSetStoryData(currentMode, row, foundUnder);
    ChangeNewsSymbolList();
}

void TRVNewsCtrlView::vClearStory() {
    stage.vClearStory();
    forgetShownStory();
}

void TRVNewsCtrlView::vRowsReplaced(ListIndex list) {
    if (currentMode == static_cast<int>(list))
        forgetShownStory();
}

void TRVNewsCtrlView::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    if (HeadlineList* list = CurrentList())
        list->vUpdateHeadline(entries);
    if (bPaneShowsStories() && stage.pGetPane() != nullptr)
        stage.pGetPane()->RespHeadLine(entries);
    if (TRVNewsStory* dialog = pStoryDialogOnShow())
        dialog->RespHeadLine(entries);
    output.takeHeadlines(entries);
}

void TRVNewsCtrlView::RespStory(const CHeadlineTable& entry) {
    if (bPaneShowsStories() && stage.pGetPane() != nullptr)
        stage.pGetPane()->RespStory(entry);
    if (TRVNewsStory* dialog = pStoryDialogOnShow())
        dialog->RespStory(entry);
    output.takeStory(entry);
}

void TRVNewsCtrlView::StoryUpdateNotify(const CHeadlineTable* entry) {
    const HeadlineList* list = CurrentList();
    if (entry == nullptr || list == nullptr || list->Table().rowOf(KeyOf(*entry)) < 0)
        return;
    if (TRVNewsStory* dialog = pStoryDialogOnShow())
        dialog->vStoryUpdateNotify(entry);
    else if (stage.pGetPane() != nullptr)
        stage.pGetPane()->vStoryUpdateNotify(entry);
}

// The dialog while it is the view's story display and to be seen.
TRVNewsStory* TRVNewsCtrlView::pStoryDialogOnShow() const {
    TRVNewsStory* dialog = stage.pGetDialog();
    return !bPaneShowsStories() && dialog != nullptr && dialog->isVisible() ? dialog : nullptr;
}
