// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/trial_reading.h"

#include "terminal/sources/feed_title.h"
#include "tests/support/qt_printers.h"
#include "tests/terminal/sources/announcements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

QString linesOf(const TrialReport& report) {
    QStringList lines;
    for (const TrialItem& item : report.first)
        lines += QString::number(item.time) + u'|' + item.category + u'|' + item.title;
    return lines.join(u'\n');
}

constexpr std::int64_t now = 1772445600;  // 2 March 2026, 10:00 UTC

TrialReport trial(const QByteArray& body, const NetworkSource& source = {}) {
    HttpAnswer answer;
    answer.isAlive = true;
    answer.body = body;
    answer.address = QUrl(u"https://a.example/x/"_s);
    NetworkSource there = source;
    there.address = answer.address;
    return readTrial(answer, there, now);
}

QByteArray feed(int items) {
    QByteArray rss = "<rss><channel><title>T</title><link>https://a.example/</link>";
    for (int i = 1; i <= items; ++i)
        rss += "<item><guid>g" + QByteArray::number(i) + "</guid><title>Item " + QByteArray::number(i) +
               "</title><pubDate>Mon, 02 Mar 2026 09:" + QByteArray::number(10 + i) +
               ":00 GMT</pubDate></item>";
    return rss + "<item><guid>x</guid><title>No date</title></item></channel></rss>";
}

TEST(TrialReading, ShowsTheNewestItemsAsTheyWouldStand) {
    NetworkSource source;
    source.categoryRule = CategoryRule::Otherwise;
    source.category = u"Papers"_s;
    const TrialReport report = trial(feed(12), source);
    EXPECT_EQ(report.items, 12);
    EXPECT_EQ(report.rejected, 1);
    EXPECT_TRUE(report.reason);
    ASSERT_EQ(report.first.size(), TrialReport::mostItems);
    EXPECT_EQ(linesOf(report).section(u'\n', 0, 1),
              u"1772443320|Papers|Item 12\n1772443260|Papers|Item 11"_s);
    EXPECT_FALSE(report.fitting || report.fault);
}

TEST(TrialReading, ProposesTheNameThatAFeedGivesItself) {
    const QByteArray item = "<item><guid>g</guid><title>Item</title></item>";
    const std::pair<QByteArray, QString> feeds[] = {
        {"<rss><channel><title> Harbour\n &amp; Rail </title>" + item + "</channel></rss>",
         u"Harbour & Rail"_s},
        {"<rss><channel><image><title>Logo</title></image><title>Wire</title></channel></rss>", u"Wire"_s},
        {"<rss><channel>" + item + "<title>Behind</title></channel></rss>", {}},
        {"<feed xmlns='http://www.w3.org/2005/Atom'><author><title>Dr</title></author>"
         "<title type='xhtml'><div>A <b>bold</b> name</div></title></feed>",
         u"A bold name"_s},
        {"<rss><channel><title>" + QByteArray("文").repeated(400) + "</title></channel></rss>",
         QString(mostFeedTitle, u'文')},
        {"<rss><channel><title>a" + QByteArray("😀").repeated(60) + "</title></channel></rss>",
         u'a' + u"😀"_s.repeated(49)},
        {"<rss><channel><title>Gold \u202e ssarb</title></channel></rss>", u"Gold ssarb"_s},
        {"<html><head><title>Page</title></head></html>", {}},
        {"<!DOCTYPE r [<!ENTITY a SYSTEM 'file:///etc/passwd'>]><rss><channel><title>&a;</title></channel>",
         {}},
        {"<rss><channel><title>cut", {}},
        {"[]", {}},
    };
    for (const auto& [body, title] : feeds)
        EXPECT_EQ(feedTitle(body), title) << body.left(80).constData();
    EXPECT_EQ(trial(feed(1)).title, u"T"_s);
}

TEST(TrialReading, ProposesTheMappingThatFitsATable) {
    const TrialReport report = trial(announcements());
    ASSERT_TRUE(report.fitting);
    EXPECT_EQ(report.fitting->kind, NetworkKind::Table);
    EXPECT_EQ(report.fitting->mapping, u"exchange_announcements"_s);
    EXPECT_EQ(linesOf(report),
              u"1772430632|第51款|公告本公司更換會計師\n1772413203|第12款|召開法人說明會說明"_s);
    EXPECT_EQ(linesOf(trial(announcements(), *report.fitting)), linesOf(report));
}

TEST(TrialReading, TellsPagesEmptyListsAndWhatIsNoNews) {
    const TrialReport page = trial(
        "\xef\xbb\xbf<?xml version='1.0'?> <!-- x --><!DOCTYPE html><html><head><link rel=alternate "
        "type=application/rss+xml title=F "
        "href=/f>");
    EXPECT_EQ(page.links, (std::vector<FeedLink>{{u"F"_s, QUrl(u"https://a.example/f"_s)}}));
    EXPECT_FALSE(page.fault);
    struct Case {
        QByteArray body;
        NetworkKind kind;
        QString mapping;
        bool isFault;
    };
    NetworkSource young;
    young.greatestAge = 1;
    young.kind = NetworkKind::Feed;
    QByteArray old = feed(2);
    EXPECT_EQ(trial(old.replace("Mar 2026", "Feb 2026"), young).left, 2);
    const Case cases[] = {
        {"<html><body>Sign in</body></html>", NetworkKind::Auto, {}, true},
        {"", NetworkKind::Auto, {}, true},
        {R"([{"price": 1}])", NetworkKind::Auto, {}, true},
        {"<rss><channel/></rss>", NetworkKind::Auto, {}, false},
        {announcements(), NetworkKind::Table, u"/no/such/file"_s, true},
        {R"([{"price": 1}])", NetworkKind::Table, u"articles"_s, true},
    };
    for (const Case& each : cases) {
        NetworkSource source;
        source.kind = each.kind;
        source.mapping = each.mapping;
        const TrialReport report = trial(each.body, source);
        EXPECT_EQ(report.fault.has_value(), each.isFault) << each.body.toStdString();
        EXPECT_EQ(report.items, 0);
        EXPECT_FALSE(report.fitting);
    }
}

}  // namespace
}  // namespace wirepane
