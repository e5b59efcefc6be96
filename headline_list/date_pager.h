// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

// The checks on a day that the user picks, on calendar days.
enum class DateCheck {
    TooEarly,  // further back than the range allows
    TooLate,   // after the present day
    Same,      // the day that is in force already
    Accepted,
};

// `range`: the number of days back that may be picked, 0 or more. What is out of range is told first.
DateCheck CheckPickedDate(const QDate& wanted, const QDate& inForce, const QDate& today, int range);
