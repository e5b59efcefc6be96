// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/sample_wire/collected_wire.h"

#include <QCryptographicHash>

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace wirepane {
namespace {

TEST(SampleWire, SameOptionsGiveTheSameItemsAndAnotherSeedGivesOthers) {
    SampleOptions options = threeDays();
    const std::vector<QString> first = linesOf(collect(options));
    EXPECT_EQ(first, linesOf(collect(options)));

    options.seed = 8;
    const std::vector<QString> other = linesOf(collect(options));
    std::vector<QString> shared;
    std::set_intersection(first.begin(), first.end(), other.begin(), other.end(), std::back_inserter(shared));
    EXPECT_TRUE(shared.empty());
}

// The bytes themselves are part of the promise: a change of this sum means that every sample store changes.
TEST(SampleWire, KeepsToTheBytesItHasAlwaysSent) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& line : linesOf(collect(threeDays())))
        hash.addData(line.toUtf8());
    EXPECT_EQ(hash.result().toHex().left(16).toStdString(), "5049e751ebd387dc");
}

TEST(SampleWire, ALaterMomentGoesOnFromTheEarlierOne) {
    SampleOptions options = threeDays();
    const std::vector<QString> before = linesOf(collect(options));
    options.now += 2 * hour;
    const std::vector<QString> after = linesOf(collect(options));
    ASSERT_GT(after.size(), before.size());
    EXPECT_TRUE(std::equal(before.begin(), before.end(), after.begin()));

    options.days = 2;  // the same days, only fewer of them
    const std::vector<QString> fewer = linesOf(collect(options));
    ASSERT_LT(fewer.size(), after.size());
    EXPECT_TRUE(std::equal(fewer.rbegin(), fewer.rend(), after.rbegin()));
}

TEST(SampleWire, HandsOverCategoriesSymbolsThenNewsInOrderOfTimeUpToThePresent) {
    const CollectedWire wire = collect(threeDays());
    EXPECT_TRUE(wire.newsCameLast);
    EXPECT_TRUE(std::is_sorted(wire.news.begin(), wire.news.end(),
                               [](const NewsItem& a, const NewsItem& b) { return a.time < b.time; }));
    EXPECT_LE(wire.news.back().time, afternoon);
    // Monday 2 March, 00:00, UTC+8
    EXPECT_GE(wire.news.front().time, 1772380800);
    EXPECT_LT(wire.news.front().time, 1772380800 + 2 * hour);
}

TEST(SampleWire, OrdinaryWiresSendSomethingInTheLastMinutesWheneverThePresentIs) {
    for (std::int64_t now :
         {afternoon, afternoon + 10 * hour, afternoon + 70 * hour, afternoon + 84 * hour}) {
        SampleOptions options = threeDays();
        options.headlinesPerDay = 200;
        options.now = now;
        const CollectedWire wire = collect(options);
        for (unsigned char service : std::initializer_list<unsigned char>{1, 2}) {
            const auto news = wire.newsOf(service);
            ASSERT_FALSE(news.empty());
            EXPECT_GT(news.back()->time, now - 600) << "service " << int{service} << " at " << now;
            EXPECT_LE(news.back()->time, now);
        }
    }
}

TEST(SampleWire, KeepsTheRhythmOfADeskAndRestsAtWeekends) {
    SampleOptions options = threeDays();
    options.now = afternoon + 7 * 24 * hour;
    options.days = 10;
    std::map<int, int> byHour;  // of working days
    std::map<bool, int> byKindOfDay;
    for (const NewsItem& item : collect(options).news) {
        const std::int64_t local = item.time + 8 * hour;
        const bool weekend = (local / (24 * hour) + 3) % 7 >= 5;
        ++byKindOfDay[weekend];
        if (!weekend)
            ++byHour[static_cast<int>(local / hour % 24)];
        EXPECT_FALSE(weekend && item.service == 52);
    }
    EXPECT_GT(byHour[9], 5 * byHour[4]);
    EXPECT_GT(byHour[13], byHour[12]);
    EXPECT_LT(byKindOfDay[true] / 2, byKindOfDay[false] / 8 / 3);
}

