// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/read_all.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

// A record with what every taken record needs, and more fields.
QByteArray record(const QByteArray& fields) {
    return R"({"uri": "urn:x:1", "versioncreated": "2004-01-01T00:00:00Z", )" + fields + "}";
}

QString taken(const NewsItem& item) {
    QString symbols;
    for (const CSymbolInfo& symbol : item.related)
        symbols += u" %1/%2"_s.arg(symbol.market).arg(symbol.code);
    return u"%1|%2|%3|%4|%5|%6"_s.arg(item.identity, item.title, item.story.value_or(u"-"_s), item.category,
                                      QString::number(item.version), symbols.trimmed());
}

TEST(Ninjs, ReadsEveryVersion) {
    const QByteArray first = R"({"uri": "urn:x:1", "type": "text", "version": "3", "pubstatus": "usable",
        "versioncreated": "2004-01-01T08:00:00+08:00", "headline": "Bank\n cuts <rates>",
        "body_text": "First\nline.\n    Second <p>.", "body_xhtml": "<p>no</p>",
        "subject": [{"code": "x"}, {"name": "Economy"}, {"name": "Bank"}],
        "organisation": [{"name": "A"}, {"symbols": [{"ticker": "2330", "exchange": "XTAI"}, {"ticker": "A"},
            {"ticker": "IBM", "exchange": "xnys"}, {"ticker": "A"}, {"exchange": "XNYS"}]}]})";
    const QByteArray second = R"({"uri": "urn:x:1", "version": "3", "versioncreated": "2004-01-01T00:00:00Z",
        "headlines": [{"role": "sub", "value": "no"}, {"role": "main", "value": "Bank cuts <rates>"}],
        "bodies": [{"role": "html", "contenttype": "text/html", "value": "<p>no</p>"},
                   {"contenttype": "text/plain", "value": "First\nline.\n    Second <p>."}],
        "subjects": [{"name": "Economy"}],
        "organisations": [{"symbols": [{"ticker": "2330", "exchange": "XTAI"}, {"ticker": "A"},
            {"ticker": "IBM", "exchange": "XNYS"}]}]})";
    const QByteArray third =
        QByteArray(second).replace("versioncreated", "versionCreated").replace("contenttype", "contentType");
    for (const QByteArray& source : {first, second, third}) {
        const auto out = readAll(source);
        ASSERT_EQ(out.complaints(), u"");
        EXPECT_EQ(taken(out.news()),
                  u"urn:x:1|Bank cuts <rates>|First line.@@@@Second <p>.|Economy|3|"
                  "16/2330 0/A 1/IBM"_s);
        EXPECT_EQ(out.news().time, 1072915200);
    }
}

TEST(Ninjs, FindsTitleAndStoryWhereTheyAre) {
    const std::vector<std::pair<QByteArray, QString>> rows{
        {R"("headline": "H")", u"H|"_s},
        {R"("headline": "H", "body_text": "")", u"H|"_s},
        {R"("headline": "H", "body_xhtml": "<p>a</p><p>b &amp; c</p>")", u"H|a@@@@b & c"_s},
        {R"("headline": "H", "body_html": "a<br>b", "body_xhtml": " ")", u"H|a@@@@b"_s},
        {R"("headline": "H", "body_new": "a\n\nb")", u"H|a@@@@b"_s},
        {R"("headline": "H", "bodies": [{"value": "<p>a</p>"}])", u"H|a"_s},
        {R"("headline": "H", "bodies": [{"role": "text", "value": "<p>a</p>"}])", u"H|<p>a</p>"_s},
        {R"("headline": "H", "bodies": [{"role": "text", "value": "a"}, {"role": "text", "value": "b"}])",
         u"H|a"_s},
        {R"("headline": "H", "description_text": "D")", u"H|D"_s},
        {R"("headline": " ", "title": "T")", u"T|"_s},
        {R"("headlines": [{"value": "<b>H</b>", "contenttype": "text/html"}])", u"H|"_s},
        {R"("headline_short": "H")", u"H|"_s},
        {R"("body_text": "First paragraph\nwraps.\n\nSecond.")",
         u"First paragraph wraps.|First paragraph wraps.@@@@Second."_s},
        {R"("description_text": "D")", u"D|D"_s},
        {R"("headline": "H", "storyFollows": true)", u"H|-"_s},
        {R"("headline": "H", "storyFollows": true, "body_text": "B")", u"H|B"_s},
        {R"("headline": "H", "storyFollows": "true")", u"H|"_s},
        {R"("slugline": "bank-rates")", u"bank-rates|"_s},
        {R"("type": "picture", "headline": "H", "descriptions": [{"role": "caption", "value": "C"}])",
         u"H|C"_s},
        {R"("headline": "H\ud800\u0000\u0007!")", u"H\ufffd !"_s.remove(u' ') + u"|"_s},
        {R"("headline": null, "title": "T", "subject": null)", u"T|"_s},
    };
    for (const auto& [fields, expected] : rows) {
        const auto out = readAll(record(fields));
        ASSERT_EQ(out.items.size(), 1U) << fields.toStdString() << qPrintable(out.complaints());
        EXPECT_EQ(out.news().title + u'|' + out.news().story.value_or(u"-"_s), expected)
            << fields.toStdString();
    }
}

