// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The desk worked by keyboard: views, links, the symbol box, settings.
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "terminal/automation/user_input.h"
#include "terminal/frame/settings_dialog.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/frame/view_desk.h"
#include "terminal/frame/view_dock.h"
#include "tests/terminal/program/frame_fixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class DeskTest : public FrameFixture {
protected:
    DeskTest() : FrameFixture(1400) {}

    int activeNumber() { return session->workspace().active()->number; }
    QString codeOf(int view) {
        return session->workspace().find(view)->access->state()[u"symbol"_s].toMap()[u"code"_s].toString();
    }
    // A symbol of the sample that news may name.
    SymbolItem someSymbol(std::size_t place) {
        std::vector<QString> codes;
        std::vector<QString> names;
        session->backEnd().symbols().GetSymbolsByService(16, codes, names, 1);
        return {16, codes.at(place), names.at(place)};
    }
};

TEST_F(DeskTest, ViewsAreOpenedReachedAndClosedByKeys) {
    Workspace& workspace = session->workspace();
    press(Qt::Key_N);
    ASSERT_EQ(workspace.docked().size(), 2U);
    EXPECT_GT(workspace.find(2)->dock->x(), workspace.find(1)->dock->x()) << "wide enough for two";
    press(Qt::Key_N);
    ASSERT_EQ(workspace.docked().size(), 3U);
    EXPECT_EQ(activeNumber(), 3);
    EXPECT_EQ(session->frame().tabifiedDockWidgets(workspace.find(3)->dock).size(), 1) << "not for four";

    press(Qt::Key_Tab);
    EXPECT_EQ(activeNumber(), 1);
    press(Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(activeNumber(), 3);
    press(Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(activeNumber(), 2);
    EXPECT_TRUE(workspace.find(2)->view->isAncestorOf(QApplication::focusWidget()));

    emit session->frame().commanded(FrameCommand::ArrangeTabs);
    QCoreApplication::processEvents();
    EXPECT_TRUE(workspace.find(2)->view->isVisible());
    EXPECT_EQ(session->frame().tabifiedDockWidgets(workspace.find(2)->dock).size(), 2);
    emit session->frame().commanded(FrameCommand::ArrangeRows);
    QCoreApplication::processEvents();
    EXPECT_LT(workspace.find(1)->dock->y(), workspace.find(2)->dock->y());
    EXPECT_LT(workspace.find(2)->dock->y(), workspace.find(3)->dock->y());

    for (int left = 2; left >= 0; --left) {
        press(Qt::Key_W);
        EXPECT_EQ(workspace.docked().size(), static_cast<std::size_t>(left));
    }
    EXPECT_TRUE(session->frame().desk().isVisible()) << "an empty desk says how to go on";
    press(Qt::Key_N);
    EXPECT_EQ(workspace.docked().size(), 1U);
}

TEST_F(DeskTest, KeysGoToOtherDaysAndTheStatusBarTellsOfThemAndBack) {
    const auto pickedDay = [this] {
        return session->workspace().find(1)->access->state()[u"pickedDate"_s].toString();
    };
    const auto linkToToday = [this]() -> QLabel* {
        for (auto* label : session->frame().statusBar()->findChildren<QLabel*>())
            if (label->isVisible() && label->text().contains(u"'today'"_s))
                return label;
        return nullptr;
    };
    session->showStatus();
    EXPECT_EQ(linkToToday(), nullptr);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(pickedDay(), u"20260301");
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(pickedDay(), u"20260301");
    session->showStatus();
    QLabel* link = linkToToday();
    ASSERT_NE(link, nullptr);
    EXPECT_TRUE(link->text().startsWith(u"Showing 2026/03/01"_s)) << link->text().toStdString();
    emit link->linkActivated(u"today"_s);
    EXPECT_EQ(pickedDay(), u"20260302");

    // Midnight passes, and nothing has come yet.
    host_clock::startAt(QDateTime(QDate(2026, 3, 2), QTime(23, 59, 59)).toSecsSinceEpoch());
    session->showStatus();
    host_clock::startAt(QDateTime(QDate(2026, 3, 3), QTime(0, 0, 1)).toSecsSinceEpoch());
    session->showStatus();
    EXPECT_NE(linkToToday(), nullptr);
    press(Qt::Key_Home, Qt::AltModifier);
    session->showStatus();
    const auto labels = session->frame().statusBar()->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->isVisible() && label->text() == u"A new day: 2026/03/03"_s;
    }));
}

