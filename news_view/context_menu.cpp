// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/context_menu.h"

#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "headline_list/language_keys.h"
#include "host/controls/plain_caption.h"
#include "host/views/news_control_ids.h"
#include "news_view/command_keys.h"
#include "news_view/list_notices.h"
#include "news_view/view_context.h"

#include <QKeySequence>
#include <QWidget>

#include <array>

namespace wirepane {

namespace {

// A line of the full menu, and the key that does the same.
struct FullLine {
    int command;  // 0: a separator
    QLatin1StringView text;
    QKeySequence::StandardKey platformKey = QKeySequence::UnknownKey;
    bool ofRow = true;
    bool ofMarks = false;
    bool ofExports = false;
    bool ofFolds = false;
    bool ofHold = false;
    bool ofPrices = false;
};

constexpr std::array fullMenu{
    FullLine{ids::copyRows, keys::storyCopy, QKeySequence::Copy},
    FullLine{ids::openInWindow, keys::storyInWindow},
    FullLine{ids::printNews, keys::printNews, QKeySequence::Print},
    FullLine{ids::saveNews, keys::saveAsNews, QKeySequence::Save},
    FullLine{ids::turnFold, keys::turnFold, QKeySequence::UnknownKey, true, false, false, true},
    FullLine{ids::exportRows, keys::exportList, QKeySequence::UnknownKey, true, false, true},
    FullLine{0, {}, QKeySequence::UnknownKey, false, true},
    FullLine{ids::markRead, keys::markRead, QKeySequence::UnknownKey, true, true},
    FullLine{ids::markUnread, keys::markUnread, QKeySequence::UnknownKey, true, true},
    FullLine{ids::turnStar, keys::starNews, QKeySequence::UnknownKey, true, true},
    FullLine{ids::markAllRead, keys::markAllRead, QKeySequence::UnknownKey, false, true},
    FullLine{ids::holdList, keys::holdList, QKeySequence::UnknownKey, false, false, false, false, true},
    FullLine{0, {}},
    FullLine{ids::recoverStory, keys::recoverStory},
    FullLine{ids::recoverHeadlineTable, keys::recoverHeadlineList, QKeySequence::UnknownKey, false},
    FullLine{ids::turnPrices, keys::showPrices, QKeySequence::UnknownKey, false, false, false, false, false,
             true},
    FullLine{ids::changeCategoryState, kindOf(HeadlineColumn::Category).menuKey, QKeySequence::UnknownKey,
             false},
};

std::vector<MenuEntry> fullEntries(const MenuSituation& situation, BKQuoteInterface& backEnd) {
    std::vector<MenuEntry> entries;
    for (const FullLine& line : fullMenu) {
        const bool isTold = line.command != ids::recoverHeadlineTable || situation.mode <= ListIndex::Symbol;
        if (!isTold || (line.ofRow && !situation.onRow) || (line.ofMarks && !situation.hasMarks) ||
            (line.ofExports && !situation.canExport) || (line.ofFolds && !situation.hasFold) ||
            (line.ofHold && !situation.canHold) || (line.ofPrices && !situation.showsPrices))
            continue;
        if (line.command == 0) {
            entries.push_back({});
            continue;
        }
        const QKeySequence key = line.platformKey == QKeySequence::UnknownKey
                                     ? keyOfCommand(line.command)
                                     : QKeySequence(line.platformKey);
        const QString told = key.isEmpty() ? QString() : u'\t' + key.toString(QKeySequence::NativeText);
        entries.push_back({line.command, langText(backEnd, line.text) + told, {}});
        if (line.command == ids::turnStar)
            entries.back().checked = situation.isStarred;
        if (line.command == ids::holdList)
            entries.back().checked = situation.isHeld;
        if (line.command == ids::turnPrices)
            entries.back().checked = situation.showsPrices.value_or(false);
    }
    entries.back().checked = situation.showsCategory;
    return entries;
}

std::vector<MenuEntry> plainEntries(const MenuSituation& situation, BKQuoteInterface& backEnd) {
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
    return entries;
}

}  // namespace

std::vector<MenuEntry> contextMenuEntries(const MenuSituation& situation, BKQuoteInterface& backEnd,
                                          const std::vector<MenuEntry>& waiting, const ListNotices& notices) {
    std::vector<MenuEntry> entries =
        situation.isFull ? fullEntries(situation, backEnd) : plainEntries(situation, backEnd);
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
