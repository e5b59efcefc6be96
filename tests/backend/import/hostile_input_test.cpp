// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/format_samples.h"
#include "tests/backend/import/read_all.h"

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

QString identityOf(const StoreItem& item) {
    if (const auto* news = std::get_if<NewsItem>(&item))
        return news->identity;
    const auto& symbol = std::get<SymbolItem>(item);
    return u"%1/%2"_s.arg(symbol.market).arg(symbol.code);
}

// What is read of a source cut off anywhere is what stands whole before the cut, and never something else; a
// cut record is rejected, not lost in silence.
TEST(HostileInput, ACutSourceGivesNoWrongItem) {
    for (const FormatSample& sample : formatSamples()) {
        const QByteArray& source = sample.source;
        const auto whole = readAll(source);
        ASSERT_EQ(whole.items.size(), 2U);
        for (qsizetype length = 0; length < source.size(); ++length) {
            const auto out = readAll(source.first(length));
            ASSERT_LE(out.items.size(), 2U);
            for (std::size_t i = 0; i < out.items.size(); ++i)
                EXPECT_EQ(identityOf(out.items[i]), identityOf(whole.items[i])) << length;
            const bool complained = !out.rejections.empty() || !out.refusal.isEmpty();
            EXPECT_TRUE(sample.isOfLines || out.items.size() == 2 || complained)
                << length << source.toStdString();
        }
    }
}

// Every byte of a small source replaced by others that matter: nothing may crash or hang.
TEST(HostileInput, AChangedByteIsSurvived) {
    for (const FormatSample& sample : formatSamples()) {
        for (qsizetype at = 0; at < sample.source.size(); ++at) {
            for (const char byte : {'\0', '\xff', '\xed', '"', '<', '&', '[', '}', '\\', '\n', ',', '@'}) {
                QByteArray changed = sample.source;
                changed[at] = byte;
                const auto out = readAll(changed);
                EXPECT_LE(out.items.size(), 4U);
            }
        }
    }
}

TEST(HostileInput, NestingAndExpansionAreBounded) {
    const int deep = 200'000;
    const auto json = readAll("{\"uri\": " + QByteArray(deep, '[') + "\n");
    EXPECT_EQ(json.rejections.size(), 1U);
    EXPECT_TRUE(json.complaints().contains(u"not valid JSON"_s));
    EXPECT_EQ(readAll(QByteArray(deep, '[')).items.size(), 0U);
    EXPECT_EQ(readAll("[" + QByteArray("{\"a\":").repeated(deep)).items.size(), 0U);

    const QByteArray start = "<rss><channel><item><title>T</title><pubDate>2004</pubDate></item>";
    for (const char* element : {"<a>", "<item>", "<channel>", "<item><description>"}) {
        const auto xml = readAll(start + QByteArray(element).repeated(deep));
        EXPECT_EQ(xml.items.size(), 1U);
        EXPECT_TRUE(xml.complaints().contains(u"elements are nested deeper than 256"_s))
            << qPrintable(xml.complaints());
    }
}

