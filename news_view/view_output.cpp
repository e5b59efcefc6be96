// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the jobs of output are given of the news view, and the news that its user selects for them.
#include "news_view/trv_news_ctrl_view.h"

std::vector<CHeadlineTable> TRVNewsCtrlView::vSelectedEntries() const {
    std::vector<int> rows;
    if (const CSuperSheetWnd* sheet = pGetCurrSheetView())
        sheet->vGetAllSelectionNdx(rows);
    std::vector<CHeadlineTable> entries;
    for (const int row : rows) {
        CHeadlineTable entry;
        if (bGetHeadlineTable(entry, currentMode(), row))
            entries.push_back(entry);
    }
    return entries;
}

OutputJobs::Surroundings TRVNewsCtrlView::outputSurroundings() {
    return {*this,
            stage,
            settings,
            [this] { return services.ActiveServices(currentMode()); },
            [this] { vPlaceNotices(); },
            [this](const QString& sentence) { emit MessageForUser(sentence); }};
}

NewsOutcome TRVNewsCtrlView::PrintNews(const std::optional<OutputTarget>& target) {
    return output.print(vSelectedEntries(), target);
}

NewsOutcome TRVNewsCtrlView::SaveNews(const std::optional<OutputTarget>& target) {
    return output.save(vSelectedEntries(), target);
}

void TRVNewsCtrlView::PreviewNews() {
    output.tell(output.preview(vSelectedEntries()));
}

int TRVNewsCtrlView::iRowOf(int list, const CHeadlineTable& headline) const {
    const auto index = ListOfNumber(list);
    return index ? lists[*index].Table().rowOf(KeyOf(headline)) : -1;
}

void TRVNewsCtrlView::PrintHeadline(const CHeadlineTable& headline) {
    output.tell(output.print({headline}, std::nullopt));
}

void TRVNewsCtrlView::SaveHeadline(const CHeadlineTable& headline) {
    output.tell(output.save({headline}, std::nullopt));
}
