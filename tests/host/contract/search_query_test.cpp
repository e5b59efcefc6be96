// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/search_query.h"

#include "host/contract/query/query_symbol.h"
#include "tests/support/qt_printers.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

// As an expression in brackets; texts in the field that they are looked for in.
QString shown(const QueryNode& node) {
    QStringList parts;
    for (const QueryNode& part : node.parts)
        parts += shown(part);
    const auto fielded = [&](const QString& text) {
        return QStringList{text, u"title "_s + text, u"story "_s + text}.at(int(node.field));
    };
    switch (node.kind) {
        case QueryNode::Kind::Text:
            return fielded(u'<' + node.text + u'>' + (node.isCut ? u"*"_s : u""_s));
        case QueryNode::Kind::Near:
            return u'{' + parts.join(u" %1 "_s.arg(node.near)) + u'}';
        case QueryNode::Kind::Topic:
            return u"topic "_s + node.text;
        case QueryNode::Kind::Service:
            return u"service "_s + node.text;
        case QueryNode::Kind::Symbol:
            return u"symbol "_s + node.text;
        case QueryNode::Kind::Days:
            return QStringList{node.days.from ? u"from"_s : u""_s, node.days.to ? u"to"_s : u""_s}.join(
                       u'-') +
                   u' ' + node.text;
        case QueryNode::Kind::State:
            return u"is %1"_s.arg(int(node.state));
        case QueryNode::Kind::All:
            return u'(' + parts.join(u" & "_s) + u')';
        case QueryNode::Kind::Any:
            return u'(' + parts.join(u" | "_s) + u')';
        case QueryNode::Kind::Not:
            return u"not "_s + parts.front();
    }
    return {};
}

struct Case {
    QString query;
    QString read;
};

TEST(SearchQuery, ReadsAsItsGrammarSays) {
    const std::vector<Case> cases{
        {u"gold"_s, u"<gold>"_s},
        {u"  gold \t rises\n"_s, u"(<gold> & <rises>)"_s},
        {u"a -b NEAR c | d"_s, u"((<a> & not {<b> 10 <c>}) | <d>)"_s},
        {u"a|b　c"_s, u"(<a> | (<b> & <c>))"_s},
        {u"((a)) (b|c)"_s, u"(<a> & (<b> | <c>))"_s},
        {u"\"a b\"c\"d\"*"_s, u"(<a b> & <c> & <d>*)"_s},
        {u"us-china 5% c++ 10:30 TSMC: gol*"_s,
         u"(<us-china> & <5%> & <c++> & <10:30> & <TSMC:> & <gol>*)"_s},
        {u"台積電（2330）｜－“法人 說”"_s, u"((<台積電> & <2330>) | not <法人 說>)"_s},
        {u"a NEAR/0 \"b c\"* near NEAR*"_s, u"({<a> 0 <b c>*} & <near> & <NEAR>*)"_s},
        {u"Title:(a -b) STORY：\"c d\" title:e*"_s,
         u"((title <a> & not title <b>) & story <c d> & title <e>*)"_s},
        {u"title:(a NEAR/3 b) title:\"to:x\""_s, u"({title <a> 3 title <b>} & title <to:x>)"_s},
        {u"topic:\"a b\" -service:1 symbol:22:0700"_s, u"(topic a b & not service 1 & symbol 22:0700)"_s},
        {u"from:2026 to:today on:-3d"_s, u"(from- 2026 & -to today & from-to -3d)"_s},
        {u"is:unread IS:Starred -is:\"read\" is:withdrawn"_s, u"(is 0 & is 2 & not is 1 & is 3)"_s},
        {u"and \"OR\" ANDY"_s, u"(<and> & <OR> & <ANDY>)"_s}};
    for (const Case& each : cases) {
        const ReadQuery read = readQuery(each.query);
        ASSERT_TRUE(std::holds_alternative<QueryNode>(read)) << each.query.toStdString();
        EXPECT_EQ(shown(std::get<QueryNode>(read)), each.read) << each.query.toStdString();
    }
}

