// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/news_time.h"

#include <QString>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

constexpr std::int64_t newYear2004 = 1072915200;  // 2004-01-01 00:00:00 UTC

struct Row {
    QStringView text;
    std::int64_t expected;
};

TEST(NewsTime, ReadsTheFormsThatFeedsUse) {
    const std::vector<Row> rows{
        {u"2004-01-01T00:00:00Z", newYear2004},
        {u"2004-01-01T00:00:00.123Z", newYear2004},
        {u"2004-01-01T00:00:00", newYear2004},
        {u"2004-01-01 00:00", newYear2004},
        {u"2004-01-01T02:00:00+02:00", newYear2004},
        {u"2003-12-31T19:00:00-0500", newYear2004},
        {u"2004-01-01", newYear2004},
        {u"20040101", newYear2004},
        {u"2004-01", newYear2004},
        {u"2004", newYear2004},
        {u"2003-12-31T24:00:00Z", newYear2004},
        {u"2003-12-31T23:59:60Z", newYear2004},
        {u"  2004-01-01T00:00Z\n", newYear2004},
        {u"Thu, 01 Jan 2004 00:00:00 GMT", newYear2004},
        {u"Thu, 1 Jan 04 00:00 UT", newYear2004},
        {u"1 January 2004 08:00:00 +0800", newYear2004},
        {u"Wed, 31 Dec 2003 19:00:00 EST", newYear2004},
        {u"01 Jan 2004", newYear2004},
        {u"Thu, 01 Jan 2004 00:00:00 +0000 (UTC)", newYear2004},
        {u"Thursday, 01-Jan-04 00:00:00 GMT", newYear2004},
        {u"1 Feb 2004", newYear2004 + 31 * 86400},
        {u"1 Mar 2004", newYear2004 + 60 * 86400},
        {u"1 Apr 2004", newYear2004 + 91 * 86400},
        {u"1 May 2004", newYear2004 + 121 * 86400},
        {u"1 Jun 2004", newYear2004 + 152 * 86400},
        {u"1 Jul 2004", newYear2004 + 182 * 86400},
        {u"1 Aug 2004", newYear2004 + 213 * 86400},
        {u"1 Sep 2004", newYear2004 + 244 * 86400},
        {u"1 Oct 2004", newYear2004 + 274 * 86400},
        {u"1 Nov 2004", newYear2004 + 305 * 86400},
        {u"1 Dec 2004", newYear2004 + 335 * 86400},
        {u"1 Jan 69", 3124224000},
        {u"1 Jan 70", 0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(newsTime(row.text).value_or(-1), row.expected) << qPrintable(row.text.toString());
}

TEST(NewsTime, UnderstandsNothingElse) {
    for (const QStringView text : std::initializer_list<QStringView>{
             u"", u"Last Tuesday", u"2004-13-01", u"2004-02-30", u"2004-01-01T25:00:00Z",
             u"2004-01-01T00:60:00Z", u"1899-12-31", u"1900-01-01T00:30:00+01:00",
             u"2199-12-31T23:30:00-01:00", u"2200-01-01", u"99999-01-01", u"1 Foo 2004", u"32 Jan 2004",
             u"2004-01-01T00:00:00+25:00", u"1 Jan 2004 00:00 XYZ", u"2004-01-01T00:00:00Zjunk", u"12"})
        EXPECT_FALSE(newsTime(text).has_value()) << qPrintable(text.toString());
    EXPECT_FALSE(newsTime(QString(1'000'000, u'1')).has_value());
}

}  // namespace
}  // namespace wirepane
