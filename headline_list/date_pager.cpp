// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/date_pager.h"

DateCheck CheckPickedDate(const QDate& wanted, const QDate& inForce, const QDate& today, int range) {
    if (wanted < today.addDays(-range))
        return DateCheck::TooEarly;
    if (wanted > today)
        return DateCheck::TooLate;
    return wanted == inForce ? DateCheck::Same : DateCheck::Accepted;
}