TEST(SearchQuery, NamesThePlaceOfAFault) {
    using Kind = QueryFaultKind;
    struct Bad {
        QString query;
        Kind kind;
        qsizetype position;
        QString found;
    };
    const std::vector<Bad> cases{{u" \n"_s, Kind::Empty, 0, u""_s},
                                 {u"a | "_s, Kind::Missing, 4, u""_s},
                                 {u"| a"_s, Kind::Missing, 0, u"|"_s},
                                 {u"a - b"_s, Kind::Missing, 2, u"-"_s},
                                 {u"a --b"_s, Kind::Missing, 2, u"-"_s},
                                 {u"a \" \""_s, Kind::Missing, 2, u"\" \""_s},
                                 {u"a *"_s, Kind::Missing, 2, u"*"_s},
                                 {u"()"_s, Kind::Missing, 1, u")"_s},
                                 {u"a \"b"_s, Kind::OpenQuote, 2, u"\""_s},
                                 {u"a (b (c) "_s, Kind::OpenBracket, 2, u"("_s},
                                 {u"a (b | "_s, Kind::OpenBracket, 2, u"("_s},
                                 {u"(a) b) c"_s, Kind::CloseBracket, 5, u")"_s},
                                 {u")"_s, Kind::CloseBracket, 0, u")"_s},
                                 {u"a titel:b"_s, Kind::UnknownField, 2, u"titel"_s},
                                 {u"https://x"_s, Kind::UnknownField, 0, u"https"_s},
                                 {u"a title: b"_s, Kind::FieldValue, 2, u"title"_s},
                                 {u"topic:(a)"_s, Kind::FieldValue, 0, u"topic"_s},
                                 {u"topic:a*"_s, Kind::FieldValue, 0, u"topic"_s},
                                 {u"title:-a"_s, Kind::FieldValue, 0, u"title"_s},
                                 {u"a is:new"_s, Kind::FieldValue, 2, u"is"_s},
                                 {u"is:"_s, Kind::FieldValue, 0, u"is"_s},
                                 {u"symbol:256:1"_s, Kind::FieldValue, 0, u"symbol"_s},
                                 {u"title:(a story:b)"_s, Kind::FieldWithin, 9, u"story"_s},
                                 {u"on:2026-02-30"_s, Kind::Day, 3, u"2026-02-30"_s},
                                 {u"to:20260000"_s, Kind::Day, 3, u"20260000"_s},
                                 {u"NEAR a"_s, Kind::Near, 0, u"NEAR"_s},
                                 {u"a NEAR"_s, Kind::Near, 2, u"NEAR"_s},
                                 {u"a NEAR -b"_s, Kind::Near, 2, u"NEAR"_s},
                                 {u"a NEAR (b)"_s, Kind::Near, 2, u"NEAR"_s},
                                 {u"title:a NEAR b"_s, Kind::Near, 8, u"NEAR"_s},
                                 {u"a NEAR b NEAR/2 c"_s, Kind::Near, 9, u"NEAR/2"_s},
                                 {u"a NEAR/1001 b"_s, Kind::NearNumber, 2, u"NEAR/1001"_s},
                                 {u"a NEAR/+1 b"_s, Kind::NearNumber, 2, u"NEAR/+1"_s},
                                 {u"a OR b"_s, Kind::OperatorWord, 2, u"OR"_s},
                                 {u"x"_s.repeated(2001), Kind::TooLong, 2000, u"2000"_s},
                                 {u"x "_s.repeated(201), Kind::TooMany, 400, u"x"_s},
                                 {u"("_s.repeated(900), Kind::TooDeep, 20, u"("_s}};
    for (const Bad& each : cases) {
        const ReadQuery read = readQuery(each.query);
        const std::string name = each.query.left(40).toStdString();
        ASSERT_TRUE(std::holds_alternative<QueryFault>(read)) << name;
        const QueryFault& fault = std::get<QueryFault>(read);
        EXPECT_EQ(int(fault.kind), int(each.kind)) << name;
        EXPECT_EQ(fault.position, each.position) << name;
        EXPECT_EQ(fault.found, each.found) << name;
    }
    for (const QString& atLimit : {u"x "_s.repeated(200), u"("_s.repeated(20) + u'x' + u")"_s.repeated(20)})
        EXPECT_TRUE(std::holds_alternative<QueryNode>(readQuery(atLimit))) << atLimit.toStdString();
}

// As one counts them, also behind ideographs of two code units and with the signs that input methods write.
TEST(SearchQuery, CountsThePlaceOfAFaultInCharacters) {
    const std::vector<std::pair<QString, int>> cases{{u" "_s, 1},
                                                     {u"𠮷野家 OR 吉野家"_s, 5},
                                                     {u"𠮷田　𠮷田　）"_s, 7},
                                                     {u"𠮷 （title:(𠮷 from:today)）"_s, 13},
                                                     {u"“𠮷” “gold"_s, 5},
                                                     {u"gold ｜ ｜ 𠮷"_s, 8},
                                                     {u"𠮷 on：明天"_s, 6},
                                                     {u"𠮷 －－gold"_s, 3},
                                                     {u"𠮷 |"_s, 4},
                                                     {u"story:(gold (mine titel:x))"_s, 19},
                                                     {u"𠮷"_s.repeated(1001), 1001}};
    for (const auto& [query, character] : cases) {
        const ReadQuery read = readQuery(query);
        ASSERT_TRUE(std::holds_alternative<QueryFault>(read)) << query.left(40).toStdString();
        EXPECT_EQ(std::get<QueryFault>(read).character, character) << query.left(40).toStdString();
    }
}

