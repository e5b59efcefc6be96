// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/explanation.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"

using namespace wirepane;

void TRVNewsCtrlView::showEachList() {
    const int shown = static_cast<int>(parts->shownList());
    for (const ListKind& kind : listKinds) {
        if (parts->lists[kind.index].grid() != nullptr)
            SwitchFunction(static_cast<int>(kind.index));
    }
    SwitchFunction(shown);
}

std::vector<HeadlineStanding> TRVNewsCtrlView::explain(const HeadlineKey& key) const {
    ExplainedView view{parts->backEnd,
                       parts->lists,
                       parts->services.savedServices(),
                       &parts->standingSearches.tickedKeySets(),
                       parts->days.pickedKey(),
                       parts->categories.chosenId(),
                       {},
                       {}};
    for (const ListKind& kind : listKinds) {
        const auto index = static_cast<std::size_t>(kind.index);
        view.wasSearched[index] = parts->searches.desk().sentAt(kind.index).has_value();
        // What is found does not wait for its list to be shown.
        view.wasRead[index] = parts->loading.wasShown(kind.index) || kind.fill == FillServices::Every;
    }
    return explainHeadline(view, key);
}
