// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/news_delivery.h"

#include <algorithm>

namespace wirepane {

namespace {
// Some 8 ms with three views: a key waits for one batch at most, and for a painting.
constexpr int batch = 250;
}  // namespace

NewsDelivery::NewsDelivery(ArrivalLog& log, std::function<void(const Arrival&)> telling)
    : arrivals(log), tell(std::move(telling)), position(log.last().value_or(0)) {}

int NewsDelivery::open() {
    isOpen = true;
    std::vector<Arrival> missed = arrivals.after(position);
    std::stable_sort(missed.begin(), missed.end(), [](const Arrival& a, const Arrival& b) {
        // Only when the news has its new keys is an old one known to be gone.
        if (a.isGone || b.isGone)
            return !a.isGone && b.isGone;
        return a.key.time != b.key.time ? a.key.time < b.key.time : a.key.sequence < b.key.sequence;
    });
    waiting.insert(waiting.end(), missed.begin(), missed.end());
    const auto isHeadline = [](const Arrival& arrival) { return !arrival.onlyStory && !arrival.isGone; };
    const auto headlines = std::count_if(missed.begin(), missed.end(), isHeadline);
    run();
    return static_cast<int>(headlines);
}

void NewsDelivery::add(const std::vector<Arrival>& fresh) {
    if (!isOpen || fresh.empty())
        return;
    waiting.insert(waiting.end(), fresh.begin(), fresh.end());
    position = fresh.back().position;
}

void NewsDelivery::addRange(std::int64_t after, std::int64_t last) {
    if (!isOpen)
        return;
    ranges.push_back({after, last});
    position = last;
}

void NewsDelivery::readOn() {
    Range& range = ranges.front();
    const std::int64_t last = std::min(range.after + batch, range.last);
    const std::vector<Arrival> fresh = arrivals.after(range.after, last);
    waiting.insert(waiting.end(), fresh.begin(), fresh.end());
    range.after = last;
    if (last == range.last)
        ranges.pop_front();
}

void NewsDelivery::run() {
    // A receiver that takes news in itself only adds to what waits.
    if (!isOpen || isBusy || isPosted)
        return;
    isBusy = true;
    if (waiting.empty() && !ranges.empty())
        readOn();
    for (int left = batch; left > 0 && isOpen && !waiting.empty(); --left) {
        const Arrival next = waiting.front();
        waiting.pop_front();
        tell(next);
    }
    isBusy = false;
    if (!isOpen || isDone())
        return;
    isPosted = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            isPosted = false;
            run();
        },
        Qt::QueuedConnection);
}

}  // namespace wirepane