TEST(SampleWire, RelatedSymbolsAreInTheSymbolTable) {
    const CollectedWire wire = collect(threeDays());
    std::set<std::pair<int, QString>> table;
    std::map<int, int> perMarket;
    for (const SymbolItem& symbol : wire.symbols) {
        EXPECT_TRUE(table.insert({symbol.market, symbol.code}).second) << symbol.code.toStdString();
        EXPECT_EQ(symbol.category, 1);
        const qsizetype width = symbol.market == 52 ? 6 : symbol.market == 22 ? 5 : 4;
        EXPECT_EQ(symbol.code.size(), width);
        ++perMarket[symbol.market];
    }
    for (int market : {16, 22, 52, 122})
        EXPECT_GE(perMarket[market], 200) << market;
    EXPECT_TRUE(table.contains({16, QStringLiteral("6214")}));

    for (const NewsItem& item : wire.news) {
        std::set<std::pair<int, QString>> once;
        for (const CSymbolInfo& symbol : item.related) {
            EXPECT_TRUE(table.contains({symbol.market, symbol.code})) << symbol.code.toStdString();
            EXPECT_TRUE(once.insert({symbol.market, symbol.code}).second) << item.title.toStdString();
        }
    }
}

TEST(SampleWire, EverySymbolHasAQuoteOfTheMoment) {
    const CollectedWire wire = collect(threeDays());
    ASSERT_EQ(wire.quotes.size(), wire.symbols.size());
    int risen = 0;
    for (std::size_t i = 0; i < wire.quotes.size(); ++i) {
        const QuoteItem& quote = wire.quotes[i];
        EXPECT_EQ(quote.market, wire.symbols[i].market);
        EXPECT_EQ(quote.code, wire.symbols[i].code);
        EXPECT_GT(quote.last, 0) << quote.code.toStdString();
        EXPECT_GT(quote.last - quote.change, 0) << quote.code.toStdString();
        EXPECT_GE(quote.volume, 0);
        const double most = quote.market == 52 ? 1 : 0.2;  // of the last price
        EXPECT_LT(std::abs(quote.change), most * quote.last) << quote.code.toStdString();
        risen += quote.change > 0 ? 1 : 0;
    }
    EXPECT_GT(risen, static_cast<int>(wire.quotes.size()) / 5);
    EXPECT_LT(risen, static_cast<int>(wire.quotes.size()) * 4 / 5);
}

