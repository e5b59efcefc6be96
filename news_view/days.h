// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/date_pager.h"
#include "news_view/common_parts.h"

#include <QString>

#include <functional>
#include <optional>

namespace wirepane {
class DayCalendar;
class RelationMatcher;
class ViewContext;
enum class ListIndex : int;

// The days of a view: the date that the user picks, and the news day that the back end is in. Interface
// thread only.
class Days {
public:
    struct Calls {
        std::function<const RelationMatcher&()> keySets;  // that filter the relation-search list
        std::function<void(ListIndex)> readAgain;
        std::function<void(ListIndex)> readNowOrWhenShown;
        std::function<bool(ListIndex)> isRead;  // the reader has gone to a row of it
    };
    // Both days are today.
    Days(ViewContext& context, const CommonParts& parts, Calls calls);

    // Whether the view stands at a day: it has a date picker, or is all about the day's warrants.
    bool hasDay() const;
    const QDate& picked() const { return pager.pickedDate(); }
    const QDate& newsDay() const { return pager.currentNewsDay(); }
    // yyyymmdd; no date's without a day.
    QString pickedKey() const;
    // The last day before the picked one that has news of a ticked service, else the first one after it; of
    // those that may be picked. Nothing where there is none, or the back end cannot tell.
    std::optional<QDate> nearestWithNews() const;
    // The day that a command of news_control_ids.h goes to; nothing where it is none, or there is no such
    // day.
    std::optional<QDate> dayOfCommand(int id) const;
    // How many days back may be picked.
    void setRange(int days) { pager.setRange(days); }

    // The date picker's signals. While its calendar is open the date is not picked yet.
    void connectPicker();
    // Sets the texts of its calendar in the language in force.
    void loadTexts();
    void calendarOpened() { calendarIsOpen = true; }
    void dateChanged(const QDate& date);
    void calendarClosed();

    // Picks the date of the all-news list. True when the list was read anew and has rows; false for the date
    // in force, for a day out of range (a tip says so and the date picker goes back) and without the list.
    bool pick(const QDate& date);
    // The same, and the date picker shows it.
    void goTo(const QDate& date);
    // A news day has begun: the view follows it when it has ticked the service. A status with a date that no
    // calendar knows changes nothing. By the view's option a list that is being read stays as it is.
    void follow(const CMarketStatus& status);
    // Reads the all-news list and the relation-search list at each service's current date. False when either
    // list has no grid.
    bool readCurrentDates();

private:
    // Whether the new news day leaves this list alone.
    bool isKept(ListIndex list) const;
    void dressCalendar(DayCalendar& calendar);
    bool isInRange(const QDate& day) const;
    bool hasNewsOn(const QDate& day) const;
    std::optional<QDate> lastBefore(const QDate& day) const;
    std::optional<QDate> firstAfter(const QDate& day) const;
    void refuse(const QString& why);
    int entryOfWarrants(const CMarketStatus& status) const;
    void tellNewDay(unsigned char service);
    bool readCurrentRelations();

    ViewContext& context;
    const CommonParts parts;
    const Calls calls;
    DatePager pager;
    bool calendarIsOpen = false;
};

}  // namespace wirepane
