// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_button.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/xt_tip_window.h"
#include "host/controls/xtp_tab_control.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

namespace wirepane {

TEST(Tabs, TellOfTheUserOnlyAndKeepTheirNumbers) {
    CXTPTabControl tabs;
    QSignalSpy told(&tabs, &CXTPTabControl::selChange);
    QSignalSpy changed(&tabs, &QTabBar::currentChanged);
    EXPECT_EQ(tabs.curSel(), -1);
    EXPECT_EQ(tabs.appendTab(QStringLiteral("All"), 0), 0);
    EXPECT_EQ(tabs.appendTab(QStringLiteral("Category"), 1), 1);
    EXPECT_EQ(tabs.appendTab(QStringLiteral("Warrants"), 5), 2);
    EXPECT_EQ(tabs.curSel(), 0);
    tabs.SetCurSel(2);
    EXPECT_EQ(tabs.curSel(), 2);
    for (const int outside : {3, -1})
        tabs.SetCurSel(outside);
    EXPECT_EQ(tabs.curSel(), 2);
    EXPECT_EQ(tabs.itemData(2), 5);
    EXPECT_EQ(tabs.itemData(3), 0);
    EXPECT_EQ(told.count(), 0);
    EXPECT_EQ(changed.count(), 1) << "by whomever: a caption follows it";

    tabs.show();
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    QTest::keyClick(&tabs, Qt::Key_Right);
    ASSERT_EQ(told.count(), 2);
    EXPECT_EQ(told[0][0].toInt(), 1);
    EXPECT_EQ(told[1][0].toInt(), 2);
}

// '&' is shown as itself: a name with one looks like the same name with "&&" where that means a plain '&'.
TEST(PlainText, ShowsAmpersandsOfNames) {
    const QString name = QStringLiteral("R&D && Co");
    const QString caption = QStringLiteral("R&&D &&&& Co");

    SButton button;
    QPushButton plain;
    button.showText(name);
    EXPECT_EQ(button.literalText(), name);
    EXPECT_EQ(button.text(), caption);
    EXPECT_TRUE(button.shortcut().isEmpty());
    button.setText(QStringLiteral("&Search"));  // a key where one is wanted
    EXPECT_EQ(button.shortcut(), QKeySequence(Qt::ALT | Qt::Key_S));

    CXTPTabControl tabs;
    tabs.appendTab(name, 1);
    EXPECT_EQ(tabs.tabText(0), caption);
    EXPECT_EQ(tabs.literalTabText(0), name);
    tabs.showTabText(0, QStringLiteral("a&b"));
    EXPECT_EQ(tabs.literalTabText(0), QStringLiteral("a&b"));

    // A combo needs no doubling: with '&' taken for a mark, both texts would be drawn alike.
    const auto picture = [](const QString& text) {
        SCComboBox combo;
        combo.resize(120, 24);
        combo.addItem(text);
        return combo.grab().toImage();
    };
    EXPECT_NE(picture(QStringLiteral("a&b")), picture(QStringLiteral("ab")));
    EXPECT_NE(picture(QStringLiteral("a&b")), picture(QStringLiteral("a&&b")));
}

TEST(Button, CutsATextThatIsTooLongWithDots) {
    const QString text = QStringLiteral("Select news services & more");
    SButton button;
    button.showText(text);
    button.resize(60, 24);
    const QImage narrow = button.grab().toImage();
    QPushButton dotted;
    dotted.setAutoDefault(false);
    dotted.resize(60, 24);
    // Among the dotted beginnings there is one that looks the same.
    bool found = false;
    for (qsizetype length = 1; length < text.size() && !found; ++length) {
        dotted.setText(text.left(length) + QChar(0x2026));
        found = dotted.grab().toImage() == narrow;
    }
    EXPECT_TRUE(found);
    EXPECT_EQ(button.literalText(), text);
}

TEST(RichEdit, ShowsTextAsItStandsAndGivesItBack) {
    MyRichEdit edit;
    const QString text = QStringLiteral("2026/03/10 09:00:00 \r\n<b>AT&amp;T</b> up\r\n\r\nlast  \nline");
    edit.showText(text);
    EXPECT_EQ(edit.literalText(), text);
    QStringList shown;
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next())
        shown << block.text();
    EXPECT_EQ(shown,
              (QStringList{QStringLiteral("2026/03/10 09:00:00 "), QStringLiteral("<b>AT&amp;T</b> up"),
                           QString(), QStringLiteral("last  "), QStringLiteral("line")}));
    edit.show();
    QTest::keyClicks(&edit, QStringLiteral("typed"));
    EXPECT_EQ(edit.document()->blockCount(), 5);
    edit.selectAll();
    edit.copy();
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->formats(), QStringList{QStringLiteral("text/plain")});
    EXPECT_TRUE(copied->text().contains(QStringLiteral("<b>AT&amp;T</b>")));
}

