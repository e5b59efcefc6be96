// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/quote_combo_box_auto.h"
#include "host/controls/symbol_matches.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace wirepane {

namespace {

const QStringList symbols{QStringLiteral("2317 鴻海"), QStringLiteral("2330 台積電"),
                          QStringLiteral("23301 台積電 AT&T 購01"), QStringLiteral("AT ATlas"),
                          QStringLiteral("ATT Northern &Sons")};

// A combo of either class in a window with the keyboard, and what it told.
template <class Combo>
class ComboFixture : public testing::Test {
protected:
    ComboFixture() {
        combo = new Combo(&window);
        combo->setGeometry(0, 0, 200, 24);
        combo->addItems(symbols);
        QObject::connect(combo, &SCComboBox::selChange, combo,
                         [this](int index) { told << QStringLiteral("sel %1").arg(index); });
        QObject::connect(combo, &SCComboBox::closeUp, combo,
                         [this] { told << QStringLiteral("close %1").arg(combo->currentIndex()); });
        window.resize(400, 400);
        window.show();
        window.activateWindow();
        combo->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    // What was told since the last call.
    QStringList takeTold() {
        QCoreApplication::processEvents();
        return std::exchange(told, {});
    }
    void drop() {
        combo->showPopup();
        ASSERT_TRUE(QTest::qWaitFor([this] { return combo->view()->isVisible(); }));
        // A press right after the list came up is taken for the end of the click that opened it.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
    }
    void clickItem(int index) {
        QAbstractItemView* list = combo->view();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(index, 0)).center());
    }

    QWidget window;
    Combo* combo;
    QStringList told;
};

using ComboBox = ComboFixture<SCComboBox>;
using SymbolCombo = ComboFixture<CQuoteComboBoxAuto>;

QAbstractItemView* offersOf(CQuoteComboBoxAuto* combo) {
    return combo->findChild<QCompleter*>()->popup();
}

}  // namespace

TEST_F(ComboBox, ChangesInCodeTellNothing) {
    combo->setCurrentIndex(3);
    combo->clear();
    combo->addItems(symbols);
    combo->setCurrentIndex(-1);
    EXPECT_EQ(takeTold(), QStringList());
}

TEST_F(ComboBox, TellsOfTheUsersChoiceAndThenOfTheClosing) {
    drop();
    EXPECT_EQ(takeTold(), QStringList());
    clickItem(2);
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 2"), QStringLiteral("close 2")}));
    drop();
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 3"), QStringLiteral("close 3")}));
    QTest::keyClick(combo, Qt::Key_Up);  // without the list
    EXPECT_EQ(takeTold(), QStringList{QStringLiteral("sel 2")});
}

TEST_F(ComboBox, TellsOnceOfAClosingWithoutAChoice) {
    drop();
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    EXPECT_EQ(takeTold(), QStringList{QStringLiteral("close 0")});
    drop();
    combo->view()->window()->close();  // as a click elsewhere does
    EXPECT_EQ(takeTold(), QStringList{QStringLiteral("close 0")});
    drop();
    combo->hidePopup();
    combo->hidePopup();
    EXPECT_EQ(takeTold(), QStringList{QStringLiteral("close 0")});
}

TEST_F(ComboBox, KnowsItsWidestItemThroughEveryChange) {
    const auto widest = [this] {
        int width = 0;
        for (int index = 0; index < combo->count(); ++index)
            width = std::max(width, combo->fontMetrics().horizontalAdvance(combo->itemText(index)));
        return width;
    };
    const QString wide(60, u'W');
    const std::function<void()> changes[] = {
        [] {},
        [&] { combo->addItem(wide); },
        [&] { combo->setItemText(0, wide + wide); },
        [&] { combo->removeItem(0); },
        [&] { combo->insertItem(1, QStringLiteral("i")); },
        [&] { combo->removeItem(combo->count() - 1); },
        [&] {
            QFont font = combo->font();
            font.setPixelSize(30);
            combo->setFont(font);
        },
        [&] { combo->setModel(new QStringListModel({wide}, combo)); },
        [&] { combo->addItem(wide + wide); },
        [&] { combo->clear(); },
    };
    for (const auto& change : changes) {
        change();
        EXPECT_EQ(combo->widestItem(), widest());
    }
    EXPECT_EQ(combo->widestItem(), 0);
}

