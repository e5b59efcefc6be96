// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The stories of the news view, and what becomes of them on paper and in files.
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "host/contract/bk_quote_interface.h"
#include "host/controls/s_button.h"
#include "host/views/news_control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"
#include "output/printable_story.h"

using namespace wirepane;

void TRVNewsCtrlView::OnShowStory() {
    parts->story.open();
}

bool TRVNewsCtrlView::bChangeNewsPos(int list, int row) {
    parts->goTo(static_cast<ListIndex>(list), row);  // switching finds a mode for any number
    return true;
}

void TRVNewsCtrlView::OnBtnPageDown() {
    parts->story.page(1);
}

void TRVNewsCtrlView::OnBtnPageUp() {
    parts->story.page(-1);
}

void TRVNewsCtrlView::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    parts->listOf(parts->modes.shown()).vUpdateHeadline(entries);
    parts->story.takeHeadlines(entries);
    parts->output.takeHeadlines(entries);
}

void TRVNewsCtrlView::RespStory(const CHeadlineTable& entry) {
    parts->story.takeStory(entry);
    parts->output.takeStory(entry);
}

void TRVNewsCtrlView::StoryUpdateNotify(const CHeadlineTable* entry) {
    if (entry == nullptr)
        return;
    parts->story.takeUpdate(*entry);
    parts->listOf(parts->modes.shown()).showStateAgain(keyOf(*entry));
}

void TRVNewsCtrlView::OnReCoverStory() {
    const CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (sheet == nullptr)
        return;
    const int position = parts->story.pointAt(sheet->cptGetFocusNdx().y());
    if (const auto entry = parts->shownEntry(position))
        parts->backEnd.BKQNews_bReRequestHeadlineStory(*entry);
}

// --- Printing and saving ---

void TRVNewsCtrlView::OnPrintNews() {
    parts->output.tell(printSelection(std::nullopt));
}

void TRVNewsCtrlView::OnSaveNews() {
    parts->output.tell(saveSelection(std::nullopt));
}

void TRVNewsCtrlView::OnBtnPrint() {
    OnPrintNews();
}

void TRVNewsCtrlView::OnBtnSaveas() {
    OnSaveNews();
}

NewsOutcome TRVNewsCtrlView::printSelection(const std::optional<OutputTarget>& target) {
    return parts->output.print(parts->selectedEntries(), target);
}

NewsOutcome TRVNewsCtrlView::saveSelection(const std::optional<OutputTarget>& target) {
    return parts->output.save(parts->selectedEntries(), target);
}

void TRVNewsCtrlView::previewSelection() {
    parts->output.tell(parts->output.preview(parts->selectedEntries()));
}

void TRVNewsCtrlView::Linefeed(QString& story) {
    ::Linefeed(story);
}

RowsExport::Calls TRVNewsCtrlView::Parts::exportCalls() {
    return {[this](const QString& sentence) { emit view.messageForUser(sentence); },
            [this](const std::vector<CHeadlineTable>& entries, OutputTarget target) {
                target.told = [this](const NewsOutcome& outcome) { output.tell(outcome); };
                output.tell(output.save(entries, target));
            }};
}

std::vector<CHeadlineTable> TRVNewsCtrlView::Parts::shownEntries() const {
    const HeadlineTable& table = lists[modes.shown()].headlineTable();
    std::vector<CHeadlineTable> entries;
    entries.reserve(static_cast<std::size_t>(table.size()));
    for (int row = 0; row < table.size(); ++row)
        entries.push_back(table.at(row));
    return entries;
}
