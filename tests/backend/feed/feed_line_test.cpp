// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_line.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const NewsItem& newsOf(const FeedRecord& record) {
    return std::get<NewsItem>(record.item.value());
}

TEST(FeedLineTest, AnItemComesBackAsItWas) {
    NewsItem item;
    item.service = 52;
    item.identity = u"urn:\"x\"\n"_s;
    item.version = -3;
    item.time = -5;
    item.title = u"  台積電 \U0001F4C8 <b> "_s;
    item.story = u"One@@@@Two\r\n@@@@"_s;
    item.category = u"Issue"_s;
    item.related = {{16, u"2330"_s}, {0, u"X"_s}};
    item.sequence = 2147483647;
    item.withdrawn = u"Not true."_s;
    const FeedLine parsed = parsedFeedLine(itemLine(item, u"p 1"_s), 1);
    const auto& record = std::get<FeedRecord>(parsed);
    ASSERT_TRUE(record.item) << sentence(record.item.error()).toStdString();
    const NewsItem& back = newsOf(record);
    EXPECT_EQ(record.position, u"p 1"_s);
    EXPECT_EQ(std::tie(back.service, back.identity, back.version, back.time, back.title, back.story,
                       back.category, back.related, back.sequence, back.withdrawn),
              std::tie(item.service, item.identity, item.version, item.time, item.title, item.story,
                       item.category, item.related, item.sequence, item.withdrawn));
    item.story.reset();
    item.sequence.reset();
    item.withdrawn.reset();
    const FeedLine bare = parsedFeedLine(itemLine(item, {}), 1);
    EXPECT_EQ(newsOf(std::get<FeedRecord>(bare)).story, std::nullopt) << "still to come";
    EXPECT_EQ(newsOf(std::get<FeedRecord>(bare)).sequence, std::nullopt);
    EXPECT_EQ(newsOf(std::get<FeedRecord>(bare)).withdrawn, std::nullopt);
    item.story = QString();
    const FeedLine without = parsedFeedLine(itemLine(item, {}), 1);
    EXPECT_EQ(newsOf(std::get<FeedRecord>(without)).story, QString()) << "none";
}

TEST(FeedLineTest, RecordsAndHandshakesAreToldApart) {
    const QByteArray record =
        R"({"uri":"u:1","type":"text","headline":"\"wirepane\" rises","versioncreated":"2026-03-02T01:00:00Z"})";
    const FeedLine plain = parsedFeedLine(record, 16);
    EXPECT_EQ(newsOf(std::get<FeedRecord>(plain)).service, 16);
    const FeedLine wrapped =
        parsedFeedLine(R"( {"wirepane": {"position": "7", "ninjs": )" + record + "}} \r\n", 22);
    EXPECT_EQ(newsOf(std::get<FeedRecord>(wrapped)).title, u"\"wirepane\" rises"_s);
    EXPECT_EQ(newsOf(std::get<FeedRecord>(wrapped)).service, 22);
    EXPECT_EQ(std::get<FeedRecord>(wrapped).position, u"7"_s);
    for (const unsigned char service : std::initializer_list<unsigned char>{1, 22, 255}) {
        const FeedLine handshake = parsedFeedLine(handshakeLine({u"desk 1"_s, service}), 1);
        EXPECT_EQ(std::get<FeedHandshake>(handshake).source, u"desk 1"_s);
        EXPECT_EQ(std::get<FeedHandshake>(handshake).service, service);
        EXPECT_FALSE(std::get<FeedHandshake>(handshake).isNumbered);
        const FeedLine numbered = parsedFeedLine(handshakeLine({u"desk 1"_s, service, true}), 1);
        EXPECT_TRUE(std::get<FeedHandshake>(numbered).isNumbered);
    }
}

TEST(FeedLineTest, AQuoteIsReadWithItsPosition) {
    const FeedLine parsed = parsedFeedLine(
        R"({"wirepane":{"quote":{"market":16,"code":"2330","last":601.5,"change":-6,"volume":120},"position":"8"}})",
        1);
    const auto& record = std::get<FeedRecord>(parsed);
    ASSERT_TRUE(record.item) << sentence(record.item.error()).toStdString();
    const auto& quote = std::get<QuoteItem>(record.item.value());
    EXPECT_EQ(std::tie(quote.market, quote.code, quote.last, quote.change, quote.volume),
              std::make_tuple(16, u"2330"_s, 601.5, -6.0, 120));
    EXPECT_EQ(record.position, u"8");
}

