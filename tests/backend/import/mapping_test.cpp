// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapping.h"

#include "tests/backend/import/read_all.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

const QString announcements =
    uR"({"identity": ["日", "時", "號"], "identity_prefix": "a:", "title": "主旨",
    "story": "說明", "lines": "numbered", "service": 16, "category": {"columns": "款", "names": {"51": "其他"}},
    "time": {"date": "日", "date_form": "yMMdd", "years_from": 1911, "clock": "時", "clock_form": "HHmmss",
             "zone": "+08:00"}, "symbols": {"columns": "號", "market": 16}, "encodings": ["UTF-8", "windows-950"]})"_s;

ReadOptions with(const QString& mapping) {
    ReadOptions options;
    const Result<Mapping> parsed = Mapping::parse(mapping.toUtf8());
    EXPECT_TRUE(parsed) << (parsed ? "" : qPrintable(sentence(parsed.error())));
    if (parsed)
        options.mapping = std::make_shared<const Mapping>(parsed.value());
    return options;
}

TEST(Mapping, ReadsRowsOfJsonAndOfCsvAlike) {
    const QString json =
        uR"([{"日": "1141222", "時": 618, "號": "2330", "主旨 ": "公告\r\n事&#12070;", "款": "51",
        "說明": "1.日期:114/12/19\n2.人員(如:執行\n長):無\n3.5%不變\n(2)甲"}])"_s;
    const QString csv =
        u"號,日,時,款,主旨,說明\r\n2330,1141222,618,51,\"公告\r\n事&#12070;\",\"1.日期:114/12/19\n2.人員(如:執行\n長):無\n3.5%不變\n(2)甲\"\r\n"_s;
    QStringEncoder page("windows-950");
    for (const QByteArray& source : {json.toUtf8(), csv.toUtf8(), QByteArray(page(csv))}) {
        const auto out = readAll(source, with(announcements));
        ASSERT_EQ(out.items.size(), 1U) << qPrintable(out.complaints() + out.refusal);
        const NewsItem& news = out.news();
        EXPECT_EQ(news.identity, u"a:1141222|618|2330");
        EXPECT_EQ(news.service, 16);
        EXPECT_EQ(news.title, u"公告事⼦"_s.replace(u'⼦', QChar(12070)));
        EXPECT_EQ(news.time, 1766333178);  // 2025-12-22 00:06:18 +08:00
        EXPECT_EQ(news.story, u"1.日期:114/12/19@@@@2.人員(如:執行長):無3.5%不變@@@@(2)甲"_s);
        EXPECT_EQ(news.category, u"其他");
        EXPECT_EQ(news.related, (std::vector<CSymbolInfo>{{16, u"2330"_s}}));
    }
}

struct TimeCase {
    QStringView time;  // the mapping's time
    QStringView date;
    QStringView clock;
    std::int64_t moment;  // -1: cannot be read
};

