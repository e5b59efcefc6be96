// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/my_rich_edit.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A letter for each kind, as they are numbered.
QString kindsOf(const QString& text) {
    MyRichEdit edit;
    edit.setTypography(Typography());
    edit.showText(text);
    QString kinds;
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next())
        kinds += u"HSPCEAZM"[block.userState()];
    return kinds;
}

QString clipboard() {
    return QApplication::clipboard()->text();
}

}  // namespace

TEST(LineKinds, TellTablesFromProse) {
    const struct {
        const char16_t* text;
        const char16_t* kinds;  // P(aragraph), C(ontinued), E(mpty), A(ligned), Z: the last of those
    } cases[] = {
        {u"", u"E"},
        {u"Words.  More words.  Still more.\nAnd  words", u"PP"},
        {u"figures:\n        Q3    Q2\nNet    0.7   0.6\nthen", u"PAZP"},
        {u"only    one line\nwith columns", u"PP"},
        {u"a\tb\nc\td\n \nend", u"AZEP"},
        {u"名稱　　　金額\n=====\n甲　　　　12", u"AAZ"},
        {u"Net   1\nTax   1\nof which\nlost   2\nleft   0\nend", u"AAAAZP"},
        {u"a    1\n(label)\nand more\nb    2\nA sentence that is no label.\nc    3", u"AAAZPP"},
        {u"-----Sales-----\na    1", u"AZ"},
        {u"| a | b |\n| c | d |", u"AZ"},
        {u"two  ends  here\nand  so  on", u"AZ"},
        {u"This line has been broken by the hand of its writer and\nends here.\nNext", u"CPP"},
        {u"This line is long enough to be broken by hand but ends here.\nNext", u"PP"},
        {u"本公司之子公司因應營運所需經董事會決議通過處分其持有之不動產\n並公告之\n2.日期", u"CPP"},
        {u"本公司之子公司因應營運所需經董事會決議通過處分其持有之不動產\n2.日期", u"PP"},
    };
    for (const auto& [text, kinds] : cases)
        EXPECT_EQ(kindsOf(QString::fromUtf16(text)), QString::fromUtf16(kinds))
            << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(kindsOf(u"a    b"_s.repeated(100) + u"\na    b"_s), u"PP"_s) << "too long not to be wrapped";
}

class TypesetText : public testing::Test {
protected:
    TypesetText() {
        edit.resize(400, 300);
        edit.show();
        edit.setTypography(Typography());
        edit.setLead({u"The headline"_s, {{u"Source "_s, {}}, {u"1234"_s, u"7:1234"_s}}});
    }
    void show(const QString& body) { edit.showText(u"date\r\n"_s + body + u"\r\nEnd."_s, {5, true}); }
    QRectF place(int block) const {
        return edit.document()->documentLayout()->blockBoundingRect(
            edit.document()->findBlockByNumber(block));
    }

    MyRichEdit edit;
};

TEST_F(TypesetText, CountsSelectsAndCopiesTheTextAlone) {
    show(u"first words\r\nlast words"_s);
    EXPECT_EQ(edit.toPlainText(), u"The headline\nSource 1234\nfirst words\nlast words\nEnd."_s);
    EXPECT_EQ(edit.shownText(), u"date\u2029first words\u2029last words\u2029End."_s);
    edit.setSelection(5, 10);
    EXPECT_EQ(edit.textCursor().selectedText(), u"first"_s);
    EXPECT_EQ(edit.selection(), std::pair(5, 10));
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(edit.selection(), std::pair(0, 32));
    edit.copy();
    EXPECT_EQ(clipboard(), u"date\nfirst words\nlast words\nEnd."_s) << "as it is copied plainly";

    QTextCursor across(edit.document());
    across.setPosition(4);
    across.setPosition(edit.document()->findBlockByNumber(2).position() + 5, QTextCursor::KeepAnchor);
    edit.setTextCursor(across);
    edit.copy();
    EXPECT_EQ(clipboard(), u"headline\nSource 1234\nfirst"_s);

    edit.setSelection(17, 21);
    edit.setLead({u"A longer headline"_s, {}});
    EXPECT_EQ(edit.selection(), std::pair(17, 21));
    edit.setTypography(std::nullopt);
    EXPECT_EQ(edit.toPlainText(), u"date\nfirst words\nlast words\nEnd."_s);
}

TEST_F(TypesetText, SpacesProseAndLeavesTablesUnwrapped) {
    show(u"words "_s.repeated(100) + u"\r\nNet     1"_s + QString(200, u' ') +
         u"2\r\nLost    3     4\r\n\r\nend"_s);
    const QTextBlock prose = edit.document()->findBlockByNumber(2);
    const QTextBlock table = prose.next();
    EXPECT_GT(place(2).height(), prose.lineCount() * 1.4 * QFontInfo(edit.font()).pixelSize());
    EXPECT_GT(prose.lineCount(), 3);
    place(3);
    EXPECT_EQ(table.lineCount(), 1);
    EXPECT_TRUE(table.charFormat().fontFixedPitch() ||
                table.begin().fragment().charFormat().fontFixedPitch());
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit.horizontalScrollBar()->maximum() > 0; }));
    EXPECT_LT(place(5).height(), place(4).height() / 2) << "an empty line is no line";
    edit.resize(4000, 300);
    EXPECT_GT(prose.layout()->lineCount(), 0);
    EXPECT_LE(prose.layout()->boundingRect().width(), 90 * QFontMetricsF(edit.font()).averageCharWidth() + 1);
}

// Another size must not lose the reader's place, nor what he has selected, also in a text of many portions.
TEST_F(TypesetText, KeepsItsPlaceInAnotherSize) {
    QString body;
    for (int line = 0; line < 20'000; ++line)
        body += u"line %1.\r\n"_s.arg(line);
    show(body);
    ASSERT_TRUE(QTest::qWaitFor([this] { return edit.document()->characterCount() > 200'000; }));
    edit.verticalScrollBar()->setValue(12'000);
    const QString top = edit.cursorForPosition({30, 5}).block().text();
    QFont larger = edit.font();
    larger.setPointSizeF(larger.pointSizeF() * 1.5);
    edit.setFont(larger);
    EXPECT_EQ(edit.cursorForPosition({30, 5}).block().text(), top);
}

TEST_F(TypesetText, TellsOfLinksAndWantedSizes) {
    show(u"words"_s);
    QStringList told;
    QObject::connect(&edit, &MyRichEdit::linkClicked, &edit, [&](const QString& link) { told << link; });
    QObject::connect(&edit, &MyRichEdit::sizeWanted, &edit, [&](int step) { told << QString::number(step); });
    QTextCursor onLink(edit.document());
    onLink.setPosition(22);
    QTest::mouseClick(edit.viewport(), Qt::LeftButton, {}, edit.cursorRect(onLink).center());
    onLink.setPosition(4);
    QTest::mouseClick(edit.viewport(), Qt::LeftButton, {}, edit.cursorRect(onLink).center());
    for (const auto key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0})
        QTest::keyClick(&edit, key, Qt::ControlModifier);
    EXPECT_EQ(told, (QStringList{u"7:1234"_s, u"1"_s, u"-1"_s, u"0"_s}));
}

}  // namespace wirepane
