// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QTabBar;
class SDateTimeCtrl;

namespace wirepane {

// What a user does to a control, done to the real control with real events, so that it notifies as it does
// for him. The control may be gone afterwards.

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
