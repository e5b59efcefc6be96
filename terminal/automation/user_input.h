// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

#include <optional>

class QAbstractButton;
class QAction;
class QComboBox;
class QLineEdit;
class QMenu;
class QPoint;
class QTabBar;
class QWidget;
class SDateTimeCtrl;

namespace wirepane {

// What a user does to a control, done to the real control with real events, so that it notifies as it does
// for him. The control may be gone afterwards.

// Presses and releases a mouse button at a point of the widget; the right one asks for a context menu, too.
void clickAt(QWidget& widget, const QPoint& point, Qt::MouseButton button);
// Two clicks in quick succession, with all that the platform makes of them.
void doubleClickAt(QWidget& widget, const QPoint& point, Qt::MouseButton button);
// The key with its modifiers, such as "Return", "PageDown", "Shift+Insert"; none for a name that no key has.
std::optional<QKeyCombination> keyNamed(const QString& name);
// Gives the widget the keyboard, then presses and releases a key, which may be a shortcut.
void hitKey(QWidget& widget, QKeyCombination key);
// Gives the widget the keyboard, then hits one key for each character.
void hitKeysOf(QWidget& widget, const QString& text);
// Picks an item of an open menu, which closes.
void chooseMenuItem(QMenu& menu, QAction& item);
// Opens the drop-down, picks the entry and closes the drop-down.
void chooseComboEntry(QComboBox& combo, int entry);
// Clicks on a tab, scrolled into sight.
void clickTab(QTabBar& tabs, int tab);
// Replaces the text of an edit.
void typeText(QLineEdit& edit, const QString& text);
// Clicks a check box or a check button that is not as wanted.
void setChecked(QAbstractButton& button, bool checked);
// Picks a date: in the open calendar, else in the line.
void pickDate(SDateTimeCtrl& picker, const QDate& date);
// Opens the calendar, and closes it with the date that is picked in it. Nothing where it is so already.
void openCalendar(SDateTimeCtrl& picker);
void closeCalendar(SDateTimeCtrl& picker);

}  // namespace wirepane
