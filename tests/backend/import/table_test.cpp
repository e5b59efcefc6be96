// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/read_all.h"

#include <QStringEncoder>
#include <QStringList>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

QString symbolText(const StoreItem& item) {
    const auto& symbol = std::get<SymbolItem>(item);
    return u"%1 %2 %3 %4"_s.arg(QString::number(symbol.market), symbol.code, symbol.name,
                                QString::number(symbol.category));
}

QString symbolsOf(const ReadOut& out) {
    QStringList all;
    for (const StoreItem& item : out.items)
        all += symbolText(item);
    return all.join(u'\n');
}

const QString companies =
    u"\ufeff出表日期,公司代號,公司名稱,公司簡稱\r\n\"1120831\",\"1101\",\"臺灣水泥股份有限公司\",\"台泥\"\r\n"_s;

TEST(SymbolTable, ReadsTheKnownLists) {
    ReadOptions options;
    options.sourceName = u"t187ap03_L.csv"_s;
    EXPECT_EQ(symbolsOf(readAll(companies.toUtf8(), options)), u"16 1101 台泥 1");
    options.sourceName = u"t187ap03_O.csv"_s;
    EXPECT_EQ(symbolsOf(readAll(companies.toUtf8(), options)), u"122 1101 台泥 1");
    options.market = 22;
    EXPECT_EQ(symbolsOf(readAll(companies.toUtf8(), options)), u"22 1101 台泥 1");
    const auto american = readAll(
        "Symbol,Company Name,Security Name,ETF\nNA,Nano Labs,\"Nano Labs - Shares, A\",N\n"
        "File Creation Time: 0731202621:31,,,\n,,,\n");
    EXPECT_EQ(symbolsOf(american), u"1 NA Nano Labs - Shares, A 1");
    EXPECT_EQ(american.complaints(), u"");
}

TEST(SymbolTable, ReadsTheEnglishNames) {
    for (const char* heading : {"英文簡稱", "English"}) {
        const auto out =
            readAll(QByteArray("公司代號,公司簡稱,") + heading + "\n1101,台泥,TCC\n1102,亞泥,\n");
        ASSERT_EQ(out.items.size(), 2U);
        EXPECT_EQ(std::get<SymbolItem>(out.items.front()).englishName, u"TCC") << heading;
        EXPECT_EQ(std::get<SymbolItem>(out.items.back()).englishName, u"") << heading;
    }
}

TEST(SymbolTable, ReadsCodePage950AndUtf16) {
    QStringEncoder encoder("windows-950");
    ASSERT_TRUE(encoder.isValid());
    const QByteArray bytes = encoder(companies.sliced(1));
    EXPECT_EQ(symbolsOf(readAll(bytes)), u"16 1101 台泥 1");
    QStringEncoder wide(QStringEncoder::Utf16LE);
    EXPECT_EQ(symbolsOf(readAll(wide(companies))), u"16 1101 台泥 1");
}

TEST(SymbolTable, ABadRowIsOneRejection) {
    const auto out = readAll(
        "market,code,name,category\n16,2330,台積電,2\n0,1,x,\n256,2,x,\n16,,x,\n16,a b,x,\n16,3,,\n"
        "x,4,x,\n16,5,x,many\n122,6,ok\n16,\"7\n");
    EXPECT_EQ(symbolsOf(out), u"16 2330 台積電 2\n122 6 ok 1");
    EXPECT_EQ(out.complaints(),
              u"line 3: “0” is not a market: it must be a number from 1 to 255.\n"
              "line 4: “256” is not a market: it must be a number from 1 to 255.\n"
              "line 5: “” is not a symbol code.\n"
              "line 6: “a b” is not a symbol code.\n"
              "line 7: The symbol “3” has no name.\n"
              "line 8: “x” is not a market: it must be a number from 1 to 255.\n"
              "line 9: “many” is not a category: it must be a number from 0 to 2147483647.\n"
              "line 11: A quote is opened and never closed; nothing behind it is read."_s);
}

TEST(QuoteTable, ReadsRowsAndRejectsBadOnes) {
    const auto out = readAll(
        "Market,Code,Name,Last,Change,Volume\n16,2330,Aster,601.5,-6,120\n0,1,,1,0,1\n16,,,1,0,1\n"
        "16,1,,nan,0,1\n16,1,,1,inf,1\n16,1,,1,,1\n16,1,,1,0,-1\n16,1,,1,0,1e30\n");
    ASSERT_EQ(out.items.size(), 1U);
    const auto& quote = std::get<QuoteItem>(out.items.front());
    EXPECT_EQ(std::tie(quote.market, quote.code, quote.last, quote.change, quote.volume),
              std::make_tuple(16, u"2330"_s, 601.5, -6.0, 120));
    EXPECT_EQ(out.complaints(),
              u"line 3: “0” is not a market: it must be a number from 1 to 255.\n"
              "line 4: “” is not a symbol code.\n"
              "line 5: “nan” is not a last price: it must be a number such as 12.5.\n"
              "line 6: “inf” is not a change: it must be a number such as 12.5.\n"
              "line 7: “” is not a change: it must be a number such as 12.5.\n"
              "line 8: “-1” is not a volume: it must be a number from 0 to 9007199254740991.\n"
              "line 9: “1e30” is not a volume: it must be a number from 0 to 9007199254740991."_s);
}

TEST(CategoryTable, ReadsRowsAndRejectsBadOnes) {
    const auto out = readAll(
        "Service,ID,Name,Colour\n1,7,Economy,#FF0000\n52,-1,x,\n1,0,Plain,\n1,9,,\n1,10,x,red\n300,1,x,\n");
    ASSERT_EQ(out.items.size(), 2U);
    const auto& first = std::get<CategoryItem>(out.items.front());
    EXPECT_EQ(first.service, 1);
    EXPECT_EQ(first.id, 7);
    EXPECT_EQ(first.name, u"Economy");
    EXPECT_EQ(first.colour, u"#ff0000");
    EXPECT_EQ(std::get<CategoryItem>(out.items.back()).id, 0);
    EXPECT_EQ(std::get<CategoryItem>(out.items.back()).colour, u"");
    EXPECT_EQ(out.rejections.size(), 4U);
    EXPECT_EQ(out.rejections.at(2).reason, u"“red” is not a colour: it must be as “#rrggbb”.");
}

}  // namespace
}  // namespace wirepane