TEST(Ninjs, SaysWhyItRejects) {
    const std::vector<std::pair<QByteArray, QString>> rows{
        {R"({"headline": "H"})", u"The record has no “uri”."_s},
        {R"({"uri": " "})", u"The record has no “uri”."_s},
        {R"({"uri": 1})", u"The field “uri” must be a text, not a number."_s},
        {record(R"("version": 1.2)"), u"The field “version” must be a text, not a number."_s},
        {record(R"("versionCreated": [])"), u"The field “versionCreated” must be a text, not a list."_s},
        {record(R"("body_x": {})"), u"The field “body_x” must be a text, not an object."_s},
        {record(R"("headline": true)"), u"The field “headline” must be a text, not true or false."_s},
        {record(R"("subject": "x")"), u"The field “subject” must be a list, not a text."_s},
        {record(R"("subjects": ["x"])"), u"The field “subjects[0]” must be an object, not a text."_s},
        {record(R"("bodies": [{"value": "x"}, {"value": 1}])"),
         u"The field “bodies[1].value” must be a text, not a number."_s},
        {record(R"("organisation": [{"symbols": [{"ticker": 2330}]}])"),
         u"The field “organisation[0].symbols[0].ticker” must be a text, not a number."_s},
        {record(R"("headline": "H", "pubStatus": "withheld")"),
         u"The record is not for publication: “pubstatus” is “withheld”."_s},
        {record(R"("headline": "H", "embargoed": "2199-01-01")"),
         u"The record is under embargo: “embargoed” is “2199-01-01”."_s},
        {record(R"("headline": "H", "embargoedUntil": "Next Monday")"),
         u"The record is under embargo: “embargoeduntil” is “Next Monday”."_s},
        {record(R"("type": "picture", "description_text": "D")"),
         u"The record has no title and no text to make one from."_s},
        {R"({"uri": "u", "headline": "H"})",
         u"The record has no time (“versioncreated”, “firstcreated” or “contentcreated”)."_s},
        {R"({"uri": "u", "headline": "H", "versioncreated": "Last Tuesday", "firstcreated": "x"})",
         u"The record has no time that can be read: “versioncreated” is “Last Tuesday”."_s},
        {R"({"uri": ")" + QByteArray(2000, 'x') + R"(", "headline": "H"})",
         u"The “uri” of the record is longer than 1000 characters."_s},
    };
    for (const auto& [source, expected] : rows) {
        const auto out = readAll(source);
        EXPECT_EQ(out.items.size(), 0U);
        EXPECT_EQ(out.complaints(), u"line 1: "_s + expected);
    }
}

TEST(Ninjs, TimesAndVersions) {
    const auto first =
        readAll(R"({"uri": "u", "headline": "H", "versioncreated": "?", "firstcreated": "2004-01-01"})");
    EXPECT_EQ(first.news().time, 1072915200);
    EXPECT_EQ(first.news().version, 1072915200);
    EXPECT_EQ(readAll(record(R"("headline": "H", "version": "1.2")")).news().version, 1);
    EXPECT_EQ(readAll(record(R"("headline": "H", "version": "99999999999")")).news().version, 1072915200);
    EXPECT_EQ(readAll(record(R"("headline": "H", "version": "-5")")).news().version, 1072915200);
    EXPECT_EQ(readAll(record(R"("headline": "H", "embargoed": "2004-01-01")")).items.size(), 1U);
    ReadOptions options;
    options.service = 52;
    EXPECT_EQ(readAll(record(R"("headline": "H")"), options).news().service, 52);
}

