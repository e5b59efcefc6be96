// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/opml.h"

#include "backend/import/import_errors.h"
#include "terminal/sources/source_errors.h"
#include "tests/support/qt_printers.h"

#include <QBuffer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

Result<OpmlReading> reading(QByteArray list) {
    QBuffer buffer(&list);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    return readOpml(buffer);
}

TEST(Opml, NamesTheFeedsOfAllFoldersOnceInTheirOrder) {
    const auto read =
        reading(R"list(<?xml version="1.0"?><opml version="1.1"><head><title>Mine</title></head><body>
        <outline text="Papers"><outline text="One &amp; only" title="" xmlUrl="https://one.example/feed?a=1&amp;b=2"/>
          <outline text="Deep"><outline type="rss" text="t" title="Two&#10;lines" xmlurl=" http://two.example/ "/></outline>
        </outline>
        <outline text="again" xmlUrl="https://one.example/feed?a=1&amp;b=2"/>
        <outline text="no address"/>
        <outline text="a file" xmlUrl="file:///etc/passwd"/><outline text="no host" xmlUrl="https:///x"/>
        <outline text="a script" xmlUrl="javascript:run()"/><other xmlUrl="https://other.example/"/>
    </body></opml>)list");
    ASSERT_TRUE(read);
    const std::vector<ListedFeed> expected{{u"One & only"_s, QUrl(u"https://one.example/feed?a=1&b=2"_s)},
                                           {u"Two lines"_s, QUrl(u"http://two.example/"_s)}};
    EXPECT_EQ(read.value().feeds, expected);
    EXPECT_EQ(read.value().leftOut, 3);
}

TEST(Opml, WhatIsWrittenIsReadAgain) {
    const std::vector<ListedFeed> feeds{
        {u"Prices \"<&'\" 報價"_s, QUrl(u"https://one.example/a?b=1&c=%E5%8F%B0"_s)},
        {QString(), QUrl(u"http://two.example:8080/"_s)}};
    const auto read = reading(writtenOpml(feeds));
    ASSERT_TRUE(read);
    EXPECT_EQ(read.value().feeds, feeds);
}

TEST(Opml, WhatIsNoListOfFeedsOrHostileIsRefused) {
    const QByteArray feed = R"(<outline xmlUrl="https://one.example/"/>)";
    const QByteArray start = "<opml><body>";
    const QByteArray end = "</body></opml>";
    QByteArray bomb = R"(<!DOCTYPE opml [<!ENTITY a0 "aaaaaaaaaa">)";
    for (int i = 1; i < 8; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    struct Case {
        QByteArray list;
        const ErrorCode& code;
    };
    const Case cases[] = {
        {QByteArray(largestOpml + 1, ' '), source_errors::opmlTooLarge},
        {"<rss/>", source_errors::noOpml},
        {start + end, source_errors::opmlWithoutFeeds},
        {start + feed, import_errors::xmlNotRead},
        {"", import_errors::xmlNotRead},
        {"text", import_errors::xmlNotRead},
        {start + QByteArray("<outline>").repeated(300) + feed, import_errors::xmlNotRead},
        {bomb + "]>" + start + "<outline xmlUrl=\"https://one.example/&a7;\"/>" + end,
         import_errors::xmlNotRead},
    };
    for (const Case& each : cases) {
        const auto read = reading(each.list);
        ASSERT_FALSE(read) << each.list.left(100).toStdString();
        EXPECT_EQ(read.error().code, &each.code) << sentence(read.error()).toStdString();
    }
    QByteArray many = start;
    for (int i = 0; i <= mostListedFeeds; ++i)
        many += "<outline xmlUrl=\"https://one.example/" + QByteArray::number(i) + "\"/>";
    EXPECT_EQ(reading(many + end).value().leftOut, 1);
    // An entity that names a file brings nothing of it.
    const auto outside = reading(R"(<!DOCTYPE opml [<!ENTITY f SYSTEM "file:///etc/passwd">]>)" + start +
                                 R"(<outline text="x" xmlUrl="https://one.example/"/>&f;)" + end);
    EXPECT_TRUE(!outside || outside.value().feeds.size() == 1);
}

}  // namespace
}  // namespace wirepane