TEST(Mapping, ReadsTheFormsOfTimes) {
    const std::vector<TimeCase> cases{
        {u"{\"date\":\"d\"}", u"2019-01-04", u"", 1546560000},
        {u"{\"date\":\"d\",\"zone\":\"Asia/Taipei\"}", u"2019-01-04", u"", 1546531200},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\"}", u"2019-01-04T00:00:00Z", u"", 1546560000},
        // The mapping's zone is that of every time whose text states none.
        {u"{\"date\":\"d\",\"zone\":\"+08:00\"}", u"2019-01-04 09:05:00", u"", 1546563900},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\"}", u"2019-01-04T00:00:00", u"", 1546531200},
        {u"{\"date\":\"d\",\"zone\":\"America/New_York\"}", u"2019-07-04 09:00", u"", 1562245200},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\"}", u"Fri, 04 Jan 2019 09:05:00", u"", 1546563900},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\"}", u"Fri, 04 Jan 2019", u"", 1546531200},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\"}", u"Fri, 04 Jan 2019 09:05:00 GMT", u"", 1546592700},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\"}", u"2019-01-04 09:05+01:00", u"", 1546589100},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\",\"clock\":\"c\",\"clock_form\":\"H:mm\"}", u"Fri, 04 Jan 2019",
         u"9:05", 1546563900},
        {u"{\"date\":\"d\",\"zone\":\"+08:00\",\"clock\":\"c\",\"clock_form\":\"H:mm\"}", u"2019-01-04 00:00",
         u"9:05", 1546531200},
        {u"{\"date\":[\"none\",\"d\"]}", u"Fri, 04 Jan 2019 01:00:00 GMT", u"", 1546563600},
        {u"{\"date\":\"d\",\"date_form\":\"d/M/yyyy\"}", u"4/01/2019", u"", 1546560000},
        {u"{\"date\":\"d\",\"date_form\":\"yyyy年M月d日\"}", u"2019年1月4日", u"", 1546560000},
        {u"{\"date\":\"d\",\"date_form\":\"yyMMdd\",\"years_from\":2000,\"clock\":\"c\",\"clock_form\":\"H:"
         u"mm\"}",
         u"190104", u"9:05", 1546592700},
        {u"{\"date\":\"d\",\"date_form\":\"yMMdd\",\"years_from\":1911,\"clock\":\"c\",\"clock_form\":"
         u"\"HHmmss\"}",
         u"1080104", u"", 1546560000},
        {u"{\"date\":\"d\",\"date_form\":\"yMMdd\",\"years_from\":1911,\"clock\":\"c\",\"clock_form\":"
         u"\"HHmmss\"}",
         u"1080104", u"5", 1546560005},
        {u"{\"date\":\"d\",\"date_form\":\"yMMdd\",\"years_from\":1911,\"clock\":\"c\",\"clock_form\":"
         u"\"HHmmss\"}",
         u"1080104", u"246060", -1},
        {u"{\"date\":\"d\",\"date_form\":\"yMMdd\",\"years_from\":1911}", u"1080230", u"", -1},
        {u"{\"date\":\"d\",\"date_form\":\"yMMdd\",\"years_from\":1911}", u"99999999999990104", u"", -1},
        {u"{\"date\":\"d\",\"date_form\":\"yMMdd\"}", u"1080104", u"", -1},
        {u"{\"date\":\"d\"}", u"soon", u"", -1},
        {u"{\"date\":\"d\"}", u"", u"", -1},
    };
    for (const TimeCase& one : cases) {
        const QString mapping =
            u"{\"identity\":\"i\",\"title\":\"i\",\"time\":%1}"_s.arg(one.time.toString());
        const QString row =
            u"[{\"i\":\"x\",\"d\":\"%1\",\"c\":\"%2\"}]"_s.arg(one.date.toString(), one.clock.toString());
        const auto out = readAll(row.toUtf8(), with(mapping));
        ASSERT_EQ(out.items.size() + out.rejections.size(), 1U);
        EXPECT_EQ(out.items.empty() ? -1 : out.news().time, one.moment) << qPrintable(mapping + row);
    }
}

TEST(Mapping, EncodingsAreReadAsTheWebReadsTheirNames) {
    const auto out = readAll(
        "i,t,d\n1,\x80"
        "100,2019\n",
        with(uR"({"identity": "i", "title": "t", "time": {"date": "d"},
                                       "encodings": ["UTF-8", "iso-8859-1"]})"_s));
    ASSERT_EQ(out.items.size(), 1U) << qPrintable(out.refusal);
    EXPECT_EQ(out.news().title, u"€100"_s);
}

TEST(Mapping, RulesOfServicesSymbolsAndSeparators) {
    const QString mapping =
        uR"({"separator": "\t", "identity": "id", "title": ["title", "short"], "time": {"date": "date"},
        "service": {"columns": "market", "names": {"sii": 16, "otc": "122"}, "otherwise": "1"},
        "category": {"columns": ["kind"], "otherwise": "none"}, "story": ["a", "b"], "lines": "kept",
        "symbols": {"columns": ["codes"], "separator": ";", "market": 1}})"_s;
    const auto out = readAll(
        "id\ttitle\tshort\tdate\tmarket\tkind\ta\tb\tcodes\n"
        "1\tT\t\t2019\tsii\tk\tx\ty\tA; B;A;\n"
        "2\t\tS, s\t2019\t\t\t\t\t\n"
        "3\t\tS\t2019\tother\t\t\t\t\n"
        "4\t\t\t2019\totc\t\t\tText of it.\nnext line\n",
        with(mapping));
    ASSERT_EQ(out.items.size(), 3U) << qPrintable(out.refusal);
    EXPECT_EQ(out.news(0).service, 16);
    EXPECT_EQ(out.news(0).story, u"x@@@@y"_s);
    EXPECT_EQ(out.news(0).related, (std::vector<CSymbolInfo>{{1, u"A"_s}, {1, u"B"_s}}));
    EXPECT_EQ(out.news(1).service, 1);
    EXPECT_EQ(out.news(1).title, u"S, s");
    EXPECT_EQ(out.news(1).category, u"none");
    EXPECT_EQ(out.news(2).title, u"Text of it.");
    EXPECT_EQ(out.complaints(),
              u"line 4: “other” names no service: the mapping has no number for it.\n"
              "line 6: The row has no title and no text to make one from."_s);
}