TEST_F(DeskTest, OffersOfTheSymbolBoxShowNamesAndTheQuotesOfThoseInSight) {
    press(Qt::Key_K);
    QTest::keyClicks(QApplication::focusWidget(), u"2"_s);
    auto* list = session->frame().symbolBox().findChild<QCompleter*>()->popup();
    ASSERT_TRUE(list->isVisible());
    const auto textOf = [list](int row) { return list->model()->index(row, 0).data().toString(); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return textOf(0).endsWith(u'%'); }));
    const SymbolItem symbol = session->backEnd().symbols().search(u"2"_s, 1).at(0);
    EXPECT_TRUE(textOf(0).startsWith(u"%1  %2  %3  "_s.arg(symbol.code, symbol.englishName, symbol.name)))
        << textOf(0).toStdString();
    const int lastRow = list->model()->rowCount() - 1;
    EXPECT_FALSE(textOf(lastRow).contains(u'%')) << "nobody sees it";

    // A quote that comes changes its row and nothing else.
    list->setCurrentIndex(list->model()->index(2, 0));
    ASSERT_TRUE(session->backEnd().takeIn(QuoteItem{symbol.market, symbol.code, 12345.5, 45.5, 1}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return textOf(0).contains(u"12,345.50  +45.50"_s); }));
    EXPECT_EQ(list->currentIndex().row(), 2);

    list->scrollToBottom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return textOf(lastRow).endsWith(u'%'); }));
    QTest::keyClick(list, Qt::Key_Escape);
}

TEST_F(DeskTest, TheSymbolBoxDrivesTheViewsOfItsGroup) {
    Workspace& workspace = session->workspace();
    press(Qt::Key_N);
    press(Qt::Key_N);
    press(Qt::Key_0);  // the third view follows nothing
    EXPECT_EQ(workspace.find(3)->view->linkedGroup(), 0);
    const SymbolItem first = someSymbol(3);
    press(Qt::Key_K);
    QTest::keyClicks(QApplication::focusWidget(), first.code);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(codeOf(1), first.code);
    EXPECT_EQ(codeOf(2), first.code);
    EXPECT_NE(codeOf(3), first.code);

    // By name, which need not begin so; and a text that fits nothing changes nothing.
    const SymbolItem second = someSymbol(9);
    auto* line = session->frame().symbolBox().findChild<QLineEdit*>();
    for (const auto& [text, expected] :
         {std::pair(second.name.mid(1), second.code), std::pair(u"no such symbol"_s, second.code)}) {
        session->frame().symbolBox().begin();
        typeText(*line, text);
        QTest::keyClick(line, Qt::Key_Return);
        EXPECT_EQ(codeOf(1), expected) << text.toStdString();
    }
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_EQ(line->text(), second.code);
    EXPECT_FALSE(line->hasFocus());

    // A group that is picked for the box stays, whichever views are there.
    session->frame().symbolBox().showGroup(4);
    session->frame().symbolBox().begin();
    typeText(*line, first.code);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(session->frame().symbolBox().group(), 4);
    EXPECT_EQ(codeOf(1), second.code);
    EXPECT_EQ(session->links().symbols().at(4).code, first.code);
    session->frame().symbolBox().showGroup(1);

    // A view that joins the group takes its symbol; one that picks another hands it to the group.
    workspace.link(*workspace.find(3), 1);
    EXPECT_EQ(codeOf(3), second.code);
    clickTab(*qobject_cast<QTabBar*>(dlgItem(workspace.find(3)->view, ids::tabStrip)), 2);
    chooseComboEntry(*qobject_cast<QComboBox*>(dlgItem(workspace.find(3)->view, ids::symbolCombo)), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return codeOf(3) != second.code; }));
    EXPECT_EQ(codeOf(1), codeOf(3));
    EXPECT_EQ(line->text(), codeOf(3));
    EXPECT_TRUE(workspace.find(3)->shownTitle().endsWith(codeOf(3)));
}

