// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/read_all.h"

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

const QByteArray opening =
    "<newsItem xmlns=\"http://iptc.org/std/nar/2006-10-01/\" guid=\"urn:1\" version=\"3\" "
    "xml:lang=\"en-GB\">";
const QByteArray created = "<itemMeta><versionCreated>2018-11-21T16:25:32-05:00</versionCreated></itemMeta>";
const QByteArray headline = "<contentMeta><headline>H</headline></contentMeta>";

QByteArray item(const QByteArray& children) {
    return opening + children + "</newsItem>";
}

TEST(Newsml, AnItemIsReadWhole) {
    const auto out = readAll(
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" +
        item(
            "<itemMeta><itemClass qcode=\"ninat:text\"/><versionCreated>2018-11-21T16:25:32-05:00 "
            "</versionCreated>"
            "<firstCreated>2016-01-01</firstCreated><pubStatus "
            "qcode=\"stat:usable\"/><title>Slot</title></itemMeta>"
            "<contentMeta><subject type=\"cpnat:organisation\"><name>Acme</name></subject>"
            "<subject type=\"cpnat:abstract\"><broader qcode=\"a:b\"><name>wrong</name></broader>"
            "<name xml:lang=\"de\">Wirtschaft</name><name xml:lang=\"en\">economy, finance</name></subject>"
            "<subject><name>second</name></subject>"
            "<headline xml:lang=\"fr\">Le titre</headline><headline> Fed \xe9t\xe9\n  halts "
            "</headline></contentMeta>"
            "<assert><organisationDetails><hasInstrument symbol=\"IBM\" market=\"mic:XNYS\"/>"
            "<x:hasInstrument xmlns:x=\"urn:x\" symbol=\"NO\"/></organisationDetails></assert>"
            "<assert><hasInstrument symbol=\"2330\" marketlabel=\"TWSE\"/><hasInstrument symbol=\"IBM\" "
            "market=\"mic:XNYS\"/>"
            "<hasInstrument symbol=\"US0378331005\" type=\"symType:ISIN\"/></assert>"
            "<contentSet><remoteContent href=\"x.jpg\"/><inlineXML contenttype=\"application/nitf+xml\">"
            "<nitf "
            "xmlns=\"urn:nitf\"><head><title>no</title></head><body><body.head><hedline><hl1>H1</hl1></"
            "hedline>"
            "<byline>By X</byline></body.head><body.content><p>One\n two</p><hl2>Mid</hl2><p>Three &lt;b></p>"
            "</body.content></body></nitf></inlineXML><inlineData>other</inlineData></contentSet>"));
    ASSERT_EQ(out.items.size(), 1U) << qPrintable(out.complaints() + out.refusal);
    const NewsItem& news = out.news();
    EXPECT_EQ(news.identity, u"urn:1");
    EXPECT_EQ(news.version, 3);
    EXPECT_EQ(news.time, 1542835532);
    EXPECT_EQ(news.title, u"Fed été halts");
    EXPECT_EQ(news.story, u"One two@@@@Mid@@@@Three <b>"_s);
    EXPECT_EQ(news.category, u"economy, finance");
    EXPECT_EQ(news.related, (std::vector<CSymbolInfo>{{1, u"IBM"_s}, {16, u"2330"_s}}));
}

TEST(Newsml, TheStoryIsTheTextOfTheFirstRenditionThatHasAny) {
    const std::vector<std::pair<QByteArray, QString>> contents{
        {"<inlineXML contenttype=\"application/xhtml+xml\"><html "
         "xmlns=\"http://www.w3.org/1999/xhtml\"><head>"
         "<title>T</title></head><body><p>a</p><p>b</p></body></html></inlineXML>",
         u"a@@@@b"_s},
        {"<inlineXML><div xmlns=\"http://www.w3.org/1999/xhtml\">a</div><p "
         "xmlns=\"http://www.w3.org/1999/xhtml\">b</p></inlineXML>",
         u"a@@@@b"_s},
        {"<inlineXML><events><event>data</event></events></inlineXML><inlineData "
         "contenttype=\"text/plain\">x &lt;b>y</inlineData>",
         u"x <b>y"_s},
        {"<inlineData contenttype=\"text/html\">&lt;p>a&lt;/p>b</inlineData>", u"a@@@@b"_s},
        {"<inlineData contenttype=\"text/plain\" encoding=\"encd:base64\">w6k=</inlineData>", u"é"_s},
        {"<inlineData contenttype=\"image/png\">iVBORw0KGgo</inlineData>", u"caption"_s},
    };
    for (const auto& [content, story] : contents) {
        const auto out = readAll(item(created +
                                      "<contentMeta><headline>H</headline><description>caption</"
                                      "description></contentMeta><contentSet>" +
                                      content + "</contentSet>"));
        ASSERT_EQ(out.items.size(), 1U) << content.toStdString() << qPrintable(out.complaints());
        EXPECT_EQ(out.news().story, story) << content.toStdString();
    }
}

