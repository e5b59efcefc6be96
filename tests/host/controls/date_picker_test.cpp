// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/s_date_time_ctrl.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QDate start(2026, 3, 10);

class DatePicker : public testing::Test {
protected:
    DatePicker() {
        picker = new SDateTimeCtrl(&window);
        picker->setGeometry(0, 0, 120, 24);
        picker->showDate(start);
        const auto log = [this](const char* what, const QDate& date) {
            told << QStringLiteral("%1 %2").arg(QLatin1StringView(what),
                                                date.toString(QStringLiteral("MM/dd")));
        };
        QObject::connect(picker, &SDateTimeCtrl::droppedDown, picker,
                         [this] { told << QStringLiteral("drop"); });
        QObject::connect(picker, &SDateTimeCtrl::dateTimeChange, picker,
                         [log](const QDate& date) { log("change", date); });
        QObject::connect(picker, &SDateTimeCtrl::closeUp, picker,
                         [log](const QDate& date) { log("close", date); });
        window.resize(500, 400);
        window.show();
        window.activateWindow();
        picker->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QTableView* days() const { return picker->calendarWidget()->findChild<QTableView*>(); }
    QStringList takeTold() { return std::exchange(told, {}); }
    static QStringList lines(const char* text) {
        return QString::fromLatin1(text).split(u',', Qt::SkipEmptyParts);
    }

    QWidget window;
    SDateTimeCtrl* picker;
    QStringList told;
};

}  // namespace

TEST_F(DatePicker, SettingInCodeTellsNothing) {
    picker->showDate(QDate(2025, 12, 31));
    EXPECT_EQ(picker->date(), QDate(2025, 12, 31));
    EXPECT_EQ(picker->text(), QStringLiteral("2025/12/31"));
    picker->showDate(QDate());
    EXPECT_EQ(picker->date(), QDate(2025, 12, 31));
    EXPECT_EQ(takeTold(), QStringList());
}

TEST_F(DatePicker, KeysInTheLineTellOfEachChange) {
    picker->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(picker, Qt::Key_Up);
    QTest::keyClick(picker, Qt::Key_Down);
    QTest::keyClick(picker, Qt::Key_Down);
    EXPECT_EQ(takeTold(), lines("change 03/11,change 03/10,change 03/09"));
}

TEST_F(DatePicker, TheCalendarTellsDropDownChangesCloseUp) {
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    } openers[] = {{Qt::Key_F4, Qt::NoModifier}, {Qt::Key_Down, Qt::AltModifier}};
    for (const auto& opener : openers) {
        picker->showDate(start);
        QTest::keyClick(picker, opener.key, opener.modifiers);
        ASSERT_TRUE(picker->calendarWidget()->isVisible());
        EXPECT_TRUE(picker->isDropped());
        EXPECT_EQ(takeTold(), lines("drop"));
        QTest::keyClick(days(), Qt::Key_Left);
        QTest::keyClick(days(), Qt::Key_Left);
        EXPECT_EQ(takeTold(), lines("change 03/09,change 03/08"));
        QTest::keyClick(days(), Qt::Key_Return);
        EXPECT_FALSE(picker->isDropped());
        EXPECT_EQ(takeTold(), lines("close 03/08"));
    }
}

TEST_F(DatePicker, TheCalendarNamesYearAndMonthInTheOrderOfTheLanguage) {
    const struct {
        QLocale locale;
        bool isYearFirst;
    } cases[] = {{QLocale(u"en"_s), false}, {QLocale(u"zh_TW"_s), true}, {QLocale(u"en"_s), false}};
    QTest::keyClick(picker, Qt::Key_F4);
    QCalendarWidget* calendar = picker->calendarWidget();
    for (const auto& [locale, isYearFirst] : cases) {
        calendar->setLocale(locale);
        QApplication::sendPostedEvents();
        const auto* month = calendar->findChild<QWidget*>(u"qt_calendar_monthbutton"_s);
        const auto* year = calendar->findChild<QWidget*>(u"qt_calendar_yearbutton"_s);
        EXPECT_EQ(year->x() < month->x(), isYearFirst) << locale.name().toStdString();
    }
}

TEST_F(DatePicker, EscapeClosesWithTheDateItWasOpenedWith) {
    QTest::keyClick(picker, Qt::Key_F4);
    QTest::keyClick(days(), Qt::Key_Escape);
    EXPECT_EQ(takeTold(), lines("drop,close 03/10"));
    QTest::keyClick(picker, Qt::Key_F4);
    QTest::keyClick(days(), Qt::Key_Down);
    QTest::keyClick(days(), Qt::Key_Escape);
    EXPECT_EQ(takeTold(), lines("drop,change 03/17,change 03/10,close 03/10"));
    EXPECT_EQ(picker->date(), start);
}

TEST_F(DatePicker, TheMouseOpensChoosesAndCloses) {
    QStyleOptionComboBox box;
    box.initFrom(picker);
    box.editable = true;
    const QPoint arrow =
        picker->style()->subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxArrow, picker).center();
    QTest::mouseClick(picker, Qt::LeftButton, {}, arrow);
    ASSERT_TRUE(picker->isDropped());
    const QModelIndex today = days()->currentIndex();
    const QModelIndex chosen = today.siblingAtRow(today.row() + 1);
    QTest::mouseClick(days()->viewport(), Qt::LeftButton, {}, days()->visualRect(chosen).center());
    EXPECT_FALSE(picker->calendarWidget()->isVisible());
    EXPECT_EQ(takeTold(), lines("drop,change 03/17,close 03/17"));
}

TEST_F(DatePicker, AClosingFromOutsideTellsTheDateInForce) {
    QTest::keyClick(picker, Qt::Key_F4);
    QTest::keyClick(days(), Qt::Key_Right);
    picker->calendarWidget()->window()->close();
    EXPECT_EQ(takeTold(), lines("drop,change 03/11,close 03/11"));
}

TEST_F(DatePicker, GoesAwayQuietlyWithItsCalendarOpen) {
    QTest::keyClick(picker, Qt::Key_F4);
    takeTold();
    delete picker;
    EXPECT_EQ(takeTold(), QStringList());
}

}  // namespace wirepane