TEST_F(DeskTest, TitlesFollowTheUserTheTabAndTheLanguage) {
    OpenView& view = *session->workspace().active();
    EXPECT_EQ(view.shownTitle(), u"All News"_s);
    clickTab(*qobject_cast<QTabBar*>(dlgItem(view.view, ids::tabStrip)), 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.dock->windowTitle().contains(u"By Category"_s); }));
    press(Qt::Key_F3, Qt::NoModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.dock->windowTitle().contains(u"Search"_s); }));
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    session->setLanguage(u"zh-TW"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.dock->windowTitle().contains(u"分類新聞"_s); }));
    QTimer::singleShot(0, &session->frame(), [this] {
        auto* dialog = session->frame().findChild<QInputDialog*>();
        dialog->setTextValue(u" Oil & gas "_s);
        dialog->accept();
    });
    press(Qt::Key_F2, Qt::NoModifier);
    EXPECT_EQ(view.shownTitle(), u"Oil & gas"_s);
    EXPECT_TRUE(session->frame().windowTitle().startsWith(u"Oil & gas"_s));
}

TEST_F(DeskTest, SettingsTakeEffectWhenTheyAreAccepted) {
    const auto answer = [this](bool accept) {
        QTimer::singleShot(0, &session->frame(), [this, accept] {
            auto* dialog = session->frame().findChild<SettingsDialog*>();
            for (QCheckBox* box : dialog->findChildren<QCheckBox*>())
                box->toggle();
            for (QComboBox* box : dialog->findChildren<QComboBox*>()) {
                if (const int simplified = box->findData(u"zh-CN"_s); simplified >= 0)
                    box->setCurrentIndex(simplified);
            }
            dialog->findChild<QDialogButtonBox*>()
                ->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)
                ->click();
        });
        emit session->frame().commanded(FrameCommand::Settings);
    };
    answer(false);
    EXPECT_EQ(session->language(), u"en"_s);
    EXPECT_TRUE(session->settings().switches().normalSearch);
    EXPECT_FALSE(session->settings().switches().warningSearch);
    answer(true);
    EXPECT_EQ(session->language(), u"zh-CN"_s);
    EXPECT_FALSE(session->settings().switches().normalSearch);
    EXPECT_TRUE(session->settings().switches().warningSearch);
    // The user's views are opened anew under their numbers, with the new tabs.
    QSet<int> modes;
    const QVariantList tabs = session->workspace().find(1)->access->state()[u"tabs"_s].toList();
    for (const QVariant& tab : tabs)
        modes.insert(tab.toMap()[u"mode"_s].toInt());
    EXPECT_FALSE(modes.contains(4));
}

TEST_F(DeskTest, ClosedAndDuplicatedViewsKeepTheirSettingsApart) {
    Workspace& workspace = session->workspace();
    clickTab(*qobject_cast<QTabBar*>(dlgItem(workspace.find(1)->view, ids::tabStrip)), 1);
    press(Qt::Key_D);
    EXPECT_EQ(workspace.find(2)->access->state()[u"mode"_s].toInt(), 1);
    session->keeper().save();
    workspace.close(2);
    press(Qt::Key_N);
    EXPECT_EQ(workspace.find(3)->place, 1);
    EXPECT_EQ(workspace.find(3)->access->state()[u"mode"_s].toInt(), 0) << "a new view is a fresh one";
}

}  // namespace

}  // namespace wirepane
