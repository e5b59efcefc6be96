// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/endurance/week_wire.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int daySeconds = 86400;
constexpr std::size_t mostRecent = 1000;
constexpr int vocabulary = 300;  // of which "word7", "gold", ... are searched for

QString word(int number) {
    static const QString named[] = {u"gold"_s, u"strike"_s, u"rate"_s, u"copper"_s};
    return number < 4 ? named[number] : u"word%1"_s.arg(number);
}

void keep(std::deque<NewsItem>& items, const NewsItem& item) {
    items.push_back(item);
    if (items.size() > mostRecent)
        items.pop_front();
}

}  // namespace

std::vector<StoreItem> WeekWire::catalogues() {
    std::vector<StoreItem> items;
    for (int i = 0; i < 10; ++i)
        items.push_back(SymbolItem{16, QString::number(2330 + i), u"Company %1"_s.arg(i), 1});
    // The warrants number their topics for themselves: the same numbers have other names.
    for (const unsigned char service : services) {
        for (int id = 1; id <= 7; ++id)
            items.push_back(CategoryItem{
                service, id, u"%1 %2"_s.arg(service == 52 ? u"Warrants"_s : u"Topic"_s).arg(id), {}});
    }
    return items;
}

QString WeekWire::symbolOf(const QDate& day) {
    return QString::number(2330 + day.day() % 10);
}

QString WeekWire::wordOf(const QDate& day) {
    return u"word%1"_s.arg(1000 + day.day());
}

void WeekWire::startDay(const QDate& begun) {
    day = begun;
    dayBegin = day.startOfDay().toSecsSinceEpoch();
    recent.clear();
    storyLess.clear();
}

std::vector<StoreItem> WeekWire::next(int count, double share) {
    std::vector<StoreItem> items;
    const auto moment = static_cast<std::int64_t>(share * (daySeconds - 1));
    for (int i = 0; i < count; ++i) {
        ++sent;
        const bool isAgain = !recent.empty() && below(10) == 0;
        const NewsItem item = isAgain ? again() : fresh(moment);
        items.emplace_back(item);
        if (!storyLess.empty() && below(8) == 0) {
            NewsItem late = storyLess.front();
            storyLess.pop_front();
            late.story = u"The story of a headline that came before it."_s;
            items.emplace_back(late);
        }
    }
    return items;
}

// Now and then one that is an hour late, and one that belongs to the day before.
NewsItem WeekWire::fresh(std::int64_t moment) {
    NewsItem item;
    item.service = services[below(std::size(services))];
    item.identity = u"n%1"_s.arg(++numbered);
    const int late = isOrderly() ? 0 : below(30) + (below(500) == 0 ? 3600 : 0);
    const int dayBefore = below(60) == 0 ? daySeconds : 0;
    item.time = dayBegin + std::max<std::int64_t>(0, moment - late) - dayBefore;
    item.title = title();
    item.categoryId = categoryOf(day.addDays(below(2)));
    if (below(3) == 0)
        item.related.push_back({16, symbolOf(day)});
    if (below(12) == 0)
        item.related.push_back({16, symbolOf(day.addDays(-1))});
    const int kind = below(4);
    if (kind == 0)
        item.story = u"%1 %2@@@@%3"_s.arg(title(), title(), title());
    keep(recent, item);
    if (kind == 1)
        keep(storyLess, item);
    return item;
}

NewsItem WeekWire::again() {
    NewsItem& item = recent[static_cast<std::size_t>(below(static_cast<int>(recent.size())))];
    ++item.version;
    item.title = title();
    std::erase_if(storyLess, [&](const NewsItem& other) { return other.identity == item.identity; });
    return item;
}

QString WeekWire::title() {
    QStringList words{commonWord};
    for (int i = 0; i < 5; ++i)
        words += word(below(vocabulary));
    if (below(60) == 0)
        words += wordOf(day);
    return words.join(u' ');
}

}  // namespace wirepane