TEST(SymbolMatches, ExactCodeThenCodesThenNames) {
    const struct {
        const char16_t* typed;
        int most;
        std::vector<int> found;
    } cases[] = {{u"2330", 9, {1, 2}}, {u"23", 9, {0, 1, 2}}, {u"積", 9, {1, 2}},   {u"at", 9, {3, 4, 2}},
                 {u"ATT", 9, {4}},     {u"at&t", 9, {2}},     {u"2330 台", 9, {1}}, {u" 2317 ", 9, {0}},
                 {u"30", 9, {}},       {u"", 9, {}},          {u"  ", 9, {}},       {u"2", 2, {0, 1}},
                 {u"at", 1, {3}},      {u"at", 0, {}}};
    for (const auto& test : cases) {
        const QString typed = QString::fromUtf16(test.typed);
        EXPECT_EQ(
            symbolMatches(
                typed, static_cast<int>(symbols.size()), [](int index) { return symbols[index]; }, test.most),
            test.found)
            << typed.toStdString();
    }
}

TEST_F(SymbolCombo, EnterTakesTheFirstOfferForWhatWasTyped) {
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("233"));
    ASSERT_TRUE(offersOf(combo)->isVisible());
    EXPECT_EQ(offersOf(combo)->model()->rowCount(), 2);
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(takeTold(), QStringList());
    QTest::keyClick(offersOf(combo), Qt::Key_Return);
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 1"), QStringLiteral("close 1")}));
    EXPECT_EQ(combo->currentText(), symbols[1]);
    EXPECT_FALSE(offersOf(combo)->isVisible());
    // The same symbol again: the line shows it in full again.
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("2330"));
    QTest::keyClick(offersOf(combo), Qt::Key_Return);
    EXPECT_EQ(combo->lineEdit()->text(), symbols[1]);
    takeTold();
}

TEST_F(SymbolCombo, TheMarkedOfferIsTakenByKeyOrMouse) {
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("at"));
    QTest::keyClick(offersOf(combo), Qt::Key_Down);
    QTest::keyClick(offersOf(combo), Qt::Key_Return);
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 4"), QStringLiteral("close 4")}));
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("23"));
    QAbstractItemView* offers = offersOf(combo);
    QTest::mouseClick(offers->viewport(), Qt::LeftButton, {},
                      offers->visualRect(offers->model()->index(0, 0)).center());
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 0"), QStringLiteral("close 0")}));
}

TEST_F(SymbolCombo, MovingThroughTheItemsEndsTyping) {
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("zz"));
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(takeTold(), QStringList{QStringLiteral("sel 1")});
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_EQ(takeTold(), QStringList());
    EXPECT_EQ(combo->lineEdit()->text(), symbols[1]);
}

TEST_F(SymbolCombo, AFullTextIsTakenOnce) {
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("AT ATlas"));
    QTest::keyClick(offersOf(combo), Qt::Key_Return);
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 3"), QStringLiteral("close 3")}));
}

TEST_F(SymbolCombo, EnterAfterTheOffersWereClosedStillTakesTheFirst) {
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("att"));
    QTest::keyClick(offersOf(combo), Qt::Key_Escape);
    ASSERT_FALSE(offersOf(combo)->isVisible());
    QTest::keyClick(combo, Qt::Key_Enter);
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 4"), QStringLiteral("close 4")}));
}

TEST_F(SymbolCombo, TextThatFitsNothingChangesNothingAndGivesWay) {
    auto* other = new QLineEdit(&window);
    other->show();
    combo->setCurrentIndex(2);
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("zzz"));
    EXPECT_FALSE(offersOf(combo)->isVisible());
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_EQ(combo->currentIndex(), 2);
    EXPECT_EQ(combo->lineEdit()->text(), QStringLiteral("zzz"));
    other->setFocus();
    EXPECT_EQ(combo->lineEdit()->text(), symbols[2]);
    combo->setFocus();
    QTest::keyClicks(combo, QStringLiteral("AT ATlas"));  // spelt out, but never taken
    other->setFocus();
    EXPECT_EQ(combo->lineEdit()->text(), symbols[2]);
    EXPECT_EQ(combo->count(), symbols.size());
    EXPECT_EQ(takeTold(), QStringList());
}

TEST_F(SymbolCombo, AnOfferOfReplacedItemsIsNotTaken) {
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, QStringLiteral("2330"));
    combo->clear();
    combo->addItems({QStringLiteral("1101 台泥"), QStringLiteral("1102 亞泥")});
    QTest::keyClick(offersOf(combo), Qt::Key_Return);
    EXPECT_EQ(takeTold(), QStringList());
}

TEST_F(SymbolCombo, TheDropDownTellsAsThatOfAnyCombo) {
    drop();
    clickItem(3);
    EXPECT_EQ(takeTold(), (QStringList{QStringLiteral("sel 3"), QStringLiteral("close 3")}));
    EXPECT_EQ(combo->lineEdit()->text(), symbols[3]);
}

}  // namespace wirepane