// A run of 400,000 characters took 18 s to lay out, and again at each change of the width.
TEST(RichEdit, BreaksRunsThatNoLineHoldsForTheEyeAlone) {
    const QString before = QStringLiteral("Before \u00A0words\r\n");
    const auto runs = {QString(5000, u'x'),
                       QString(5000, u'。'),
                       QStringLiteral("\U0001D4B3").repeated(3000),
                       QStringLiteral("e\u0301").repeated(3000),
                       QString(3000, QChar(0x0301)),
                       QString(3000, QChar::Nbsp)};
    for (const QString& run : runs) {
        MyRichEdit edit;
        edit.showText(before + run + QStringLiteral("\r\nkeyword"));
        const QString shown =
            QStringLiteral("Before \u00A0words\u2029") + run + QStringLiteral("\u2029keyword");
        EXPECT_EQ(edit.shownText(), shown);
        QString pieces;
        int longest = 0;
        for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next()) {
            const QString text = block.text();
            longest = std::max(longest, static_cast<int>(text.size()));
            pieces += text;
            EXPECT_FALSE(text.startsWith(QChar(0xDCB3))) << "a character is whole";
        }
        EXPECT_LE(longest, 1000);
        EXPECT_EQ(pieces, QString(shown).remove(QChar::ParagraphSeparator));
        // Selections count what is there, and are copied so.
        const auto keyword = static_cast<int>(shown.size()) - 7;
        for (const auto& [start, end] : {std::pair(keyword, keyword + 7), std::pair(0, keyword),
                                         std::pair(20, 2019), std::pair(1, static_cast<int>(shown.size()))}) {
            edit.setSelection(start, end);
            EXPECT_EQ(edit.selection(), std::pair(start, end));
            edit.copy();
            EXPECT_EQ(QApplication::clipboard()->mimeData()->text(),
                      shown.mid(start, end - start)
                          .replace(QChar::ParagraphSeparator, u'\n')
                          .replace(QChar::Nbsp, u' '));
        }
    }
}