TEST(HostileInput, EntitiesDoNotExplode) {
    QByteArray bomb = "<!DOCTYPE rss [<!ENTITY a0 \"laughs\">";
    for (int i = 1; i < 12; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    const QByteArray item =
        "<rss><channel><item><pubDate>2004</pubDate><title>&a11;</title></item></channel></rss>";
    EXPECT_EQ(readAll(bomb + "]>" + item).items.size(), 0U);
    const QByteArray ring = "<!DOCTYPE rss [<!ENTITY a11 \"&b;\"><!ENTITY b \"&a11;\">]>" + item;
    EXPECT_EQ(readAll(ring).items.size(), 0U);
    const QByteArray outside = "<!DOCTYPE rss [<!ENTITY a11 SYSTEM \"file:///etc/hostname\">]>" + item;
    const auto out = readAll(outside);
    EXPECT_TRUE(out.items.empty() || out.news().title.isEmpty());
}

TEST(HostileInput, LongLinesAreRead) {
    const QByteArray megabytes(10'000'000, 'x');
    const auto json =
        readAll("{\"uri\": \"u\", \"versioncreated\": \"2004\", \"headline\": \"" + megabytes + "\"}");
    ASSERT_EQ(json.items.size(), 1U);
    EXPECT_EQ(json.news().title.size(), 500);
    const auto xml = readAll("<rss><channel><pubDate>2004</pubDate><item><description>" + megabytes +
                             "</description></item></channel></rss>");
    ASSERT_EQ(xml.items.size(), 1U);
    EXPECT_EQ(xml.news().story->size(), 10'000'000);
    EXPECT_EQ(readAll("market,code,name\n1," + megabytes + ",x\n").rejections.size(), 1U);
    EXPECT_FALSE(readAll(megabytes).refusal.isEmpty());
    EXPECT_FALSE(readAll("{" + megabytes).refusal.isEmpty());
    EXPECT_FALSE(readAll("{\"" + megabytes).rejections.empty());
}

// A record, a row or a text beyond the limit is passed over, and never held; what stands beside it is read.
TEST(HostileInput, WhatIsLongerThanARecordMayBeIsPassedOver) {
    const QByteArray longText = QByteArray("long \\\"]},<text> ").repeated(20'000);
    const auto json = [](const QByteArray& uri, const QByteArray& text) {
        return "{\n\"uri\": \"" + uri +
               "\", \"versioncreated\": \"2004\", \"headline\": \"H\", \"body_text\": \"" + text + "\"}";
    };
    const auto entry = [](const QByteArray& guid, const QByteArray& text) {
        return "<item><guid>" + guid + "</guid><title>H</title><pubDate>2004</pubDate><description>" + text +
               "</description></item>";
    };
    const QByteArray rss = "<rss><channel>" + entry("a", "A");
    const QString recordTooLong = u"The record is longer than 100000 bytes."_s;
    const QString textTooLong = u"The XML cannot be read: a text is longer than 100000 bytes."_s;
    struct Case {
        QByteArray source;
        std::size_t taken;
        QString reason;
    };
    const std::vector<Case> cases = {
        {json("a", longText), 0, recordTooLong},
        {"[" + json("a", "A") + ",\n" + json("b", longText) + ",\n" + json("c", "C") + "]", 2, recordTooLong},
        {"[" + json("a", "A") + "," + json("b", longText) + "]", 1, recordTooLong},
        {rss + entry("b", "<![CDATA[" + longText + "]]>") + entry("c", "C") + "</channel></rss>", 1,
         textTooLong},
        {rss + entry("b", QByteArray("<b>bold</b> ").repeated(20'000)) + "</channel></rss>", 1, textTooLong},
        {rss + "<image " + QByteArray("a='long' ").repeated(20'000) + "/></channel></rss>", 1, textTooLong},
        {"market,code,name\n1,a,A\n1,b,\"" + longText, 1, recordTooLong},
        {"market,code,name\n1,a,A\n1,b" + QByteArray(20'000, ',') + "\n1,c,C\n", 1, recordTooLong},
    };
    ReadOptions options;
    options.limits.record = 100'000;
    for (const Case& one : cases) {
        const auto out = readAll(one.source, options);
        EXPECT_EQ(out.items.size(), one.taken) << one.source.first(200).constData();
        ASSERT_EQ(out.rejections.size(), 1U) << qPrintable(out.complaints());
        EXPECT_EQ(out.rejections.front().reason, one.reason);
    }
}

TEST(HostileInput, WhatIsNoNewsIsRefused) {
    for (const QByteArray& source :
         {QByteArray("a,b,c\n1,2,3\n"), QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
          QByteArray(1000, '\0'), QByteArray("\xff\xfe\x00"), QByteArray("<"),
          QByteArray("<?xml version=\"1.0\"?>"), QByteArray("<!DOCTYPE html><p")}) {
        const auto out = readAll(source);
        EXPECT_FALSE(out.refusal.isEmpty());
        EXPECT_TRUE(out.items.empty());
    }
}

TEST(HostileInput, WrongUtf8InARecordRejectsThatRecord) {
    const QByteArray good = "{\"uri\": \"u\", \"versioncreated\": \"2004\", \"headline\": \"H\"}\n";
    const QByteArray bad = "{\"uri\": \"v\", \"versioncreated\": \"2004\", \"headline\": \"\xff\xfe\xc0\"}\n";
    const auto out = readAll(good + bad + good);
    EXPECT_EQ(out.items.size(), 2U);
    EXPECT_EQ(out.rejections.size(), 1U);
}

}  // namespace
}  // namespace wirepane
