// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QDateEdit>

namespace wirepane {
class DayCalendar;
}

// A date picker with a drop-down calendar, which F4, Alt+Down and the arrow open, and which speaks the
// language of the default locale. It tells of the user's changes only, at once and in this order:
// droppedDown, any number of DateTimeChange, CloseUp. Esc closes the calendar and goes back to the date it
// was opened with, or that was set meanwhile.
class WIREPANE_HOST_EXPORT SDateTimeCtrl : public QDateEdit {
    Q_OBJECT

public:
    explicit SDateTimeCtrl(QWidget* parent = nullptr);

    // Sets the date and tells nobody. An invalid date is ignored.
    void showDate(const QDate& date);
    wirepane::DayCalendar* calendar() { return days; }
    bool isDropped() const { return dropped; }
    // Opens the calendar, as the user does.
    void dropDown();

Q_SIGNALS:
    // The calendar opens.
    void droppedDown();
    // The user changed the date, in the line or in the open calendar.
    void dateTimeChange(const QDate& date);
    // The calendar has closed, with this date in force.
    void closeUp(const QDate& date);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    wirepane::DayCalendar* days;
    QDate dateAtOpening;
    bool dropped = false;
};
