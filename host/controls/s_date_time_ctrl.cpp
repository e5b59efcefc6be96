// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/s_date_time_ctrl.h"

#include "host/controls/day_calendar.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>

using namespace wirepane;

SDateTimeCtrl::SDateTimeCtrl(QWidget* parent) : QDateEdit(parent) {
    setCalendarPopup(true);
    days = new DayCalendar;
    setCalendarWidget(days);
    setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
    calendarWidget()->setLocale(QLocale());
    // Dates are typed into the line; what is being typed into a calendar that goes would leak.
    calendarWidget()->setDateEditEnabled(false);
    calendarWidget()->installEventFilter(this);
    // The keys of the open calendar go to the table of days.
    for (QWidget* part : calendarWidget()->findChildren<QWidget*>())
        part->installEventFilter(this);
    connect(this, &QDateEdit::dateChanged, this, &SDateTimeCtrl::dateTimeChange);
}

void SDateTimeCtrl::showDate(const QDate& date) {
    const QSignalBlocker silent(this);
    setDate(date);
    dateAtOpening = this->date();
}

void SDateTimeCtrl::changeEvent(QEvent* event) {
    QDateEdit::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        calendarWidget()->setLocale(QLocale());
}

void SDateTimeCtrl::keyPressEvent(QKeyEvent* event) {
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    if (altDown || event->key() == Qt::Key_F4) {
        dropDown();
        event->accept();
        return;
    }
    QDateEdit::keyPressEvent(event);
}

void SDateTimeCtrl::dropDown() {
    // The base opens its calendar for nothing but a press on the arrow.
    QStyleOptionComboBox box;
    box.initFrom(this);
    box.editable = true;
    box.subControls = QStyle::SC_All;
    const QPoint arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxArrow, this).center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    mousePressEvent(&press);
}

bool SDateTimeCtrl::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && dropped &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        setDate(dateAtOpening);
    if (watched == calendarWidget() && event->type() == QEvent::Show) {
        dropped = true;
        dateAtOpening = date();
        emit droppedDown();
    } else if (watched == calendarWidget() && event->type() == QEvent::Hide && dropped) {
        dropped = false;
        emit closeUp(date());
    }
    return QDateEdit::eventFilter(watched, event);
}
