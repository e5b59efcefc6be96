// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the story display of the news view is given of it, and what the back end has to say about stories.
#include "news_view/searches.h"
#include "news_view/trv_news_ctrl_view.h"

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
