// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QCalendarWidget>
#include <QDate>
#include <QString>

#include <functional>

class QHBoxLayout;
class QPushButton;

namespace wirepane {

// A calendar in the colours of the scheme, which marks days that have news with a dot, greys those that
// cannot be picked, and goes to single days by buttons below it.
class WIREPANE_HOST_EXPORT DayCalendar : public QCalendarWidget {
    Q_OBJECT

public:
    // What is known of a day.
    struct DayState {
        bool hasNews = false;
        bool isOutOfRange = false;
    };

    explicit DayCalendar(QWidget* parent = nullptr);

    // Asked for each day that is painted.
    void setDayStates(std::function<DayState(const QDate&)> stateOf);
    // A button below the days that picks the day which `day` names when it is pressed.
    void addDayButton(const QString& text, std::function<QDate()> day);
    // Takes the buttons away again.
    void clearDayButtons();

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void paintCell(QPainter* painter, const QRect& place, QDate date) const override;
    void changeEvent(QEvent* event) override;

private:
    void dress();
    void orderTitle(const QWidget& bar) const;

    std::function<DayState(const QDate&)> stateOf;
    QWidget* buttons;
    QHBoxLayout* row;
};

}  // namespace wirepane
