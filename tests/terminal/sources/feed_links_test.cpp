// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/feed_links.h"

#include "tests/support/qt_printers.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

QString found(const QString& page) {
    QStringList links;
    for (const FeedLink& link : feedLinks(page, QUrl(u"https://paper.example/news/today.html"_s)))
        links += link.title + u'|' + link.address.toString();
    return links.join(u' ');
}

TEST(FeedLinks, AreThoseThatThePageNamesAsItsOwn) {
    const QString rss = u"type=\"application/rss+xml\""_s;
    const std::pair<QString, QString> cases[] = {
        {u"<html><head><LINK Rel='home Alternate' TYPE=application/rss+xml Title='A &amp; B' href=/rss></head>"_s,
         u"A & B|https://paper.example/rss"_s},
        {u"<link rel=alternate type='application/atom+xml; charset=utf-8' href='../a?x=1&amp;y=2' />"_s,
         u"|https://paper.example/a?x=1&y=2"_s},
        {u"<base href='https://cdn.example/x/'><link rel=alternate %1 href=feed>"_s.arg(rss),
         u"|https://cdn.example/x/feed"_s},
        {u"<link rel=alternate %1 href=//other.example/feed><link rel=alternate %1 href=//other.example/feed>"_s
             .arg(rss),
         u"|https://other.example/feed"_s},
        // No feeds of the page's own.
        {u"<link rel=stylesheet %1 href=a><link rel=alternate type=text/xml href=b><link rel=alternate href=c>"_s
             .arg(rss),
         {}},
        {u"<link rel=alternate %1 href='javascript:x()'><link rel=alternate %1 href='file:///etc/passwd'>"_s
             .arg(rss),
         {}},
        {u"<script>'<link rel=alternate %1 href=a>'</script><!-- <link rel=alternate %1 href=b> -->"_s.arg(
             rss),
         {}},
        {u"<body><link rel=alternate %1 href=a>"_s.arg(rss), {}},
        {u"<a rel=alternate %1 href=a>"_s.arg(rss), {}},
        // Broken ones.
        {u"<link rel=alternate %1 href='a"_s.arg(rss), {}},
        {u"<link rel=alternate = href==x %1 / title href=feed>"_s.arg(rss),
         u"|https://paper.example/news/feed"_s},
        {u"<"_s, {}},
    };
    for (const auto& [page, expected] : cases)
        EXPECT_EQ(found(page), expected) << page.toStdString();
}

TEST(FeedLinks, OfAHostilePageCostLittle) {
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(feedLinks(u"<link rel=alternate type=application/rss+xml href=a>"_s.repeated(100'000),
                        QUrl(u"https://a.example/"_s))
                  .size(),
              1U);
    QString many;
    for (int i = 0; i < 2 * mostFeedLinks; ++i)
        many += u"<link rel=alternate type=application/rss+xml href=%1>"_s.arg(i);
    EXPECT_EQ(feedLinks(many, QUrl(u"https://a.example/"_s)).size(), std::size_t(mostFeedLinks));
    for (const QString& piece : {u"<link "_s, u"<script>"_s, u"<link a='"_s, u"<"_s, u"<!--"_s})
        EXPECT_TRUE(
            feedLinks(piece.repeated(1'000'000 / piece.size()), QUrl(u"https://a.example/"_s)).empty());
    EXPECT_LT(clock.elapsed(), 5'000);
}

}  // namespace
}  // namespace wirepane
