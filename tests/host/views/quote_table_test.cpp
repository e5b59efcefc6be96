// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_table.h"

#include "host/views/quote_columns.h"
#include "tests/support/qt_printers.h"

#include <QStringList>

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

CSymbolInfo symbol(const QString& code, unsigned char market = 16) {
    return {market, code};
}

QStringList codes(const QuoteTable& table) {
    QStringList all;
    for (int row = 0; row < table.size(); ++row)
        all += table.at(row).symbol.code;
    return all;
}

QString texts(const std::optional<CQuoteMemory>& quote) {
    const QuoteRow row{symbol(u"1"_s), u"Name"_s, quote};
    QStringList all;
    for (const QuoteColumn column :
         {QuoteColumn::Last, QuoteColumn::Change, QuoteColumn::Percent, QuoteColumn::Volume})
        all += textOf(row, column);
    return all.join(u' ');
}

CQuoteMemory quoteOf(double last, double change, std::int64_t volume, const QString& code = u"1"_s) {
    return {symbol(code), last, change, volume};
}

}  // namespace

TEST(QuoteTable, SaysPricesChangesAndVolumes) {
    const struct {
        std::optional<CQuoteMemory> quote;
        QString texts;
        int direction;
    } cases[] = {
        {std::nullopt, u"-- -- -- --"_s, 0},
        {quoteOf(601.5, 6.5, 1234567), u"601.50 +6.50 +1.09% 1,234,567"_s, 1},
        {quoteOf(90, -10, 0), u"90.00 -10.00 -10.00% 0"_s, -1},
        {quoteOf(50, 0, 1), u"50.00 0.00 0.00% 1"_s, 0},
        {quoteOf(12345.625, -0.0625, 1), u"12,345.6250 -0.0625 -0.00% 1"_s, -1},
        {quoteOf(1234567.125, 16.1 - 16.8, 1), u"1,234,567.125 -0.700 -0.00% 1"_s, -1},
        {quoteOf(0.125, 0.005, 1), u"0.125 +0.005 +4.17% 1"_s, 1},
        {quoteOf(0, -2, 1), u"0.00 -2.00 -100.00% 1"_s, -1},
        {quoteOf(5, 5, 1), u"5.00 +5.00 -- 1"_s, 1},
        {quoteOf(0, 0, 0), u"0.00 0.00 -- 0"_s, 0},
        {quoteOf(1.0 / 3, 0, 0), u"0.3333 0.0000 0.00% 0"_s, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(texts(c.quote), c.texts);
        EXPECT_EQ(directionOf({symbol(u"1"_s), {}, c.quote}), c.direction) << c.texts.toStdString();
    }
}

TEST(QuoteTable, SortsByEveryColumnAndKeepsEqualRowsInTheirOrder) {
    QuoteTable table;
    table.setSymbols({symbol(u"5"_s), symbol(u"3"_s), symbol(u"4"_s), symbol(u"1"_s), symbol(u"3"_s)});
    ASSERT_EQ(codes(table), (QStringList{u"5"_s, u"3"_s, u"4"_s, u"1"_s})) << "3 once";
    const QStringList names{u"beta"_s, u"Alpha"_s, u""_s, u"gamma"_s};
    for (int row = 0; row < table.size(); ++row)
        table.setName(row, names[row]);
    table.update(quoteOf(9, 1, 50, u"5"_s));
    table.update(quoteOf(100, 1, 7, u"3"_s));
    table.update(quoteOf(20, -4, 7, u"1"_s));
    const struct {
        QuoteColumn column;
        QString up, down;
    } cases[] = {
        {QuoteColumn::Code, u"1345"_s, u"5431"_s},    {QuoteColumn::Name, u"3514"_s, u"1534"_s},
        {QuoteColumn::Last, u"5134"_s, u"3154"_s},    {QuoteColumn::Change, u"1534"_s, u"5314"_s},
        {QuoteColumn::Percent, u"1354"_s, u"5314"_s}, {QuoteColumn::Volume, u"3154"_s, u"5314"_s},
    };
    for (const auto& c : cases) {
        table.sortBy(QuoteTable::Sorting{c.column, false});
        EXPECT_EQ(codes(table).join(u""_s), c.up) << "up by " << static_cast<int>(c.column);
        table.sortBy(QuoteTable::Sorting{c.column, true});
        EXPECT_EQ(codes(table).join(u""_s), c.down) << "down by " << static_cast<int>(c.column);
    }
    table.sortBy(std::nullopt);
    EXPECT_EQ(codes(table).join(u""_s), u"5341");
}

TEST(QuoteTable, AnUpdateMovesNothingUntilTheRowsArePutInOrder) {
    QuoteTable table;
    table.setSymbols({symbol(u"1"_s), symbol(u"2"_s)});
    EXPECT_FALSE(table.update(quoteOf(1, 0, 1, u"none"_s)));
    EXPECT_FALSE(table.update({symbol(u"1"_s, 22), 1, 0, 1})) << "another market";
    EXPECT_TRUE(table.update(quoteOf(1, 0, 1, u"1"_s))->first);
    table.update(quoteOf(2, 0, 1, u"2"_s));
    EXPECT_FALSE(table.update(quoteOf(2, 0, 1, u"2"_s))) << "the known one";
    EXPECT_FALSE(table.isStale()) << "not sorted";
    table.sortBy(QuoteTable::Sorting{QuoteColumn::Last, false});
    const auto risen = table.update(quoteOf(3, 0, 1, u"1"_s));
    ASSERT_TRUE(risen);
    EXPECT_EQ(risen->row, 0);
    EXPECT_FALSE(risen->first);
    EXPECT_EQ(codes(table).join(u""_s), u"12");
    ASSERT_TRUE(table.isStale());
    table.resort();
    EXPECT_EQ(codes(table).join(u""_s), u"21");
    EXPECT_EQ(table.update(quoteOf(2.5, 0, 1, u"1"_s))->row, 1);

    table.setSymbols({symbol(u"9"_s), symbol(u"1"_s)});
    EXPECT_EQ(codes(table).join(u""_s), u"19") << "what stays is known still, and sorted";
    EXPECT_EQ(textOf(table.at(0), QuoteColumn::Last), u"2.50");
}

TEST(QuoteColumns, FillEveryBoxExactlyAndGiveWayInOrder) {
    const QuoteWidths wanted{60, 150, 80, 70, 60, 90};
    for (int box = -5; box < 1200; ++box) {
        const QuoteWidths widths = fitQuoteColumns(wanted, box);
        ASSERT_EQ(std::accumulate(widths.begin(), widths.end(), 0), std::max(0, box)) << box;
        ASSERT_GE(*std::min_element(widths.begin(), widths.end()), 0) << box;
    }
    const struct {
        int box;
        QuoteWidths widths;
    } cases[] = {
        {600, {60, 240, 80, 70, 60, 90}}, {510, {60, 150, 80, 70, 60, 90}}, {440, {60, 80, 80, 70, 60, 90}},
        {419, {60, 149, 80, 70, 60, 0}},  {329, {60, 129, 80, 0, 60, 0}},   {250, {110, 0, 80, 0, 60, 0}},
        {100, {30, 0, 40, 0, 30, 0}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(fitQuoteColumns(wanted, c.box), c.widths) << c.box;
}

}  // namespace wirepane
