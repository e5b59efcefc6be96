// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Printing and saving the selected news.
#include "host/controls/window_id.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/trv_news_story.h"

#include <QFocusEvent>

std::vector<CHeadlineTable> TRVNewsCtrlView::vSelectedEntries() const {
    std::vector<int> rows;
    if (const CSuperSheetWnd* sheet = pGetCurrSheetView())
        sheet->vGetAllSelectionNdx(rows);
    std::vector<CHeadlineTable> entries;
    for (const int row : rows) {
        CHeadlineTable entry;
        if (bGetHeadlineTable(entry, currentMode, row))
            entries.push_back(entry);
    }
    return entries;
}

NewsOutcome TRVNewsCtrlView::PrintNews(const std::optional<OutputTarget>& target) {
    return PutOut(printer, ids::printButton, vSelectedEntries(), target);
}

NewsOutcome TRVNewsCtrlView::SaveNews(const std::optional<OutputTarget>& target) {
    return PutOut(saver, ids::saveAsButton, vSelectedEntries(), target);
}

void TRVNewsCtrlView::PreviewNews() {
    vTell(PutOut(preview, ids::printButton, vSelectedEntries(), std::nullopt));
}

int TRVNewsCtrlView::iRowOf(int list, const CHeadlineTable& headline) const {
    const auto index = ListOfNumber(list);
    return index ? lists[*index].Table().rowOf(KeyOf(headline)) : -1;
}

void TRVNewsCtrlView::PrintHeadline(const CHeadlineTable& headline) {
    vTell(PutOut(printer, ids::printButton, {headline}, std::nullopt));
}

void TRVNewsCtrlView::SaveHeadline(const CHeadlineTable& headline) {
    vTell(PutOut(saver, ids::saveAsButton, {headline}, std::nullopt));
}

// While the user is asked, the story dialog leaves the top and the button that asked is off.
NewsOutcome TRVNewsCtrlView::PutOut(TRVNewsPrint& job, int button, const std::vector<CHeadlineTable>& entries,
                                    const std::optional<OutputTarget>& target) {
    if (entries.empty())
        return {};
    std::vector<unsigned char> active;
    vGetNewsActiveService(active);
    job.vSetWholeTitles(settings.options[ViewOption::WholeTitles]);
    NewsItems items = job.Gather(entries, active);
    NewsOutcome outcome;
    if (!bIsSettled(items)) {
        job.vWait(std::move(items), active, target);
        outcome.waiting = true;
        return outcome;
    }
    if (target)
        return job.PutOut(std::move(items), nullptr, target);
    const QPointer<TRVNewsCtrlView> here = this;
    const QPointer<QWidget> control = GetDlgItem(this, button);
    TRVNewsStory* dialog = stage.pGetDialog();
    stage.vLeaveTop();
    if (control != nullptr)
        control->setEnabled(false);
    outcome = job.PutOut(std::move(items), dialog != nullptr && dialog->isVisible() ? dialog : nullptr,
                         std::nullopt);
    if (control != nullptr)
        control->setEnabled(true);
    if (here != nullptr)
        stage.SetStoryWndStyle();
    else
        outcome.message.clear();
    return outcome;
}

void TRVNewsCtrlView::vTell(const NewsOutcome& outcome) {
    if (!outcome.message.isEmpty())
        emit MessageForUser(outcome.message);
}

// The view's keyboard is its grid's.
void TRVNewsCtrlView::focusInEvent(QFocusEvent* event) {
    TRVQuoteBaseView::focusInEvent(event);
    if (CSuperSheetWnd* sheet = pGetCurrSheetView())
        sheet->setFocus(event->reason());
}
