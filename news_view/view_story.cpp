// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the story display of the news view is given of it, and what the back end has to say about stories.
#include "host/controls/xtp_tab_control.h"
#include "news_view/control_ids.h"
#include "news_view/searches.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"

StoryDisplay::Surroundings TRVNewsCtrlView::storySurroundings() {
    return {stage, [this](ListIndex list) { return searches->desk().FoundUnder(list); },
            [this] { return GetViewFont(); }, [this](int list, int row) { bChangeNewsPos(list, row); }};
}

void TRVNewsCtrlView::vRowsReplaced(ListIndex list) {
    if (shownList() == list)
        forgetShownStory();
}

void TRVNewsCtrlView::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    listOf(shownList()).vUpdateHeadline(entries);
    story.takeHeadlines(entries);
    output.takeHeadlines(entries);
}

void TRVNewsCtrlView::RespStory(const CHeadlineTable& entry) {
    story.takeStory(entry);
    output.takeStory(entry);
}

void TRVNewsCtrlView::StoryUpdateNotify(const CHeadlineTable* entry) {
    if (entry != nullptr)
        story.takeUpdate(*entry);
}

void TRVNewsCtrlView::OnReCoverStory() {
    const CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (sheet == nullptr)
        return;
    CHeadlineTable entry;
    if (bGetHeadlineTable(entry, currentMode(), story.pointAt(sheet->cptGetFocusNdx().y())))
        backEnd.BKQNews_bReRequestHeadlineStory(entry);
}

bool TRVNewsCtrlView::bChangeNewsPos(int list, int row) {
    if (list != currentMode()) {
        SwitchFunction(iGetFunctionID(list));
        if (auto* strip = controls.Find<CXTPTabControl>(ids::tabStrip))
            strip->SetCurSel(iGetTabIndex(currentMode()));
    }
    if (NewsStoryView* pane = stage.pGetPane()) {
        pane->SetHeadLinePos(row);
        // A position just below the last row stays: hosts rely on it.
        const int size = iGetHeadlineTableSize(currentMode());
        if (pane->GetHeadLinePos() > size)
            pane->SetHeadLinePos(size - 1);
    }
    if (CSuperSheetWnd* sheet = pGetCurrSheetView()) {
        sheet->vSetActiveSelection(row, -1);
        sheet->vAutoVerScrolling(row);
    }
    OnShowStory();
    return true;
}