TEST(Newsml, WhatCannotBeTakenSaysWhy) {
    const std::vector<std::pair<QByteArray, QString>> sources{
        {"<newsItem/>", u"item 1: The item has no “guid”."_s},
        {"<newsItem guid=\"" + QByteArray(1001, 'g') + "\"/>",
         u"The “guid” of the item is longer than 1000 characters."_s},
        {item(headline), u"item 1 (urn:1): The item has no time (“versionCreated”)."_s},
        {item("<itemMeta><versionCreated>soon</versionCreated></itemMeta>" + headline),
         u"The item has no time that can be read: “versionCreated” is “soon”."_s},
        {item(created), u"The item has no headline and no text to make one from."_s},
        {item("<itemMeta><itemClass "
              "qcode=\"ninat:picture\"/></itemMeta><contentMeta><description>d</description></contentMeta>"),
         u"The item has no headline and no text to make one from."_s},
        {item("<itemMeta><pubStatus qcode=\"stat:withheld\"/></itemMeta>" + headline),
         u"The record is not for publication: “pubStatus” is “withheld”."_s},
        {item("<itemMeta><embargoed>2199-01-01</embargoed></itemMeta>" + headline),
         u"The record is under embargo: “embargoed” is “2199-01-01”."_s},
        {item("<itemMeta><embargoed/></itemMeta>" + headline),
         u"The record is under embargo: “embargoed” is “”."_s},
        {"<packageItem guid=\"p\"/>",
         u"item 1 (p): The <packageItem> is a package of links to news items, not a news item."_s},
        {"<newsMessage><header/><itemSet/></newsMessage>", u"the end: The message holds no item."_s},
        {"<conceptItem guid=\"c\"><a></conceptItem>", u"The XML cannot be read"_s},
    };
    for (const auto& [source, reason] : sources) {
        const auto out = readAll(source);
        EXPECT_TRUE(out.items.empty());
        EXPECT_EQ(out.rejections.size(), 1U) << qPrintable(reason);
        EXPECT_TRUE(out.complaints().contains(reason)) << qPrintable(out.complaints());
    }
}

TEST(Newsml, AWithdrawalSaysWhyAndMayHaveNoTitle) {
    const QByteArray status =
        "<itemMeta><pubStatus qcode=\"stat:canceled\"/><edNote>Not\n&lt;b&gt;true&lt;/b&gt;.</edNote>"
        "<versionCreated>2018-11-21T16:25:32-05:00</versionCreated></itemMeta>";
    for (const auto& [source, title] : std::vector<std::pair<QByteArray, QString>>{
             {item(status + headline), u"H"_s},
             {item(status + "<contentMeta><description>Text</description></contentMeta>"), {}}}) {
        const auto out = readAll(source);
        ASSERT_EQ(out.items.size(), 1U) << qPrintable(out.complaints());
        EXPECT_EQ(out.news().title, title);
        EXPECT_EQ(out.news().withdrawn, u"Not true."_s);
    }
}

TEST(Newsml, AMessageIsUnfoldedAndABadItemSpoilsNoOther) {
    QByteArray second = item(created + headline);
    second.replace("urn:1", "urn:2");
    const QByteArray message =
        "<newsMessage "
        "xmlns=\"http://iptc.org/std/nar/2006-10-01/\"><header><sent>x</sent></header><itemSet>" +
        item(created + headline) + "<packageItem guid=\"p\"/>" + item("") + second;
    const auto out = readAll(message + "</itemSet></newsMessage>");
    ASSERT_EQ(out.items.size(), 2U);
    EXPECT_EQ(out.news(1).identity, u"urn:2");
    EXPECT_EQ(out.rejections.size(), 2U);
    // Cut off: the items before are taken, and the rest is said to be missing.
    const auto cut = readAll(message.chopped(12));
    EXPECT_EQ(cut.items.size(), 1U);
    EXPECT_TRUE(cut.complaints().contains(u"The XML cannot be read"_s));
}

}  // namespace
}  // namespace wirepane
