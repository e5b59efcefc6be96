// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/list_hold.h"

#include "headline_list/headline_list.h"
#include "headline_list/intake.h"
#include "headline_list/relation_matcher.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/headline_looks.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/views/news_control_ids.h"
#include "news_view/common_parts.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <utility>

namespace wirepane {

ListHold::ListHold(ViewContext& context, const CommonParts& common,
                   std::function<const RelationMatcher&()> tickedKeySets, std::function<void()> whenChanged)
    : view(context), parts(common), keySets(std::move(tickedKeySets)), changed(std::move(whenChanged)) {}

std::optional<int> ListHold::heldAt(ListIndex list) const {
    const auto entry = held.find(list);
    return entry != held.end() ? std::optional(entry->second.matching) : std::nullopt;
}

void ListHold::noteCome(ListIndex list, const PushedHeadline& pushed) {
    const auto entry = held.find(list);
    if (entry == held.end())
        return;
    auto* const alerts = dynamic_cast<HeadlineLooks*>(&parts.backEnd);
    const bool isWanted =
        keySets().CheckIsRelationSearch(pushed.headline, pushed.categoryId.toInt(), pushed.symbolCode) ||
        (alerts != nullptr && alerts->lookOf(keyOf(pushed.headline)).isWanted);
    if (isWanted)
        ++entry->second.matching;
}

void ListHold::letGo(ListIndex list) {
    const auto entry = held.extract(list);
    if (!entry)
        return;
    HeadlineList& headlines = view.listOf(list);
    headlines.hold(false);
    if (entry.mapped().stoodAtTop && headlines.grid() != nullptr) {
        headlines.grid()->setFirstVisibleRow(0);
        view.refresh();
    }
    changed();
}

bool ListHold::carryOut(int command) {
    if (command != ids::holdList)
        return false;
    const ListIndex list = view.shownList();
    if (isHeld(list)) {
        letGo(list);
        return true;
    }
    const CSuperSheetWnd* const grid = view.listOf(list).grid();
    if (!parts.settings.options[ViewOption::HoldLists] || grid == nullptr)
        return true;
    held[list] = {grid->firstVisibleRow() == 0, 0};
    view.listOf(list).hold(true);
    changed();
    return true;
}

}  // namespace wirepane
