// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/wire_form.h"

#include "tests/support/qt_printers.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

struct Row {
    QStringView text;
    QStringView expected;
};

QString shown(const QString& text) {
    return QLatin1StringView("[") + text + u']';
}

TEST(WireForm, ParagraphsAreMarkedAndWrappedLinesJoined) {
    const std::vector<Row> rows{
        {u"", u""},
        {u" \n\t\r\n ", u""},
        {u"one line", u"one line"},
        {u"a wrapped\nline", u"a wrapped line"},
        {u"a wrapped  \nline\r\nof three\rlines", u"a wrapped line of three lines"},
        {u"first\n\nsecond", u"first@@@@second"},
        {u"first\n \t \n\n\nsecond", u"first@@@@second"},
        {u"first\n    second\ngoes on\n Reuter", u"first@@@@second goes on@@@@Reuter"},
        {u"\n\n  first\n", u"first"},
        {u"first\ttab\vnext\fpage\u2028line\u2029end", u"first tab next page line end"},
        {u"columns   stay  apart", u"columns   stay  apart"},
        // Chinese: no blank at a wrapped line, nor where Latin meets it; a full-width indent starts a
        // paragraph.
        {u"台積電今日\n公布營收", u"台積電今日公布營收"},
        {u"台積電\nTSMC\n公布", u"台積電TSMC公布"},
        {u"營收，\n成長", u"營收，成長"},
        {u"\u3000\u3000第一段\n\u3000\u3000第二段", u"第一段@@@@第二段"},
        {u"\U00020000字\n\U00020001", u"\U00020000字\U00020001"},
        {u"한국어는\n띄어쓰기", u"한국어는 띄어쓰기"},
        // A mark in the text never reads as a mark of ours.
        {u"a@@@@b", u"a@@ @@b"},
        {u"@@@@@@@@@", u"@@ @@ @@ @@@"},
        {u"a@@@b", u"a@@@b"},
        {u"ends with @\n\n@ starts", u"ends with @ @@@@ @ starts"},
        {u"@@\n@@", u"@@ @@"},
        {u"@\u0001@\u0002@\u0003@", u"@@ @@"},
        // Tables that are set with blanks.
        {u"Figures:\nItem        Jan     Feb\n(NT$)\nSales       1,200   (30)\nas told\nabove.",
         u"Figures:@@@@Item        Jan     Feb@@@@(NT$)@@@@Sales       1,200   (30)@@@@as told above."},
        {u"　　　　　當月稅前  當月稅後\n　　　　　　(億元)　　(億元)\n兆豐金控　　 49.43     41.58\n註:以上",
         u"　　　　　當月稅前  當月稅後@@@@　　　　　　(億元)　　(億元)@@@@兆豐金控　　 49.43     "
         u"41.58@@@@註:以上"},
        {u"                 最近一月\n科目　　　　 　 114年11月\n============     "
         u"=========\n營業收入　　　　　2,444",
         u"                 最近一月@@@@科目　　　　 　 114年11月@@@@============     "
         u"=========@@@@營業收入　　　　　2,444"},
        {u"    Fund            USD\n    Longchamp Return\n\n      Trust       14,052\n    ------",
         u"Fund            USD@@@@Longchamp Return@@@@  Trust       14,052@@@@------"},
        {u"a\tb\nlong label\tc\n營收\td", u"a       b@@@@long label      c@@@@營收    d"},
        {u"單位：億元\n--------11月損益--------\n營收", u"單位：億元@@@@--------11月損益--------@@@@營收"},
        {u"one   1\ntwo   2", u"one   1@@@@two   2"},
        {u"before\n====\nafter", u"before@@@@====@@@@after"},
        // These are none.
        {u"One ends.  Two\nends.  Three", u"One ends.  Two ends.  Three"},
        {u"only one  line\nof columns", u"only one  line of columns"},
        {u"one  line\nof a text that goes on for longer than lines between those of a table\nand  another",
         u"one  line of a text that goes on for longer than lines between those of a table and  another"},
        // What must not be shown.
        {u"nul\u0001bell\u0007del\u007fc1\u0090.", u"nulbelldelc1."},
        {u"evil\u202egnp.exe\u2066.", u"evilgnp.exe."},
        {u"\ufeffbyte order", u"byte order"},
        {u"<b>not markup</b> &amp;", u"<b>not markup</b> &amp;"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(shown(wireForm(row.text)), shown(row.expected.toString()))
            << qPrintable(row.text.toString());
}

TEST(WireForm, BrokenTextBecomesReplacementCharacters) {
    const char16_t high = 0xd840;
    const char16_t low = 0xdc00;
    EXPECT_EQ(wireForm(u'a' + QString(QChar(high))), u"a\ufffd");
    EXPECT_EQ(wireForm(QString(QChar(low)) + u'a'), u"\ufffda");
    EXPECT_EQ(wireForm(QString(QChar(low)) + QChar(high)), u"\ufffd\ufffd");
    EXPECT_EQ(titleLine(QString(QChar(high)) + u'x'), u"\ufffdx");
    EXPECT_EQ(wireForm(QString(QChar(0)) + u'a'), u"a");
}

// Whatever the text: no line break, no empty paragraph, and marks only between paragraphs.
TEST(WireForm, HoldsItsRulesOnAnyMixture) {
    const QString alphabet = QStringLiteral("a@@@ \n\r字\u3000");
    quint32 state = 1;
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (int i = 0; i < 24; ++i) {
            state = state * 1664525 + 1013904223;
            text += alphabet.at((state >> 16) % alphabet.size());
        }
        const QString wire = wireForm(text);
        EXPECT_FALSE(wire.contains(u'\n') || wire.contains(u'\r'));
        const QStringList paragraphs = wire.isEmpty() ? QStringList() : wire.split(QStringLiteral("@@@@"));
        for (const QString& paragraph : paragraphs)
            EXPECT_FALSE(paragraph.trimmed().isEmpty()) << qPrintable(wire);
        QString kept = wire;
        EXPECT_EQ(kept.remove(QStringLiteral("@@@@")).count(u'@'), text.count(u'@')) << qPrintable(wire);
    }
}

TEST(WireForm, TitlesAreOneCleanLine) {
    EXPECT_EQ(titleLine(u"  two\n lines\tand \u3000 blanks\u0001 "), u"two lines and blanks");
    EXPECT_EQ(titleLine(QString(500, u'x')).size(), 500);
    const QString cut = titleLine(QStringLiteral("word ").repeated(1000));
    EXPECT_LE(cut.size(), 500);
    EXPECT_TRUE(cut.endsWith(QStringLiteral("word\u2026")));
}

TEST(WireForm, AStoryLendsItsFirstParagraphAsTitle) {
    EXPECT_EQ(titleFromStory(u"Short one.@@@@Second."), u"Short one.");
    EXPECT_EQ(titleFromStory(u""), u"");
    const QString latin = titleFromStory(
        u"The Bank of England said it forecast a shortage of around 250 mln stg in the money market today.");
    EXPECT_EQ(latin, u"The Bank of England said it forecast a shortage of around 250 mln stg in the…");
    const QString chinese = titleFromStory(QString(100, QChar(u'字')));
    EXPECT_EQ(chinese, QString(79, QChar(u'字')) + QChar(u'…'));
    const QString astral = titleFromStory(u'a' + QStringLiteral("\U00020000").repeated(60));
    EXPECT_EQ(astral, u'a' + QStringLiteral("\U00020000").repeated(39) + QChar(u'…'));
}

}  // namespace
}  // namespace wirepane
