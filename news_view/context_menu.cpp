// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/context_menu.h"

#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "headline_list/language_keys.h"
#include "host/controls/plain_caption.h"
#include "host/views/news_control_ids.h"
#include "news_view/list_notices.h"
#include "news_view/view_context.h"

#include <QWidget>

namespace wirepane {

std::vector<MenuEntry> contextMenuEntries(const MenuSituation& situation, BKQuoteInterface& backEnd,
                                          const std::vector<MenuEntry>& waiting, const ListNotices& notices) {
    std::vector<MenuEntry> entries;
    const auto add = [&](QLatin1StringView key, int command) {
        entries.push_back({command, langText(backEnd, key), {}});
    };
    add(kindOf(HeadlineColumn::Category).menuKey, ids::changeCategoryState);
    entries.back().checked = situation.showsCategory;
    // Searches and warrants have no table that could be sent again.
    if (situation.mode <= ListIndex::Symbol) {
        entries.push_back({});
        add(keys::recoverHeadlineList, ids::recoverHeadlineTable);
    }
    if (situation.onRow) {
        add(keys::recoverStory, ids::recoverStory);
        if (situation.hasStoryWindow)
            add(keys::detailedStory, ids::showStory);
        add(keys::printNews, ids::printNews);
        add(keys::saveAsNews, ids::saveNews);
    }
    entries.insert(entries.end(), waiting.begin(), waiting.end());
    for (const auto& [kind, text] : notices.inOrder()) {
        if (const int command = commandOf(kind); command != 0)
            entries.push_back({command, captionOfName(text), {}});
    }
    return entries;
}

ContextMenu::ContextMenu(ViewContext& context, CommandMenu& commandMenu, Surroundings surroundings)
    : view(context), menu(commandMenu), around(std::move(surroundings)) {}

void ContextMenu::openByKey() {
    CSuperSheetWnd* grid = view.listOf(view.shownList()).grid();
    if (grid == nullptr)
        return;
    const int row = grid->cptGetFocusNdx().y();
    grid->vAutoVerScrolling(row);
    const QRect place = row < 0 ? QRect() : grid->visualRect(grid->currentIndex());
    const QPoint point(grid->viewport()->width() / 4, row < 0 ? 0 : place.center().y());
    open(grid->viewport()->mapToGlobal(point), row >= 0);
}

bool ContextMenu::openAt(const QPoint& screen) {
    const int height = around.window.mapFromGlobal(screen).y();
    if (height >= 0 && height < around.titleHeight())
        return false;
    const CSuperSheetWnd* grid = view.listOf(view.shownList()).grid();
    open(screen, grid != nullptr && grid->isVisible() && grid->iCalcRowNdx(grid->mapFromGlobal(screen)) >= 0);
    return true;
}

void ContextMenu::open(const QPoint& screen, bool onRow) {
    if (around.window.isVisible())
        menu.popUp(around.entries(onRow), screen);
}

}  // namespace wirepane