TEST(Mapping, WhatIsNoTableIsRefused) {
    const std::vector<std::pair<QByteArray, QString>> sources{
        {"", u"The file is empty."_s},
        {"\xef\xbb\xbf \n", u"The file is empty."_s},
        {"<html>\n<body>no</body></html>",
         u"The file is a page of markup, not a table: it starts with “<html> <body>no</body></html>”."_s},
        {"a,b\n1,2\n", u"The table has no column “日”, which the mapping names."_s},
        {u"日,時,號\n1,2,3\n"_s.toUtf8(), u"The table has no column “主旨”, which the mapping names."_s},
    };
    for (const auto& [source, reason] : sources) {
        const auto out = readAll(source, with(announcements));
        EXPECT_EQ(out.refusal, reason);
        EXPECT_TRUE(out.items.empty() && out.rejections.empty());
    }
    const QString onlyUtf8 = QString(announcements).replace(u", \"windows-950\""_s, QString());
    EXPECT_EQ(readAll("\xa4\xe9", with(onlyUtf8)).refusal,
              u"The file is in none of the encodings of the mapping.");
    EXPECT_EQ(readAll("[]", with(announcements)).refusal, u"");
    EXPECT_EQ(readAll("[3, {}, {\"日\": {}}, x", with(announcements)).rejections.size(), 5U);
}

TEST(Mapping, AFaultyMappingIsNamed) {
    const std::vector<std::pair<QStringView, QStringView>> files{
        {u"{", u"The mapping is not valid JSON"},
        {u"[]", u"The mapping is not a JSON object."},
        {u"{\"title\":\"t\",\"time\":{\"date\":\"d\"}}", u"The mapping's “identity” must name the columns"},
        {u"{\"identity\":\"i\",\"time\":{\"date\":\"d\"}}", u"The mapping's “title” must name a column"},
        {u"{\"identity\":\"i\",\"title\":3,\"time\":{\"date\":\"d\"}}",
         u"“title” must be a text or a list of texts"},
        {u"{\"identity\":\"i\",\"title\":\"t\"}", u"“time.date” must name a column"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\",\"date_form\":\"dd.dd\"}}",
         u"“time.date_form” cannot be used"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\",\"clock\":\"c\"}}",
         u"“time.clock_form” and “clock” must be there together"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\",\"zone\":\"Moon\"}}",
         u"“time.zone” is neither"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\"},\"service\":256}",
         u"“service” must be a number from 1 to 255"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\"},\"service\":{\"names\":{\"a\":\"b\"}"
         u"}}",
         u"“service” must name services"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\"},\"lines\":\"long\"}",
         u"“lines” must be"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\"},\"separator\":\"\"}",
         u"“separator” must be one character"},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\"},\"encodings\":\"utf-99\"}",
         u"“encodings” names “utf-99”"},
        {u"{\"identity\":\"i\",\"titel\":\"t\",\"title\":\"t\",\"time\":{\"date\":\"d\"}}",
         u"The mapping's “titel” is not known."},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\",\"zona\":\"UTC\"}}",
         u"The mapping's “time.zona” is not known."},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\"},\"category\":{\"name\":{}}}",
         u"The mapping's “category.name” is not known."},
        {u"{\"identity\":\"i\",\"title\":\"t\",\"time\":{\"date\":\"d\"},\"symbols\":{\"column\":\"c\"}}",
         u"The mapping's “symbols.column” is not known."},
    };
    for (const auto& [file, fault] : files) {
        const Result<Mapping> mapping = Mapping::parse(file.toString().toUtf8());
        ASSERT_FALSE(mapping) << qPrintable(file.toString());
        EXPECT_TRUE(sentence(mapping.error()).contains(fault)) << qPrintable(sentence(mapping.error()));
    }
}

// Cut anywhere: rows before the cut are right, and a cut row is not made up from what is left of it.
TEST(Mapping, ACutTableGivesNoWrongItem) {
    const QByteArray row =
        u"{\"日\":\"1141222\",\"時\":\"70003\",\"號\":\"2330\",\"主旨 \":\"甲\"}"_s.toUtf8();
    const QByteArray table = "[\n" + row + ",\n" + row + "]";
    const ReadOptions options = with(announcements);
    for (qsizetype length = 0; length < table.size(); ++length) {
        const auto out = readAll(table.first(length), options);
        for (std::size_t i = 0; i < out.items.size(); ++i)
            EXPECT_EQ(out.news(i).identity, u"a:1141222|70003|2330") << length;
        EXPECT_TRUE(!out.rejections.empty() || !out.refusal.isEmpty()) << length;
    }
}

}  // namespace
}  // namespace wirepane
