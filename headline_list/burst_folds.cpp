// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/burst_folds.h"

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

constexpr std::int64_t minute = 60'000;
constexpr std::size_t mostTold = 32;

}  // namespace

void BurstFolds::note(const BurstArrival& arrival, std::int64_t now, int mostAMinute) {
    Topic& topic = topics[(std::int64_t(arrival.key.service) << 32) | std::uint32_t(arrival.topic)];
    const bool burst = isBurst(topic, now, mostAMinute);
    const bool first = isFirst(topic, arrival);
    if (burst && topic.newest) {
        follow(topic, arrival.key, first);
    } else if (!topic.newest || arrival.key.time >= topic.newest->time) {
        topic.newest = arrival.key;
        topic.newestIsFirst = first;
    }
}

bool BurstFolds::isBurst(Topic& topic, std::int64_t now, int mostAMinute) const {
    std::deque<std::int64_t>& moments = topic.moments;
    moments.push_back(now);
    while (now - moments.front() >= minute || std::ssize(moments) > mostAMinute + 1)
        moments.pop_front();
    return std::ssize(moments) > mostAMinute;
}

bool BurstFolds::isFirst(Topic& topic, const BurstArrival& arrival) {
    Told now{arrival.symbol, FactWords(arrival.title)};
    const bool isKnown = std::any_of(topic.told.begin(), topic.told.end(), [&](const Told& before) {
        return before.symbol == now.symbol && before.words.areLike(now.words);
    });
    topic.told.push_back(std::move(now));
    if (topic.told.size() > mostTold)
        topic.told.pop_front();
    return !isKnown;
}

// Of one second the one that came first stands above the others.
void BurstFolds::follow(Topic& topic, const HeadlineKey& key, bool isFirst) {
    const HeadlineKey before = *topic.newest;
    if (key.time <= before.time) {
        if (!isFirst && groupAt(before).head == before)
            put(groupAt(before), key);
        return;
    }
    Group* const group = groupOf(before);
    const bool stands = topic.newestIsFirst || (group != nullptr && group->isOpen);
    if (group != nullptr && !group->isOpen && group->head == before) {
        group->head = key;
        numbers[key] = numbers.take(before);
    }
    if (!stands)
        put(groupAt(key), before);
    topic.newest = key;
    topic.newestIsFirst = isFirst;
}

const BurstFolds::Group* BurstFolds::groupOf(const HeadlineKey& key) const {
    const auto number = numbers.constFind(key);
    return number != numbers.cend() ? &groups.at(*number) : nullptr;
}

BurstFolds::Group* BurstFolds::groupOf(const HeadlineKey& key) {
    return const_cast<Group*>(std::as_const(*this).groupOf(key));
}

BurstFolds::Group& BurstFolds::groupAt(const HeadlineKey& head) {
    if (Group* group = groupOf(head))
        return *group;
    numbers[head] = nextNumber;
    Group& group = groups[nextNumber++];
    group.head = head;
    return group;
}

void BurstFolds::put(Group& group, const HeadlineKey& key) {
    group.under.push_back(key);
    numbers[key] = numbers.value(group.head);
    if (!group.isOpen)
        setInSight(key, false);
}

BurstFolds::Fold BurstFolds::foldAt(const HeadlineKey& head) const {
    const Group* group = groupOf(head);
    return group != nullptr && group->head == head
               ? Fold{static_cast<int>(group->under.size()), group->isOpen}
               : Fold{};
}

void BurstFolds::setOpen(Group& group, bool open) {
    group.isOpen = open;
    for (const HeadlineKey& key : group.under)
        setInSight(key, open);
}

bool BurstFolds::turn(const HeadlineKey& key) {
    Group* group = groupOf(key);
    if (group != nullptr)
        setOpen(*group, !group->isOpen);
    return group != nullptr;
}

void BurstFolds::open(const HeadlineKey& key) {
    if (Group* group = groupOf(key); group != nullptr && !group->isOpen)
        setOpen(*group, true);
}

void BurstFolds::forget(const HeadlineKey& key) {
    for (Topic& topic : topics) {
        if (topic.newest == key)
            topic.newest.reset();
    }
    const auto found = numbers.constFind(key);
    if (found == numbers.cend())
        return;
    const int number = *found;
    Group& group = groups.at(number);
    numbers.erase(found);
    if (group.head == key && !group.under.empty()) {
        group.head = group.under.back();
        group.under.pop_back();
        setInSight(group.head, true);
    } else if (group.head != key) {
        std::erase(group.under, key);
        setInSight(key, true);
    }
    if (group.under.empty()) {
        numbers.remove(group.head);
        groups.erase(number);
    }
}

void BurstFolds::letGo(const HeadlineKey& key, const HeadlineKey& now) {
    if (!numbers.contains(key))
        return;
    forget(key);
    setInSight(now, true);
}

BurstFolds::Changes BurstFolds::takeChanges() {
    Changes changes;
    for (auto change = changed.cbegin(); change != changed.cend(); ++change)
        (change.value() ? changes.show : changes.hide).push_back(change.key());
    changed.clear();
    return changes;
}

void BurstFolds::tellAll() {
    for (auto& [number, group] : groups)
        setOpen(group, group.isOpen);
}

}  // namespace wirepane
