// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/read_all.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

constexpr std::int64_t newYear2004 = 1072915200;

QString taken(const NewsItem& item) {
    return u"%1|%2|%3|%4"_s.arg(item.identity, item.title, item.story.value_or(u"-"_s), item.category);
}

struct Feed {
    const char* source;
    QStringView expected;
};

TEST(Feeds, ReadsEveryKind) {
    const std::vector<Feed> feeds{
        {R"(<?xml version="1.0"?><rss version="2.0" xmlns:dc="http://purl.org/dc/elements/1.1/"
              xmlns:content="http://purl.org/rss/1.0/modules/content/" xmlns:media="http://search.yahoo.com/mrss/">
            <channel><title>Feed</title><image><title>no</title></image><item>
            <media:title>no</media:title><title>Bank &amp;amp; <![CDATA[rates <SRD>]]></title>
            <link>http://x/1</link><guid isPermaLink="false">urn:x:1</guid><category>Economy</category>
            <description>short</description><content:encoded><![CDATA[<p>One</p><p>Two&nbsp;three</p>]]></content:encoded>
            <pubDate>Thu, 01 Jan 2004 00:00:00 GMT</pubDate></item></channel></rss>)",
         u"urn:x:1|Bank & rates <SRD>|One@@@@Two three|Economy"},
        {R"(<rss version="0.92"><channel><link>http://x/</link><lastBuildDate>2004-01-01</lastBuildDate>
            <item><guid>7</guid><description>
              Only a
              description

              with two paragraphs
            </description></item></channel></rss>)",
         u"http://x/#7|Only a description|Only a description@@@@with two paragraphs|"},
        {R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#" xmlns="http://purl.org/rss/1.0/"
              xmlns:dc="http://purl.org/dc/elements/1.1/"><channel><title>Feed</title></channel>
            <item rdf:about="http://x/1"><title>T</title><dc:subject>S</dc:subject>
            <dc:date>2004-01-01T08:00+08:00</dc:date></item></rdf:RDF>)",
         u"http://x/1|T||S"},
        {R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"
              xmlns="http://my.netscape.com/rdf/simple/0.9/"><channel><pubDate>2004</pubDate></channel>
            <item><title>T</title><link>http://x/1</link></item></rdf:RDF>)",
         u"http://x/1|T||"},
        {R"(<feed version="0.3" xmlns="http://purl.org/atom/ns#"><entry>
            <title mode="escaped" type="text/html">T &lt;b&gt;x&lt;/b&gt;</title><id>tag:x</id>
            <issued>2004-01-01T00:00:00Z</issued><modified>2004-01-02T00:00:00Z</modified>
            <content type="application/xhtml+xml"><div xmlns="http://www.w3.org/1999/xhtml"><p>a &lt; b</p><p>c</p></div>
            </content></entry></feed>)",
         u"tag:x|T x|a < b@@@@c|"},
        {R"(<feed xmlns="http://www.w3.org/2005/Atom"><entry><title type="text">a &lt;b&gt;</title>
            <link rel="self" href="http://x/self"/><link href="http://x/1"/><category term="t" label="Label"/>
            <published>2004-01-01T00:00:00Z</published><updated>2004-01-02T00:00:00Z</updated>
            <summary type="html">&lt;p&gt;One&lt;p&gt;Two</summary></entry></feed>)",
         u"http://x/1|a <b>|One@@@@Two|Label"},
        // A type that is no text is base64, but for XML.
        {R"(<feed xmlns="http://www.w3.org/2005/Atom"><updated>2004</updated><entry><id>tag:x</id>
            <title type="application/xhtml+xml">Text</title><content type="image/x">VGV4dA==</content></entry></feed>)",
         u"tag:x|Text|Text|"},
        // Where the format says that a value is markup, all of it is.
        {R"(<rss version="2.0" xmlns:content="http://purl.org/rss/1.0/modules/content/"><channel><item>
            <guid>urn:x:2</guid><title>T</title><pubDate>2004</pubDate>
            <content:encoded><![CDATA[<iframe src="x"/>Seen <video src="y">by</video><svg><text>none</text></svg>
            <object data="z">all</object><form><blink>form</blink></form><iframe>no</iframe>]]></content:encoded></item></channel></rss>)",
         u"urn:x:2|T|Seen@@@@by@@@@all@@@@form|"},
        {R"(<rss version="2.0" xmlns:content="http://purl.org/rss/1.0/modules/content/"><channel><item>
            <guid>urn:x:3</guid><title>T &lt;VIDEO&gt;</title><pubDate>2004</pubDate>
            <content:encoded>&lt;newtag x="1"&gt;Only&lt;/newtag&gt; this</content:encoded></item></channel></rss>)",
         u"urn:x:3|T <VIDEO>|Only this|"},
        // The feed's own date may stand behind the entries.
        {R"(<feed xmlns="http://www.w3.org/2005/Atom"><entry><title>T</title><id>tag:x</id></entry>
            <updated>2004-01-01</updated></feed>)",
         u"tag:x|T||"},
        {R"(<!DOCTYPE rss [<!ENTITY id "tag:x">]><rss><channel><pubDate>2004</pubDate><item><guid>&id;&eacute;</guid>
            <title>&eacute;t&eacute;</title></item></channel></rss>)",
         u"tag:xé|été||"},
    };
    for (const Feed& feed : feeds) {
        const auto out = readAll(feed.source);
        ASSERT_EQ(out.items.size(), 1U) << feed.source << qPrintable(out.complaints() + out.refusal);
        EXPECT_EQ(out.complaints(), u"");
        EXPECT_EQ(taken(out.news()), feed.expected);
        EXPECT_EQ(out.news().time, newYear2004) << feed.source;
    }
    EXPECT_EQ(readAll(feeds.at(5).source).news().version, newYear2004 + 86400);
}

