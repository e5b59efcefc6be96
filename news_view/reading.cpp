// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/reading.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/news_diary.h"
#include "host/contract/reading_marks.h"
#include "host/views/news_control_ids.h"
#include "news_view/common_parts.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <QWidget>

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

constexpr int secondsUntilSeen = 1;
constexpr int secondsUntilRead = 5;
constexpr std::size_t mostShownOneByOne = 256;

NewsAct::Kind actOf(const MarkChange& change) {
    if (!change.state)
        return NewsAct::Kind::Starred;
    return *change.state == ReadingState::Read ? NewsAct::Kind::MarkedRead : NewsAct::Kind::MarkedUnread;
}

}  // namespace

Reading::Reading(ViewContext& context, const CommonParts& common, Calls given)
    : view(context),
      parts(common),
      calls(std::move(given)),
      marks(dynamic_cast<ReadingMarks*>(&common.backEnd)) {
    second.setInterval(1000);
    connect(&second, &QTimer::timeout, this, &Reading::countSecond);
    if (marks != nullptr)
        connect(&marks->markTeller(), &MarkTeller::changed, this, &Reading::showAgain);
}

bool Reading::isOn() const {
    return marks != nullptr && marks->canMark() && parts.settings.options[ViewOption::ReadingMarks];
}

bool Reading::isStarred() const {
    const std::vector<CHeadlineTable> rows = isOn() ? calls.selected() : std::vector<CHeadlineTable>();
    return !rows.empty() && marks->markOf(keyOf(rows.front())).isStarred;
}

void Reading::noteShown(const CHeadlineTable& entry, bool byHand) {
    second.stop();
    if (byHand)
        NewsDiary::tell(parts.window, {.kind = NewsAct::Kind::Opened, .news = {keyOf(entry)}});
    if (!isOn())
        return;
    if (byHand) {
        standing.reset();
        markIfNew(keyOf(entry), ReadingState::Read);
        return;
    }
    standing = keyOf(entry);
    stood = 0;
    second.start();
}

void Reading::markIfNew(const HeadlineKey& key, ReadingState state) {
    if (marks->markOf(key).state < state)
        marks->changeMarks({key}, {.state = state});
}

void Reading::countSecond() {
    const auto shown = calls.inPane();
    if (!standing || !shown || keyOf(*shown) != *standing || !isOn()) {
        second.stop();
        return;
    }
    if (!parts.window.isActiveWindow() || !parts.window.isVisible())
        return;
    ++stood;
    if (stood == secondsUntilSeen)
        markIfNew(*standing, ReadingState::Seen);
    if (stood < secondsUntilRead)
        return;
    second.stop();
    markIfNew(*standing, ReadingState::Read);
}

bool Reading::carryOut(int command) {
    if (command == ids::markRead)
        markSelected({.state = ReadingState::Read});
    else if (command == ids::markUnread)
        markSelected({.state = ReadingState::New});
    else if (command == ids::turnStar)
        markSelected({.isStarred = !isStarred()});
    else if (command == ids::markAllRead)
        markAll();
    else
        return false;
    return true;
}

bool Reading::isAllowed() const {
    if (marks != nullptr && !marks->canMark() && parts.settings.options[ViewOption::ReadingMarks])
        calls.tell(langText(parts.backEnd, keys::nothingMarked));
    return isOn();
}

void Reading::markSelected(const MarkChange& change) {
    if (!isAllowed())
        return;
    std::vector<HeadlineKey> keys;
    for (const CHeadlineTable& entry : calls.selected())
        keys.push_back(keyOf(entry));
    NewsDiary::tell(parts.window, {.kind = actOf(change), .news = keys});
    // What stands in the pane stays unread once it has been marked so.
    standing.reset();
    marks->changeMarks(std::move(keys), change);
}

void Reading::markAll() {
    if (!isAllowed())
        return;
    const HeadlineList& list = view.listOf(view.shownList());
    std::vector<HeadlineKey> keys = list.headlineTable().keys();
    // Long lists are marked a portion at a time: first what the reader looks at.
    const int top = list.grid() != nullptr ? list.grid()->firstVisibleRow() : 0;
    std::rotate(keys.begin(), keys.begin() + std::min<std::ptrdiff_t>(top, std::ssize(keys)), keys.end());
    NewsDiary::tell(parts.window, {.kind = NewsAct::Kind::MarkedRead, .news = keys});
    marks->changeMarks(std::move(keys), {.state = ReadingState::Read});
}

void Reading::showAgain(const std::vector<HeadlineKey>& changed) {
    if (!parts.settings.options[ViewOption::ReadingMarks])
        return;
    HeadlineList& list = view.listOf(view.shownList());
    if (list.grid() == nullptr)
        return;
    if (changed.empty() || changed.size() > mostShownOneByOne) {
        list.grid()->viewport()->update();
        return;
    }
    for (const HeadlineKey& key : changed)
        list.showStateAgain(key);
}

}  // namespace wirepane
