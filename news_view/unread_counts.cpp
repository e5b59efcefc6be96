// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/unread_counts.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/reading_marks.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/common_parts.h"
#include "news_view/control_set.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <algorithm>
#include <chrono>

namespace wirepane {

namespace {

constexpr std::chrono::milliseconds gathered{200};
constexpr std::size_t mostFollowed = 4000;  // changes; more are counted anew
constexpr std::size_t lookedAtOnce = 500;   // changes: a key waits for no more

}  // namespace

UnreadCounts::UnreadCounts(ViewContext& context, const CommonParts& common)
    : view(context), parts(common), marks(dynamic_cast<ReadingMarks*>(&common.backEnd)) {
    soon.setSingleShot(true);
    soon.setInterval(gathered);
    connect(&soon, &QTimer::timeout, this, qOverload<>(&UnreadCounts::update));
    if (marks != nullptr)
        connect(&marks->markTeller(), &MarkTeller::changed, this, &UnreadCounts::noteMarked);
}

bool UnreadCounts::isOn() const {
    return marks != nullptr && marks->canMark() && parts.settings.options[ViewOption::UnreadCounts];
}

void UnreadCounts::noteMoved(ListIndex list, const HeadlinePlace& place) {
    const auto entry = lists.find(list);
    if (entry == lists.end())
        return;
    if (place.row >= 0)
        noteChanged(entry->second, keyOf(view.listOf(list).headlineTable().at(place.row)));
    if (!soon.isActive())
        soon.start();
}

void UnreadCounts::forget(ListIndex list) {
    if (!isOn())
        return;
    lists[list].isDue = true;
    soon.start();
}

void UnreadCounts::noteMarked(const std::vector<HeadlineKey>& keys) {
    for (auto& [list, counted] : lists) {
        if (keys.empty())
            counted.isDue = true;
        for (const HeadlineKey& key : keys)
            noteChanged(counted, key);
    }
    if (!lists.empty() && !soon.isActive())
        soon.start();
}

void UnreadCounts::noteChanged(Counted& counted, const HeadlineKey& key) {
    if (counted.changed.size() < mostFollowed)
        counted.changed.push_back(key);
    else
        counted.isDue = true;
}

void UnreadCounts::update() {
    for (auto& [list, counted] : lists)
        update(list, counted);
}

void UnreadCounts::update(ListIndex list, Counted& counted) {
    const HeadlineTable& table = view.listOf(list).headlineTable();
    if (counted.isDue && !counted.isUnderWay) {
        counted.isDue = false;
        counted.isUnderWay = true;
        marks->findUnread(
            table.keys(), UnreadSet::mostCounted + 1, this,
            [this, list = list](const std::vector<HeadlineKey>& found) { takeFound(list, found); });
    }
    const auto rest =
        counted.changed.begin() + static_cast<std::ptrdiff_t>(std::min(lookedAtOnce, counted.changed.size()));
    counted.unread.settle({counted.changed.begin(), rest}, isUnreadIn(table));
    counted.changed.erase(counted.changed.begin(), rest);
    if (!counted.changed.empty())
        QTimer::singleShot(0, this, [this, list] { update(list, lists[list]); });
    // What has left the list counts no more.
    counted.unread.settleAll([&table](const HeadlineKey& key) { return table.rowOf(key) >= 0; });
    if (counted.unread.isToBeFilled() && !counted.isUnderWay) {
        counted.isDue = true;
        soon.start();
    }
    show(list, counted);
}

// What was marked meanwhile may have been looked at before.
void UnreadCounts::takeFound(ListIndex list, const std::vector<HeadlineKey>& found) {
    Counted& counted = lists[list];
    counted.isUnderWay = false;
    const UnreadSet::Test isUnread = isUnreadIn(view.listOf(list).headlineTable());
    counted.unread.noteFound(found.size());
    counted.unread.settleAll(isUnread);
    counted.unread.settle(found, isUnread);
    show(list, counted);
    if (counted.isDue)
        soon.start();
}

UnreadSet::Test UnreadCounts::isUnreadIn(const HeadlineTable& table) const {
    return [this, &table](const HeadlineKey& key) {
        return table.rowOf(key) >= 0 && marks->markOf(key).state == ReadingState::New;
    };
}

void UnreadCounts::showAgain() {
    for (const auto& [list, counted] : lists)
        show(list, counted);
}

void UnreadCounts::show(ListIndex list, const Counted& counted) const {
    auto* strip = parts.controls.find<CXTPTabControl>(ids::tabStrip);
    for (int tab = 0; strip != nullptr && tab < strip->count(); ++tab) {
        if (strip->itemData(tab) != static_cast<int>(list))
            continue;
        const QString told = isOn() ? counted.unread.text() : QString();
        const QString name = strip->literalTabText(tab);
        strip->setBadge(tab, told,
                        told.isEmpty() ? name : langText(parts.backEnd, keys::withUnread).arg(name, told));
    }
}

}  // namespace wirepane
