// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/user_input.h"

#include "host/controls/s_date_time_ctrl.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTabBar>

namespace wirepane {

namespace {

void pressKey(const QPointer<QWidget>& target, Qt::Key key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(target, &press);
    if (target.isNull())
        return;
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(target, &release);
}

}  // namespace

void clickAt(QWidget& widget, const QPoint& point, Qt::MouseButton button) {
    const QPointer<QWidget> target(&widget);
    const QPoint global = widget.mapToGlobal(point);
    QMouseEvent press(QEvent::MouseButtonPress, point, global, button, button, Qt::NoModifier);
    QApplication::sendEvent(target, &press);
    if (target && button == Qt::RightButton) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, point, global);
        QApplication::sendEvent(target, &menu);
    }
    if (target.isNull())
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, point, global, button, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(target, &release);
}

void doubleClickAt(QWidget& widget, const QPoint& point, Qt::MouseButton button) {
    const QPointer<QWidget> target(&widget);
    const QPoint global = widget.mapToGlobal(point);
    clickAt(widget, point, button);
    for (const auto& [type, buttons] : {std::pair(QEvent::MouseButtonDblClick, Qt::MouseButtons(button)),
                                        std::pair(QEvent::MouseButtonRelease, Qt::MouseButtons())}) {
        if (target.isNull())
            return;
        QMouseEvent event(type, point, global, button, buttons, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }
}

void chooseMenuItem(QMenu& menu, QAction& item) {
    menu.setActiveAction(&item);
    pressKey(&menu, Qt::Key_Return);
}

void chooseComboEntry(QComboBox& combo, int entry) {
    combo.setFocus();
    combo.showPopup();
    combo.view()->setCurrentIndex(combo.model()->index(entry, combo.modelColumn(), combo.rootModelIndex()));
    pressKey(combo.view(), Qt::Key_Return);
}

void clickTab(QTabBar& tabs, int tab) {
    if (!tabs.rect().contains(tabs.tabRect(tab).center())) {
        // Too narrow for all tabs: the keyboard reaches those that the mouse does not.
        tabs.setFocus();
        const int steps = tab - tabs.currentIndex();
        const QPointer<QWidget> target(&tabs);
        for (int i = 0; i < std::abs(steps) && target; ++i)
            pressKey(target, steps > 0 ? Qt::Key_Right : Qt::Key_Left);
        return;
    }
    clickAt(tabs, tabs.tabRect(tab).center(), Qt::LeftButton);
}

void typeText(QLineEdit& edit, const QString& text) {
    edit.setFocus();
    edit.selectAll();
    // Both count as the user's doing and are notified as such.
    if (text.isEmpty())
        edit.del();
    else
        edit.insert(text);
}

void setChecked(QAbstractButton& button, bool checked) {
    if (button.isChecked() != checked)
        button.click();
}

void pickDate(SDateTimeCtrl& picker, const QDate& date) {
    if (picker.bIsDropped())
        picker.calendarWidget()->setSelectedDate(date);
    else
        picker.setDate(date);
}

void openCalendar(SDateTimeCtrl& picker) {
    picker.setFocus();
    if (!picker.bIsDropped())
        pressKey(&picker, Qt::Key_F4);
}

void closeCalendar(SDateTimeCtrl& picker) {
    if (picker.bIsDropped())
        picker.calendarWidget()->window()->close();
}

}  // namespace wirepane
