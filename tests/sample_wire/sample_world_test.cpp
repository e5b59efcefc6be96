// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/day_plan.h"
#include "sample_wire/slots.h"
#include "tests/sample_wire/collected_wire.h"

#include <QString>

#include <gtest/gtest.h>

namespace wirepane::sample {
namespace {

TEST(LocalTime, CountsDaysWeekdaysAndTradingDays) {
    struct Row {
        std::int64_t utc;
        int year, month, day, weekday, minute;
    };
    for (const Row& row : {Row{1772614800, 2026, 3, 4, 2, 17 * 60},
                           {1772380800, 2026, 3, 2, 0, 0},
                           {1772380799, 2026, 3, 1, 6, 23 * 60 + 59},
                           {1709136000, 2024, 2, 29, 3, 0},
                           {-28801, 1969, 12, 31, 2, 23 * 60 + 59}}) {
        const LocalTime local = LocalTime::fromUtc(row.utc);
        EXPECT_EQ(local.day.year(), row.year);
        EXPECT_EQ(local.day.month(), row.month);
        EXPECT_EQ(local.day.dayOfMonth(), row.day);
        EXPECT_EQ(local.day.weekday(), row.weekday);
        EXPECT_EQ(local.minute, row.minute);
    }
    const Day friday{LocalTime::fromUtc(afternoon).day.number + 2};
    EXPECT_EQ(Day{friday.number + 2}.tradingDay(), friday.tradingDay());
    EXPECT_EQ(Day{friday.number + 3}.tradingDay(), friday.tradingDay() + 1);
}

TEST(Writer, WritesTheSameSumInTheUnitsOfBothLanguages) {
    const CompanyRegister companies(sampleData().words);
    const MarketState markets(sampleData().words, 1);
    const World world{sampleData().words, companies, markets, 1};
    struct Row {
        unsigned char market;
        std::int64_t millions;
        QString english, chinese;
    };
    const Row rows[] = {
        {stockExchangeService, 3, QStringLiteral("NT$3 million"), QStringLiteral("300萬元")},
        {stockExchangeService, 85, QStringLiteral("NT$85 million"), QStringLiteral("8,500萬元")},
        {stockExchangeService, 512, QStringLiteral("NT$512 million"), QStringLiteral("5.12億元")},
        {stockExchangeService, 999, QStringLiteral("NT$999 million"), QStringLiteral("9.99億元")},
        {hongKongService, 1'000, QStringLiteral("HK$1.00 billion"), QStringLiteral("10.0億港元")},
        {hongKongService, 3'420, QStringLiteral("HK$3.42 billion"), QStringLiteral("34.2億港元")},
        {stockExchangeService, 312'450, QStringLiteral("NT$312.45 billion"), QStringLiteral("3,124.5億元")},
    };
    for (const Row& row : rows) {
        for (Language language : {Language::English, Language::Chinese}) {
            Scene scene(world, {Topic::Earnings, language, row.market, LocalTime::fromUtc(afternoon), 5});
            QString text;
            Writer(scene, text).amount(row.millions);
            EXPECT_EQ(text, language == Language::English ? row.english : row.chinese);
        }
    }
}

}  // namespace
}  // namespace wirepane::sample