// A headline has no story yet, and is looked at as it comes.
TEST(SearchQuery, ForHeadlinesRefusesWhatNeedsMore) {
    const std::vector<std::pair<QString, QString>> cases{
        {u"a story:b"_s, u"2 story"_s},     {u"a -STORY:(b)"_s, u"3 STORY"_s},
        {u"(a from:today)"_s, u"3 from"_s}, {u"to:2026"_s, u"0 to"_s},
        {u"-is:starred"_s, u"1 is"_s},      {u"on:"_s, u"0 on"_s},
        {u"a gol* b"_s, u"5 *"_s},          {u"title:\"a b\"＊"_s, u"11 ＊"_s},
        {u"a NEAR/5 b"_s, u"2 NEAR/5"_s}};
    for (const auto& [query, place] : cases) {
        const ReadQuery read = readQuery(query, QueryUse::Headlines);
        ASSERT_TRUE(std::holds_alternative<QueryFault>(read)) << query.toStdString();
        const QueryFault& fault = std::get<QueryFault>(read);
        EXPECT_EQ(fault.kind, QueryFaultKind::NotOfHeadlines) << query.toStdString();
        EXPECT_EQ(QString::number(fault.position) + u' ' + fault.found, place);
    }
    const QString known = u"a \"b c\" -(d | title:e) topic:f service:1 -symbol:22:0700 near"_s;
    EXPECT_TRUE(std::holds_alternative<QueryNode>(readQuery(known, QueryUse::Headlines)));
    // Alerts wait for stories, and for nothing else.
    for (const auto& [query, place] : cases) {
        const bool isOfStories = query.contains(u"story:"_s, Qt::CaseInsensitive);
        EXPECT_EQ(std::holds_alternative<QueryNode>(readQuery(query, QueryUse::Alerts)), isOfStories)
            << query.toStdString();
    }
}

// What an excluded or bracketed part says can be shown and taken out by its characters.
TEST(SearchQuery, PartsKnowTheirCharacters) {
    const QString query = u"title:gold -\"a b\" (c | d) e NEAR/2 f"_s;
    const ReadQuery read = readQuery(query);
    QStringList said;
    for (const QueryNode& part : std::get<QueryNode>(read).parts)
        said += query.sliced(part.position, part.length);
    EXPECT_EQ(said, QStringList({u"title:gold"_s, u"-\"a b\""_s, u"(c | d)"_s, u"e NEAR/2 f"_s}));
}

TEST(SearchQuery, DaysAreLocalAndWhole) {
    const QDate today(2026, 3, 2);
    const auto span = [&](const QString& text) {
        const auto day = readQueryDay(text);
        const Moments moments = momentsOf({day, day}, today);
        return QDateTime::fromSecsSinceEpoch(moments.first).toString(u"yyyyMMdd hhmmss"_s) + u" - "_s +
               QDateTime::fromSecsSinceEpoch(moments.last).toString(u"yyyyMMdd hhmmss"_s);
    };
    EXPECT_EQ(span(u"today"_s), u"20260302 000000 - 20260302 235959"_s);
    EXPECT_EQ(span(u"-2w"_s), u"20260216 000000 - 20260216 235959"_s);
    EXPECT_EQ(span(u"2024-02"_s), u"20240201 000000 - 20240229 235959"_s);
    EXPECT_EQ(span(u"1999"_s), u"19990101 000000 - 19991231 235959"_s);
    for (const QString& none : {u""_s, u"-d"_s, u"-3m"_s, u"-123456d"_s, u"1899"_s, u"2026-3-2"_s,
                                u"2026-03-02-"_s, u"2026-00"_s, u"-+3d"_s, u"Today"_s})
        EXPECT_FALSE(readQueryDay(none)) << none.toStdString();
}

TEST(SearchQuery, CodesOfASymbol) {
    const QStringList forms{u"700"_s, u"0700"_s, u"00700"_s, u"000700"_s};
    for (const QString& text : {u"700"_s, u"0700"_s, u"00700.HK"_s, u"22:00700.hk"_s}) {
        QStringList codes = readQuerySymbol(text)->codes;
        for (const QString& form : forms)
            EXPECT_TRUE(codes.contains(form)) << text.toStdString() << ' ' << form.toStdString();
        EXPECT_EQ(readQuerySymbol(text)->market.has_value(), text.startsWith(u"22:"_s));
    }
    EXPECT_EQ(readQuerySymbol(u"brk.b")->codes, QStringList({u"BRK.B"_s, u"BRK"_s}));
    EXPECT_EQ(readQuerySymbol(u"000")->codes,
              QStringList({u"000"_s, u"0"_s, u"0000"_s, u"00000"_s, u"000000"_s}));
    EXPECT_FALSE(readQuerySymbol(u"騰訊")->isNumber);
    EXPECT_FALSE(readQuerySymbol(u""));
}

}  // namespace
}  // namespace wirepane