TEST(FeedLineTest, EntriesOfTheSymbolTableAndOfCataloguesComeBackAsTheyWere) {
    const StoreItem entries[] = {
        SymbolItem{52, u"030012"_s, u"嵐蘅岩港購01"_s, 3},
        SymbolItem{16, u"6214"_s, u"澄川電子"_s, 1, u"Chengchuan Electronics"_s},
        SymbolItem{1, u"X"_s, u"X"_s, 0},
        CategoryItem{22, 301, u"港股"_s, u"#2a8c55"_s},
        QuoteItem{16, u"2330"_s, 601.35, -0.1, mostVolume},
        CategoryItem{1, 1, u"Markets"_s, {}},
        QuoteItem{1, u"X"_s, 0, 0, 0},
    };
    for (const StoreItem& entry : entries) {
        const QByteArray line = feedLine(entry, u"p"_s);
        const FeedLine parsed = parsedFeedLine(line, 1);
        const auto& record = std::get<FeedRecord>(parsed);
        ASSERT_TRUE(record.item) << line.toStdString() << sentence(record.item.error()).toStdString();
        EXPECT_EQ(record.item.value().index(), entry.index()) << line.toStdString();
        EXPECT_EQ(feedLine(record.item.value(), record.position), line);
    }
    const FeedLine bare = parsedFeedLine(R"({"wirepane":{"symbol":{"market":1,"code":"X","name":"N"}}})", 1);
    EXPECT_EQ(std::get<SymbolItem>(std::get<FeedRecord>(bare).item.value()).category, 1);
}

TEST(FeedLineTest, WhatIsNoNewsIsRejectedWithAReason) {
    const QByteArray lines[] = {
        "",
        "{",
        "[1]",
        "null",
        "\xff\xfe{}",
        QByteArray(200000, '['),
        R"({"wirepane":{}})",
        R"({"wirepane":{"source":1}})",
        R"({"wirepane":{"source":"x","service":256}})",
        R"({"wirepane":{"item":{}}})",
        R"({"wirepane":{"item":{"service":0,"identity":"a","time":1,"title":"t"}}})",
        R"({"wirepane":{"item":{"service":1,"identity":"a","time":1e300,"title":"t"}}})",
        R"({"wirepane":{"item":{"service":1,"identity":"a","time":1.5,"title":"t"}}})",
        R"({"wirepane":{"item":{"service":1,"identity":7,"time":1,"title":"t"}}})",
        R"({"wirepane":{"item":{"service":1,"identity":"a","time":1,"title":"t","sequence":4294967296}}})",
        R"({"wirepane":{"item":{"service":1,"identity":"a","time":1,"title":"t","sequence":-2147483649}}})",
        R"({"wirepane":{"item":{"service":1,"identity":"a","time":1,"title":"t"}},"more":1})",
        R"({"wirepane":{"item":{"service":1,"identity":"a","time":1,"title":"t","related":[1]}}})",
        R"({"wirepane":{"item":{"service":1,"identity":"a","time":1,"title":"t","related":"x"}}})",
        R"({"wirepane":{"ninjs":{"headline":"no uri"}}})",
        R"({"wirepane":{"quote":{}}})",
        R"({"wirepane":{"quote":{"market":0,"code":"1","last":1,"change":0,"volume":1}}})",
        R"({"wirepane":{"quote":{"market":1,"code":"1","last":"1","change":0,"volume":1}}})",
        R"({"wirepane":{"quote":{"market":1,"code":"1","last":1e999,"change":0,"volume":1}}})",
        R"({"wirepane":{"quote":{"market":1,"code":"1","last":1,"change":0,"volume":1.5}}})",
        R"({"wirepane":{"symbol":{"market":0,"code":"1","name":"n"}}})",
        R"({"wirepane":{"symbol":{"market":1,"code":"1"}}})",
        R"({"wirepane":{"symbol":{"market":1,"code":"1","name":"n","category":-1}}})",
        R"({"wirepane":{"category":{"service":1,"id":0,"name":"n"}}})",
        R"({"wirepane":{"category":{"service":1,"id":1,"name":"n","colour":7}}})",
    };
    for (const QByteArray& line : lines) {
        const FeedLine parsed = parsedFeedLine(line, 1);
        const auto* record = std::get_if<FeedRecord>(&parsed);
        ASSERT_NE(record, nullptr) << line.left(80).toStdString();
        ASSERT_FALSE(record->item) << line.left(80).toStdString();
        EXPECT_FALSE(sentence(record->item.error()).isEmpty());
    }
}

}  // namespace

}  // namespace wirepane