TEST(Feeds, AnEntryWithNothingToNameItIsNamedByItsText) {
    const QByteArray source =
        "<rss><channel><pubDate>2004</pubDate><item><title>A</title></item>"
        "<item><title>B</title></item><item><title>A</title></item></channel></rss>";
    const auto out = readAll(source);
    ASSERT_EQ(out.items.size(), 3U);
    EXPECT_TRUE(out.news(0).identity.startsWith("sha1:"_L1));
    EXPECT_EQ(out.news(0).identity, out.news(2).identity);
    EXPECT_NE(out.news(0).identity, out.news(1).identity);
}

TEST(Feeds, SaysWhyItRejects) {
    const auto out = readAll(R"(<rss><channel><item><guid>urn:1</guid><title>No date</title></item>
        <item><guid>urn:2</guid><pubDate>2004</pubDate></item>
        <item><title>T</title><pubDate>2004</pubDate></item><item><title>cut</item></channel></rss>)");
    EXPECT_EQ(out.items.size(), 1U);
    EXPECT_EQ(out.rejections.size(), 3U);
    EXPECT_TRUE(out.complaints().contains(
        u"item 1 (urn:1): Neither the entry nor its feed has a date that can be read."_s));
    EXPECT_TRUE(
        out.complaints().contains(u"item 2 (urn:2): The entry has no title and no text to make one from."_s));
    EXPECT_TRUE(out.complaints().contains(u"line 3: The XML cannot be read: "_s))
        << qPrintable(out.complaints());
}