TEST(Ninjs, IsReadAsLinesListOrDocument) {
    const QByteArray one = record(R"("headline": "One")");
    const QByteArray two = QByteArray(record(R"("headline": "Two")")).replace("urn:x:1", "urn:x:2");
    const QByteArray pretty = QByteArray(one).replace(", ", ",\n  ").replace("{", "{\n  ");
    const std::vector<std::pair<QByteArray, std::size_t>> sources{
        {one, 1},
        {"\xef\xbb\xbf" + one + "\r\n\r\n" + two + "\r\n", 2},
        {"\n\n" + one + "\n" + two, 2},
        {pretty, 1},
        {"\xef\xbb\xbf\n" + pretty + "\n", 1},
        {"[" + one + "," + two + "]\n", 2},
        {"\xef\xbb\xbf [\n" + pretty + ",\n" + two + "\n]", 2},
        {"[]", 0},
        {QStringEncoder(QStringEncoder::Utf16LE)(QString(QChar::ByteOrderMark) +
                                                 QString::fromUtf8(one + '\n' + two)),
         2},
        {QStringEncoder(QStringEncoder::Utf16BE)(QString(QChar::ByteOrderMark) + QString::fromUtf8(pretty)),
         1},
    };
    for (const auto& [source, count] : sources) {
        const auto out = readAll(source);
        EXPECT_EQ(out.items.size(), count) << source.toStdString();
        EXPECT_EQ(out.complaints() + out.refusal, u"") << source.toStdString();
    }
}

TEST(Ninjs, AWithdrawalSaysWhyAndMayHaveNoTitle) {
    const std::vector<std::pair<QByteArray, QString>> rows{
        {R"("headline": "H", "pubstatus": "canceled", "ednote": "Not\ntrue.")", u"H|Not true."_s},
        {R"("pubStatus": "canceled", "body_text": "Text.")", u"|"_s},
        {R"("headline": "H", "pubstatus": "usable", "ednote": "n")", u"H|-"_s},
    };
    for (const auto& [fields, expected] : rows) {
        const auto out = readAll(record(fields));
        ASSERT_EQ(out.items.size(), 1U) << fields.toStdString() << qPrintable(out.complaints());
        EXPECT_EQ(out.news().title + u'|' + out.news().withdrawn.value_or(u"-"_s), expected)
            << fields.toStdString();
    }
}

TEST(Ninjs, OneBrokenRecordSpoilsNoOther) {
    const QByteArray good = record(R"("headline": "H")");
    const auto lines = readAll(good + "\n{\"uri\": \n42\n" + good + "\n[1]\n{}{}\n" + good);
    EXPECT_EQ(lines.items.size(), 3U);
    ASSERT_EQ(lines.rejections.size(), 4U);
    EXPECT_EQ(lines.rejections.at(0).place, u"line 2");
    EXPECT_EQ(lines.rejections.at(1).reason, u"The record is not a JSON object.");
    EXPECT_EQ(lines.rejections.at(3).place, u"line 6");
    const auto firstBroken = readAll("{\"uri\": \"\n" + good + "\n");
    EXPECT_EQ(firstBroken.items.size(), 1U);
    EXPECT_EQ(firstBroken.rejections.size(), 1U);

    const auto list = readAll("[" + good + R"(, {"uri" 1}, 7, "a,]\"", )" + good + ",, " + good + "] tail");
    EXPECT_EQ(list.items.size(), 3U);
    ASSERT_EQ(list.rejections.size(), 5U);
    EXPECT_EQ(list.rejections.at(0).place, u"item 2");
    EXPECT_EQ(list.rejections.at(4).reason, u"There is something behind the end of the list.");
    EXPECT_EQ(readAll("[" + good).complaints(), u"item 1: The list has no end: “]” is missing.");
}

TEST(Ninjs, WhatIsTooLongIsRejectedAndReadingGoesOn) {
    QByteArray source;
    for (int i = 0; i < 10; ++i)
        source += record(R"("headline": "H")") + '\n';
    ReadOptions options;
    options.limits.record = 40;
    const auto out = readAll(source + "{}\n", options);
    EXPECT_EQ(out.items.size(), 0U);
    ASSERT_EQ(out.rejections.size(), 11U);
    EXPECT_EQ(out.rejections.front().reason, u"The line is longer than 40 bytes.");
    EXPECT_EQ(out.rejections.back().reason, u"The record has no “uri”.");
    options.limits.file = 40;
    EXPECT_EQ(readAll("[" + record(R"("headline": "H")") + "]", options).refusal,
              u"The file is larger than 40 bytes; only JSON with one record per line may be.");
}

}  // namespace
}  // namespace wirepane
