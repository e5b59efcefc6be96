// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/read_all.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

const QByteArray lines =
    "{\"uri\": \"urn:1\", \"versioncreated\": \"2004\", \"headline\": \"\\u00e9\\ud83d\\ude00\"}\n"
    "{\"uri\": \"urn:2\", \"versioncreated\": \"2004\", \"body_xhtml\": \"<p>é</p>\"}\n";
const QByteArray list = "[" + lines.chopped(1).replace('\n', ',') + "]";
const QByteArray rss =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><rss><channel><pubDate>2004</pubDate>"
    "<item><guid>urn:1</guid><title>é</title></item>"
    "<item><guid>urn:2</guid><description><![CDATA[<p>x</p>]]></description></item></channel></rss>";
const QByteArray newsml =
    "<newsMessage><itemSet>"
    "<newsItem guid=\"urn:1\"><itemMeta><versionCreated>2004</versionCreated></itemMeta>"
    "<contentMeta><headline>é</headline></contentMeta></newsItem>"
    "<newsItem guid=\"urn:2\"><itemMeta><versionCreated>2004</versionCreated></itemMeta>"
    "<contentSet><inlineXML><nitf><body><body.content><p>x</p></body.content></body></nitf></inlineXML></"
    "contentSet>"
    "</newsItem></itemSet></newsMessage>";
const QByteArray symbols = "market,code,name\r\n16,2330,\"台\"\"積電\"\r\n1,NA,\"N\nA\"\r\n";

// What is read of a source cut off anywhere is what stands whole before the cut, and never something else; a
// cut record is rejected, not lost in silence.
TEST(HostileInput, ACutSourceGivesNoWrongItem) {
    for (const QByteArray& source : std::vector{lines, list, rss, newsml}) {
        ASSERT_EQ(readAll(source).items.size(), 2U);
        for (qsizetype length = 0; length < source.size(); ++length) {
            const auto out = readAll(source.first(length));
            for (std::size_t i = 0; i < out.items.size(); ++i)
                EXPECT_EQ(out.news(i).identity, u"urn:%1"_s.arg(i + 1)) << length;
            // Of lines that are missing as a whole nobody can know.
            const bool complained = !out.rejections.empty() || !out.refusal.isEmpty();
            EXPECT_TRUE(source == lines || out.items.size() == 2 || complained)
                << length << source.toStdString();
        }
    }
    for (qsizetype length = 0; length < symbols.size(); ++length)
        EXPECT_LE(readAll(symbols.first(length)).items.size(), 2U);
}

// Every byte of a small source replaced by others that matter: nothing may crash or hang.
TEST(HostileInput, AChangedByteIsSurvived) {
    for (const QByteArray& source : std::vector{lines, list, rss, newsml, symbols}) {
        for (qsizetype at = 0; at < source.size(); ++at) {
            for (const char byte : {'\0', '\xff', '\xed', '"', '<', '&', '[', '}', '\\', '\n', ',', '@'}) {
                QByteArray changed = source;
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
    QElapsedTimer clock;
    clock.start();
    const QByteArray item =
        "<rss><channel><item><pubDate>2004</pubDate><title>&a11;</title></item></channel></rss>";
    EXPECT_EQ(readAll(bomb + "]>" + item).items.size(), 0U);
    const QByteArray ring = "<!DOCTYPE rss [<!ENTITY a11 \"&b;\"><!ENTITY b \"&a11;\">]>" + item;
    EXPECT_EQ(readAll(ring).items.size(), 0U);
    const QByteArray outside = "<!DOCTYPE rss [<!ENTITY a11 SYSTEM \"file:///etc/hostname\">]>" + item;
    const auto out = readAll(outside);
    EXPECT_TRUE(out.items.empty() || out.news().title.isEmpty());
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST(HostileInput, LongLinesAreReadAtOnce) {
    QElapsedTimer clock;
    clock.start();
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
    EXPECT_FALSE(readAll("{" + megabytes).rejections.empty());
    EXPECT_LT(clock.elapsed(), 30'000);
}

TEST(HostileInput, WhatIsNoNewsIsRefusedWithAReason) {
    const std::vector<std::pair<QByteArray, QString>> sources{
        {"", u"The file is empty."_s},
        {" \r\n\t\n", u"The file is empty."_s},
        {"\xef\xbb\xbf", u"The file is empty."_s},
        {"<html><body>Access denied</body></html>",
         u"The file is XML of a kind that is not known here: its root is <html>."_s},
        {"<groupSet/>", u"The file is XML of a kind that is not known here: its root is <groupSet>."_s},
    };
    for (const auto& [source, reason] : sources)
        EXPECT_EQ(readAll(source).refusal, reason);
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
