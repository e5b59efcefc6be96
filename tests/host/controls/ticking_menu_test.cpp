// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/ticking_menu.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct Menu {
    Menu() {
        for (const QString& text : {u"One\t7"_s, u"Two\t12345"_s}) {
            QAction* entry = menu.addAction(text);
            entry->setCheckable(true);
            QObject::connect(entry, &QAction::triggered, &menu,
                             [this, entry] { told << u"tick "_s + entry->text().left(3); });
        }
        plain = menu.addAction(u"All"_s);
        QObject::connect(&menu, &TickingMenu::onlyAsked, &menu,
                         [this](const QAction* entry) { told << u"only "_s + entry->text().left(3); });
    }
    void open() {
        menu.popup({0, 0});
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu));
    }
    QAction* entry(int i) { return menu.actions().at(i); }
    void click(const QPoint& place, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseMove(&menu, place);
        QTest::mouseClick(&menu, Qt::LeftButton, modifiers, place);
    }

    TickingMenu menu;
    QAction* plain = nullptr;
    QStringList told;
};

}  // namespace

TEST(TickingMenu, StaysOpenAndTicksOneAloneWhereItIsAsked) {
    Menu of;
    of.menu.stayOpen(u"Only This"_s);
    of.open();
    const QRect row = of.menu.actionGeometry(of.entry(1));
    const QRect only = of.menu.onlyPlace(of.entry(1));
    EXPECT_TRUE(row.contains(only));
    EXPECT_GT(only.left(), row.left() + of.menu.fontMetrics().horizontalAdvance(u"Two"_s));
    EXPECT_LT(only.right(), row.right() - of.menu.fontMetrics().horizontalAdvance(u"12345"_s)) << "the count";
    EXPECT_TRUE(of.menu.onlyPlace(of.plain).isEmpty());

    of.click(row.topLeft() + QPoint(20, 5));
    of.click(only.center());
    of.click(row.topLeft() + QPoint(20, 5), Qt::ShiftModifier);
    of.menu.setActiveAction(of.entry(0));
    QTest::keyClick(&of.menu, Qt::Key_Space);
    QTest::keyClick(&of.menu, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(of.told,
              (QStringList{u"tick Two"_s, u"only Two"_s, u"only Two"_s, u"tick One"_s, u"only One"_s}));
    EXPECT_TRUE(of.menu.isVisible());
    of.entry(0)->setEnabled(false);
    EXPECT_TRUE(of.menu.onlyPlace(of.entry(0)).isEmpty());
}

TEST(TickingMenu, ClosesAsAnyMenuWhereNothingIsAsked) {
    Menu of;
    of.open();
    EXPECT_TRUE(of.menu.onlyPlace(of.entry(0)).isEmpty());
    of.click(of.menu.actionGeometry(of.entry(0)).center());
    EXPECT_EQ(of.told, QStringList{u"tick One"_s});
    EXPECT_FALSE(of.menu.isVisible());
}

}  // namespace wirepane
