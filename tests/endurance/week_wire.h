// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/item_sink.h"
#include "host/contract/records.h"

#include <QDate>
#include <QStringList>

#include <deque>
#include <random>
#include <vector>

namespace wirepane {

// A wire of made-up news, the same for the same seed: every service, categories, related symbols, stories
// that come with their headline, later or never, and headlines that are sent again.
class WeekWire {
public:
    explicit WeekWire(unsigned seed) : random(seed) {}

    // In every title.
    inline static const QString commonWord = QStringLiteral("wire");
    static constexpr unsigned char services[] = {1, 2, 16, 22, 52, 122};
    // The symbols and categories that the news is about.
    static std::vector<wirepane::StoreItem> catalogues();
    static QString symbolOf(const QDate& day);
    static QString wordOf(const QDate& day);
    static int categoryOf(const QDate& day) { return day.dayOfWeek(); }

    // On an orderly day no headline is dated before one that came earlier, but for those of the day before.
    void startDay(const QDate& begun);
    bool isOrderly() const { return day.day() % 2 == 1; }
    // The next items, as they come when `share` of the day, in [0, 1], is over.
    std::vector<wirepane::StoreItem> next(int count, double share);
    // How many headlines were sent, those that were sent again included.
    int sentCount() const { return sent; }

    int below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }

private:
    wirepane::NewsItem fresh(std::int64_t moment);
    wirepane::NewsItem again();
    QString title();

    std::mt19937 random;
    QDate day;
    std::int64_t dayBegin = 0;
    int sent = 0;
    int numbered = 0;
    std::deque<wirepane::NewsItem> recent;     // what may be sent again
    std::deque<wirepane::NewsItem> storyLess;  // what waits for its story
};

}  // namespace wirepane