TEST(RichEdit, LeavesTextThatCanBeBrokenAsItIs) {
    for (const QString& unit :
         {QStringLiteral("word "), QStringLiteral("中文"), QStringLiteral("well-known "),
          QStringLiteral("a-"), QStringLiteral("句。"), QStringLiteral("ab\t")}) {
        MyRichEdit edit;
        edit.showText(unit.repeated(10'000 / unit.size()));
        EXPECT_EQ(edit.document()->blockCount(), 1) << unit.toStdString();
        edit.showText(unit.repeated(12'000 / unit.size()));
        EXPECT_EQ(edit.document()->blockCount(), 2) << "too long to be laid out at once";
        EXPECT_TRUE(edit.document()->begin().text().endsWith(unit.back())) << "broken where a line may end";
    }
}

// Texts of several portions, whose boundaries fall into lines, between them, and into empty ones.
class LongText : public testing::TestWithParam<QString> {
protected:
    LongText() {
        edit.resize(300, 200);
        edit.show();
        edit.showText(before + GetParam().repeated(400'000 / GetParam().size()) +
                      QStringLiteral("\r\nthe end"));
        shown = edit.literalText();
        shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\n', QChar::ParagraphSeparator);
    }
    bool isWhole() const { return edit.document()->characterCount() > shown.size(); }
    bool waitForAll() const {
        return QTest::qWaitFor([this] { return isWhole(); });
    }
    QString copied() {
        edit.copy();
        return QApplication::clipboard()->mimeData()->text().replace(u'\n', QChar::ParagraphSeparator);
    }

    // Where what the document has of the text ends.
    int portionEnd() {
        int breaks = 0;  // for the eye alone
        for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next()) {
            const int end = block.position() + block.length() - 1;
            breaks += end - breaks < shown.size() && block.next().isValid() &&
                              shown[end - breaks] != QChar::ParagraphSeparator
                          ? 1
                          : 0;
        }
        return edit.document()->characterCount() - 1 - breaks;
    }

    const QString before = QStringLiteral("first words\n");
    MyRichEdit edit;
    QString shown;
};

TEST_P(LongText, ComesInPortionsAndIsWholeToWhoeverAsks) {
    EXPECT_FALSE(isWhole());
    EXPECT_EQ(edit.shownText(), shown);
    edit.setSelection(6, 11);
    EXPECT_EQ(copied(), QStringLiteral("words"));
    // One that ends where the first portion does ends there.
    const int first = portionEnd();
    edit.setSelection(6, first);
    EXPECT_EQ(edit.selection(), std::pair(6, first));
    edit.selectAll();
    EXPECT_FALSE(isWhole());
    EXPECT_EQ(edit.selection(), std::pair(0, static_cast<int>(shown.size())));
    EXPECT_EQ(copied(), shown);
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(edit.selection(), std::pair(0, static_cast<int>(shown.size()))) << "it has grown with the text";
    EXPECT_EQ(copied(), shown);
    EXPECT_EQ(edit.textCursor().selectionEnd(), edit.document()->characterCount() - 1);
    // What the document has of it, without what is there for the eye alone.
    const auto letters = [](QString text) {
        return text.removeIf(
            [](QChar c) { return c == QChar::ParagraphSeparator || c == QChar::LineSeparator; });
    };
    EXPECT_EQ(letters(edit.document()->toRawText()), letters(shown));
    for (const auto& [start, end] : {std::pair(70'000, 70'003), std::pair(3, 200'000),
                                     std::pair(65'536, static_cast<int>(shown.size()) - 1)}) {
        edit.setSelection(start, end);
        EXPECT_EQ(edit.selection(), std::pair(start, end));
        EXPECT_EQ(copied(), shown.mid(start, end - start));
    }
}

TEST_P(LongText, GoesToWhatIsStillToCome) {
    const auto end = static_cast<int>(shown.size());
    edit.setSelection(end - 7, end);
    EXPECT_EQ(edit.selection(), std::pair(end - 7, end));
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(edit.textCursor().selectedText(), QStringLiteral("the end"));
    EXPECT_TRUE(edit.viewport()->rect().contains(edit.cursorRect()));

    edit.showText(edit.literalText());
    QTest::keyClick(&edit, Qt::Key_End);
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(edit.verticalScrollBar()->value(), edit.verticalScrollBar()->maximum());
    EXPECT_GT(edit.verticalScrollBar()->maximum(), 0);
}

TEST_P(LongText, LeavesTheUserWhereHeHasGone) {
    const auto end = static_cast<int>(shown.size());
    edit.setSelection(end - 7, end);
    QTest::keyClick(&edit, Qt::Key_Down);
    const int place = edit.verticalScrollBar()->value();
    EXPECT_GT(place, 0);
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(edit.verticalScrollBar()->value(), place);
    EXPECT_FALSE(edit.textCursor().hasSelection());
    // Another text: nothing of the former comes any more.
    edit.showText(edit.literalText());
    edit.setSelection(end - 7, end);
    edit.showText(QStringLiteral("short"));
    QTest::qWait(0);
    EXPECT_EQ(edit.document()->toRawText(), QStringLiteral("short"));
    EXPECT_EQ(edit.selection(), std::pair(0, 0));
}

INSTANTIATE_TEST_SUITE_P(Texts, LongText,
                         testing::Values(QStringLiteral("Rates firm as volumes rise.\r\n"),
                                         QStringLiteral("運價回升走強。\n"), QStringLiteral("x"),
                                         QStringLiteral("words and words "), QStringLiteral("ab\r\n\r\n"),
                                         QStringLiteral("\n")));

TEST(RichEdit, KeepsTheSelectionInSightWithoutTheKeyboard) {
    QWidget window;
    auto* edit = new MyRichEdit(&window);
    auto* line = new QLineEdit(&window);
    edit->setGeometry(0, 0, 200, 100);
    line->setGeometry(0, 110, 200, 20);
    QPalette colours;
    colours.setColor(QPalette::Active, QPalette::Highlight, QColor(1, 2, 250));
    colours.setColor(QPalette::Inactive, QPalette::Highlight, Qt::white);
    QApplication::setPalette(colours);
    edit->vSetTextColor(QColor(200, 0, 0));
    edit->vSetBkColor(QColor(20, 30, 40));
    edit->showText(QStringLiteral("selected words"));
    window.show();
    edit->selectAll();
    line->setFocus();
    const QImage picture = edit->viewport()->grab().toImage();
    QApplication::setPalette(QPalette());
    int marked = 0;
    for (int x = 0; x < picture.width(); ++x)
        marked += picture.pixelColor(x, 6) == QColor(1, 2, 250) ? 1 : 0;
    EXPECT_GT(marked, 40);
    EXPECT_EQ(picture.pixelColor(150, 80), QColor(20, 30, 40));
    EXPECT_EQ(edit->palette().color(QPalette::Text), QColor(200, 0, 0));
    // What was out of sight comes to the middle.
    edit->showText(QStringLiteral("line\n").repeated(200) + QStringLiteral("word") +
                   QStringLiteral("\nline").repeated(200));
    edit->setSelection(1000, 1004);
    EXPECT_EQ(edit->textCursor().selectedText(), QStringLiteral("word"));
    EXPECT_LT(std::abs(edit->cursorRect().center().y() - 50), 30) << "at an edge it would be further away";
}

TEST(RichEdit, ScrollsByItsKeys) {
    MyRichEdit edit;
    edit.resize(300, 100);
    edit.showText(QStringLiteral("line\n").repeated(200));
    edit.show();
    const QScrollBar* bar = edit.verticalScrollBar();
    QTest::keyClick(&edit, Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 1);
    QTest::keyClick(&edit, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(bar->value(), bar->maximum());
    QTest::keyClick(&edit, Qt::Key_Up);
    EXPECT_EQ(bar->value(), bar->maximum() - 1);
    QTest::keyClick(&edit, Qt::Key_Home);
    EXPECT_EQ(bar->value(), 0);
}

TEST(TipWindow, StandsCentredOnThePointAndGoesInTime) {
    QWidget window;
    window.show();
    window.activateWindow();
    CXTTipWindow tip(&window);
    const QPoint centre(300, 200);
    tip.vShow(centre, QStringLiteral("<b>No news</b> & none"), 60);
    EXPECT_TRUE(tip.isVisible());
    EXPECT_EQ(tip.windowTitle(), QString());
    EXPECT_EQ(tip.textFormat(), Qt::PlainText);
    EXPECT_LE((tip.geometry().center() - centre).manhattanLength(), 2);
    EXPECT_FALSE(tip.isActiveWindow());
    EXPECT_TRUE(QTest::qWaitFor([&tip] { return !tip.isVisible(); }));

    tip.vShow(centre, QStringLiteral("until stopped"), 0);
    tip.vStop();
    EXPECT_FALSE(tip.isVisible());
    tip.vShow(centre, QStringLiteral("clicked"), 10'000);
    QTest::mouseClick(&tip, Qt::LeftButton);
    EXPECT_FALSE(tip.isVisible());
}

TEST(TipWindow, StaysOnTheScreenAndTakesTheNewTime) {
    CXTTipWindow tip;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QPoint& corner : {screen.topLeft(), screen.bottomRight()}) {
        tip.vShow(corner, QString(400, u'W'), 10'000);
        EXPECT_TRUE(screen.contains(tip.geometry()));
        EXPECT_LE(tip.width(), screen.width() / 2);
    }
    QElapsedTimer shown;
    tip.vShow(screen.center(), QStringLiteral("one"), 30);
    shown.start();
    tip.vShow(screen.center(), QStringLiteral("two"), 300);
    EXPECT_EQ(tip.text(), QStringLiteral("two"));
    EXPECT_TRUE(QTest::qWaitFor([&tip] { return !tip.isVisible(); }));
    EXPECT_GE(shown.elapsed(), 250);
}

}  // namespace wirepane