TEST(SampleWire, SendsExactlyTheHeadlinesAskedForOverAnyServicesOnAWorkingDay) {
    SampleOptions options;
    options.now = afternoon + 7 * hour - 1;  // the last second of the day
    options.days = 1;
    options.headlinesPerDay = 100'000;
    options.services = {3, 4, 5, 6};
    options.stories = false;
    options.correctionPermille = 0;
    std::set<QString> identities;
    std::map<int, int> perService;
    for (const NewsItem& item : collect(options).news) {
        EXPECT_EQ(item.story, QString());
        identities.insert(item.identity);
        ++perService[item.service];
    }
    EXPECT_EQ(identities.size(), 100'000U);
    for (int service : {3, 4, 5, 6})
        EXPECT_EQ(perService[service], 25'000);
}

TEST(SampleWire, StopsWhenNoMoreIsWanted) {
    int taken = 0;
    EXPECT_FALSE(
        SampleWire(sampleData(), threeDays()).run([&taken](StoreItem&&) { return ++taken < 2'000; }));
    EXPECT_EQ(taken, 2'000);
}

// Whoever joins between the headline and its story gets the story all the same.
TEST(SampleWire, SendsTheStoryOfAFlashLater) {
    SampleOptions options = threeDays();
    options.lateStories = true;
    const SampleWire wire(sampleData(), options);
    const auto storiesFrom = [&wire](std::int64_t from) {
        std::map<QString, std::int64_t> stories;
        std::set<QString> awaited;
        std::int64_t before = from;
        wire.follow(from, [&](std::int64_t sentAt, StoreItem&& given) {
            const auto& item = std::get<NewsItem>(given);
            EXPECT_GE(sentAt, before);
            before = sentAt;
            if (!item.story)
                awaited.insert(item.identity);
            else if (sentAt > item.time)
                stories.emplace(item.identity, sentAt);
            return sentAt < afternoon + hour;
        });
        for (const auto& [identity, sentAt] : stories)
            awaited.erase(identity);
        EXPECT_LT(awaited.size(), 10U);
        return stories;
    };
    const auto all = storiesFrom(afternoon);
    ASSERT_GT(all.size(), 10U);
    const auto half = storiesFrom(afternoon + hour / 2);
    for (const auto& [identity, sentAt] : all)
        EXPECT_EQ(half.contains(identity), sentAt >= afternoon + hour / 2) << identity.toStdString();
}

bool isFiller(const NewsItem& item) {
    return item.identity.section(u':', -1).size() > 6;
}

// At every hour of a week, midnight and the weekend included.
TEST(SampleWire, FollowedItSendsSomethingEveryTwentySecondsAndTheSameToEverybody) {
    SampleOptions options = threeDays();
    const SampleWire wire(sampleData(), options);
    const auto newsFrom = [&wire](std::int64_t from, std::int64_t until) {
        std::vector<NewsItem> news;
        wire.follow(from, [&](std::int64_t, StoreItem&& item) {
            news.push_back(std::move(std::get<NewsItem>(item)));
            return news.back().time < until;
        });
        return news;
    };
    constexpr std::int64_t days = 7 * 24 * hour;
    const std::vector<NewsItem> all = newsFrom(afternoon, afternoon + days);
    std::int64_t before = afternoon;
    std::set<std::pair<QString, int>> versions;
    for (const NewsItem& item : all) {
        EXPECT_GE(item.time, before);
        EXPECT_LE(item.time - before, 20) << item.time;
        before = item.time;
        EXPECT_TRUE(versions.emplace(item.identity, item.version).second) << lineOf(item).toStdString();
    }
    int inBursts = 0;
    constexpr std::size_t many = 10;
    for (std::size_t i = many; i < all.size(); ++i)
        inBursts += all[i].time - all[i - many].time < 10 ? 1 : 0;
    EXPECT_GT(inBursts, 20);
    EXPECT_LT(inBursts, 2'000) << "of some sixty thousand";
    // Who comes later gets what the others got, and what the wire has sent of the day is in it.
    const std::vector<NewsItem> later = newsFrom(afternoon + days / 2, afternoon + days);
    ASSERT_GT(later.size(), 1000U);
    EXPECT_TRUE(std::equal(later.rbegin(), later.rend(), all.rbegin(),
                           [](const NewsItem& a, const NewsItem& b) { return lineOf(a) == lineOf(b); }));
    options.now = afternoon + 24 * hour;
    for (const NewsItem& item : collect(options).news) {
        if (item.time >= afternoon && !isFiller(item)) {
            EXPECT_TRUE(versions.contains({item.identity, item.version})) << lineOf(item).toStdString();
        }
    }
}

// Terminals that start seconds apart in a quiet night, and one that has run all along, share what fills it.
TEST(SampleWire, WhatFillsTheQuietBeforeAStartDoesNotHangOnItsSecond) {
    SampleOptions options = threeDays();
    options.headlinesPerDay = 200;
    const std::int64_t night = afternoon + 10 * hour;
    std::set<QString> followed;
    SampleWire(sampleData(), options).follow(night - hour, [&](std::int64_t sentAt, StoreItem&& item) {
        followed.insert(lineOf(std::get<NewsItem>(item)));
        return sentAt < night + hour;
    });
    for (int second = 0; second < 25; ++second) {
        options.now = night + second;
        int fillers = 0;
        for (const NewsItem& item : collect(options).news) {
            if (isFiller(item)) {
                ++fillers;
                EXPECT_TRUE(followed.contains(lineOf(item))) << lineOf(item).toStdString();
            }
        }
        EXPECT_GT(fillers, 0) << second;
    }
}

// As many headlines as an ordinary day has them, and the story of each that was sent before.
TEST(SampleWire, AnAbsenceIsMadeUpForWithoutWhatOnlyFillsTheQuiet) {
    SampleOptions options = threeDays();
    options.lateStories = true;
    const std::int64_t left = afternoon;
    options.now = left + 14 * hour;
    int missed = 0;
    int lateFillers = 0;
    int followed = 0;
    SampleWire(sampleData(), options).follow(left, [&](std::int64_t sentAt, StoreItem&& given) {
        const auto& item = std::get<NewsItem>(given);
        const bool isLate = isFiller(item) && item.time < left;
        lateFillers += isLate ? 1 : 0;
        EXPECT_FALSE(sentAt < options.now && isFiller(item) && !isLate) << lineOf(item).toStdString();
        (sentAt < options.now ? missed : followed) += 1;
        return sentAt < options.now + hour;
    });
    EXPECT_LT(missed, 1'500) << "less than a working day";
    EXPECT_GT(missed, 100);
    EXPECT_GT(followed, 300);
    EXPECT_GT(lateFillers, 0);
}

}  // namespace
}  // namespace wirepane