TEST(Feeds, ReadsTheEncodingThatTheyDeclare) {
    const QString text =
        u"<?xml version=\"1.0\" encoding=\"%1\"?><rss><channel><pubDate>2004</pubDate><item><title>%2</title>"
        "</item></channel></rss>"_s;
    const std::vector<std::pair<QString, QString>> encodings{
        {u"UTF-8"_s, u"台積電é"_s},    {u"Big5"_s, u"台積電"_s},        {u"windows-950"_s, u"台積電"_s},
        {u"GB18030"_s, u"台積電é"_s},  {u"ISO-8859-1"_s, u"été"_s},     {u"iso-8859-7"_s, u"Πέμ"_s},
        {u"windows-1252"_s, u"“é”"_s}, {u"Shift_JIS"_s, u"日経平均"_s}, {u"UTF-16"_s, u"台積電"_s}};
    for (const auto& [encoding, title] : encodings) {
        QStringEncoder encoder(encoding.toLatin1().constData(), QStringConverter::Flag::WriteBom);
        ASSERT_TRUE(encoder.isValid()) << qPrintable(encoding);
        const auto out = readAll(encoder(text.arg(encoding, title)));
        ASSERT_EQ(out.items.size(), 1U) << qPrintable(encoding + out.complaints() + out.refusal);
        EXPECT_EQ(out.news().title, title);
    }
    // What stands in the bytes, whatever close relative the declaration names.
    const std::vector<std::tuple<QString, QString, QByteArray>> relatives{
        {u"iso-8859-1"_s, u"€100 “é”"_s,
         "\x80"
         "100 \x93\xe9\x94"},
        {u"ISO-8859-1"_s, u"ÿ–…"_s, "\xff\x96\x85"},
        {u"us-ascii"_s, u"it’s"_s, "it\x92s"},
        {u"iso-8859-9"_s, u"€ğ"_s, "\x80\xf0"},
        {u"gb2312"_s, u"朱镕基"_s, "\xd6\xec\xe9\x46\xbb\xf9"},
        {u"shift_jis"_s, u"①"_s, "\x87\x40"},
    };
    for (const auto& [encoding, title, bytes] : relatives) {
        const auto out = readAll(text.arg(encoding, u"#"_s).toLatin1().replace('#', bytes));
        ASSERT_EQ(out.items.size(), 1U) << qPrintable(encoding + out.complaints() + out.refusal);
        EXPECT_EQ(out.news().title, title) << qPrintable(encoding);
    }
    EXPECT_EQ(readAll(text.arg(u"klingon"_s, u"x"_s).toUtf8()).refusal,
              u"The file declares the encoding “klingon”, which is not known here.");
}

// What is longer than the pieces that a document is read in.
TEST(Feeds, OfManyPiecesAreReadAsIfTheyWereOne) {
    const auto documentOf = [](const QString& encoding, const QString& end) {
        QString text = u"<?xml version='1.0' encoding='%1'?>\n<rss><channel>"_s.arg(encoding);
        for (int i = 1; i <= 300; ++i) {
            text +=
                u"<item><guid>urn:%1</guid><title>台積電%1</title><description>%2</description>%3</item>\n"_s
                    .arg(i)
                    .arg(QString(i, u'電') + QString(i, u'x'))
                    .arg(i % 3 == 0 ? u"<pubDate>2004-01-02</pubDate>"_s : QString());
        }
        return text + end;
    };
    const QString dated = u"<pubDate>2004-01-01</pubDate></channel></rss>"_s;
    for (const QString& encoding : {u"UTF-8"_s, u"Big5"_s, u"GB18030"_s, u"UTF-16"_s}) {
        QStringEncoder encoder(encoding.toLatin1().constData(), QStringConverter::Flag::WriteBom);
        const auto out = readAll(encoder(documentOf(encoding, dated)));
        ASSERT_EQ(out.items.size(), 300U) << qPrintable(encoding + out.complaints() + out.refusal);
        // Those without a date wait for that of the feed.
        for (std::size_t i = 0; i < 300; ++i) {
            const int number = i < 100 ? int(i + 1) * 3 : int(i - 100) / 2 * 3 + int(i - 100) % 2 + 1;
            ASSERT_EQ(out.news(i).identity, u"urn:%1"_s.arg(number)) << qPrintable(encoding);
            ASSERT_EQ(out.news(i).title, u"台積電%1"_s.arg(number)) << qPrintable(encoding);
            ASSERT_EQ(*out.news(i).story, QString(number, u'電') + QString(number, u'x'));
        }
    }
    const auto undated = readAll(documentOf(u"UTF-8"_s, u"</channel><"_s).toUtf8());
    EXPECT_EQ(undated.items.size(), 100U);
    ASSERT_EQ(undated.rejections.size(), 201U);
    EXPECT_EQ(undated.rejections.at(1).place, u"item 2 (urn:2)");
    EXPECT_EQ(undated.rejections.back().place, u"line 302");
    const auto broken =
        readAll(documentOf(u"UTF-8"_s, u"#"_s).toUtf8().replace('#', "\xff") + dated.toUtf8());
    EXPECT_EQ(broken.complaints(),
              u"line 1: The XML cannot be read: Encountered incorrectly encoded content.");
    EXPECT_TRUE(broken.items.empty());
}

}  // namespace
}  // namespace wirepane
