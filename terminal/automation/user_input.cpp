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
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTabBar>

// Tries the shortcuts and tells the receiver of a key that may be one, as the platform does before a key.
// Qt exports it for programs that make key events of their own.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text,
                                               bool repeats, ushort count);

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

void press(const QPointer<QWidget>& target, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    if (qt_sendShortcutOverrideEvent(target, 0, key, modifiers, text, false, 1) || target.isNull())
        return;
    QKeyEvent pressed(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &pressed);
    if (target.isNull())
        return;
    QKeyEvent released(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(target, &released);
}

void giveKeyboard(QWidget& widget) {
    if (QApplication::activePopupWidget() != nullptr)
        return;
    QApplication::setActiveWindow(widget.window());
    widget.setFocus(Qt::OtherFocusReason);
}

// What the key types.
QString textOf(QKeyCombination key) {
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return u"\r"_s;
        case Qt::Key_Tab:
            return u"\t"_s;
        case Qt::Key_Backspace:
            return u"\b"_s;
        case Qt::Key_Escape:
            return u"\x1b"_s;
        default:
            break;
    }
    const bool plain = !(key.keyboardModifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier));
    if (!plain || key.key() < Qt::Key_Space || key.key() > Qt::Key_ydiaeresis)
        return {};
    const QString text{QChar(static_cast<char16_t>(key.key()))};
    return key.keyboardModifiers() ? text : text.toLower();
}

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

std::optional<QKeyCombination> keyNamed(const QString& name) {
    static constexpr std::pair<QLatin1StringView, QLatin1StringView> spelled[] = {
        {"PageUp"_L1, "PgUp"_L1}, {"PageDown"_L1, "PgDown"_L1}, {"Insert"_L1, "Ins"_L1},
        {"Delete"_L1, "Del"_L1},  {"Escape"_L1, "Esc"_L1},
    };
    QString portable = name;
    for (const auto& [here, there] : spelled)
        portable.replace(here, there);
    const QKeySequence keys = QKeySequence::fromString(portable, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        return std::nullopt;
    return keys[0];
}

void hitKey(QWidget& widget, QKeyCombination key) {
    const QPointer<QWidget> target(&widget);
    giveKeyboard(widget);
    if (target)
        press(target, key.key(), key.keyboardModifiers(), textOf(key));
}

void hitKeysOf(QWidget& widget, const QString& text) {
    const QPointer<QWidget> target(&widget);
    giveKeyboard(widget);
    const QList<uint> characters = text.toUcs4();
    for (const char32_t character : characters) {
        if (target.isNull())
            return;
        const char32_t key = character < 0x80 ? QChar::toUpper(character) : 0;
        press(target, static_cast<int>(key), Qt::NoModifier, QString::fromUcs4(&character, 1));
    }
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
        const int steps = tab - tabs.currentIndex();
        const QPointer<QTabBar> target(&tabs);
        for (int i = 0; i < std::abs(steps) && target; ++i)
            hitKey(*target, Qt::ControlModifier | (steps > 0 ? Qt::Key_PageDown : Qt::Key_PageUp));
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
    if (picker.isDropped())
        picker.calendarWidget()->setSelectedDate(date);
    else
        picker.setDate(date);
}

void openCalendar(SDateTimeCtrl& picker) {
    picker.setFocus();
    if (!picker.isDropped())
        pressKey(&picker, Qt::Key_F4);
}

void closeCalendar(SDateTimeCtrl& picker) {
    if (picker.isDropped())
        picker.calendarWidget()->window()->close();
}

}  // namespace wirepane
