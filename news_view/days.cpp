// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/days.h"

#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"
#include "host/contract/news_day_finder.h"
#include "host/controls/day_calendar.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/views/news_control_ids.h"
#include "news_view/control_set.h"
#include "news_view/list_tip.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace wirepane {

Days::Days(ViewContext& viewContext, const CommonParts& commonParts, Calls given)
    : context(viewContext), parts(commonParts), calls(std::move(given)), pager(host_clock::today()) {}

bool Days::hasDay() const {
    return parts.controls.find<SDateTimeCtrl>(ids::datePicker) != nullptr ||
           parts.settings.functions == modeOf(ListIndex::Warrant).maskBit;
}

QString Days::pickedKey() const {
    return dateKey(hasDay() ? pager.pickedDate() : QDate());
}

// --- The date picker ---

void Days::connectPicker() {
    auto* picker = parts.controls.find<SDateTimeCtrl>(ids::datePicker);
    QObject::connect(picker, &SDateTimeCtrl::droppedDown, &parts.window, [this] { calendarOpened(); });
    dressCalendar(*picker->calendar());
    QObject::connect(picker, &SDateTimeCtrl::dateTimeChange, &parts.window,
                     [this](const QDate& date) { dateChanged(date); });
    QObject::connect(picker, &SDateTimeCtrl::closeUp, &parts.window, [this] { calendarClosed(); });
}

void Days::dressCalendar(DayCalendar& calendar) {
    calendar.setDayStates([this](const QDate& day) {
        return DayCalendar::DayState{hasNewsOn(day), !isInRange(day)};
    });
    calendar.clearDayButtons();
    calendar.addDayButton(langText(parts.backEnd, keys::today), [] { return host_clock::today(); });
    calendar.addDayButton(langText(parts.backEnd, keys::yesterday),
                          [] { return host_clock::today().addDays(-1); });
}

// The days that pick() takes.
bool Days::isInRange(const QDate& day) const {
    const QDate today = host_clock::today();
    const DateCheck check = checkPickedDate(day, {}, today, pager.rangeInDays());
    return check != DateCheck::TooEarly && check != DateCheck::TooLate;
}

bool Days::hasNewsOn(const QDate& day) const {
    auto* finder = dynamic_cast<NewsDayFinder*>(&parts.backEnd);
    const auto& services = parts.services.currentServices();
    return finder != nullptr && isInRange(day) &&
           std::any_of(services.begin(), services.end(), [finder, &day](const ServiceEntry& entry) {
               return entry.selected && finder->hasNewsOn(entry.service, day);
           });
}

std::optional<QDate> Days::nearestWithNews() const {
    const std::optional<QDate> before = lastBefore(pager.pickedDate());
    return before ? before : firstAfter(pager.pickedDate());
}

std::optional<QDate> Days::lastBefore(const QDate& shown) const {
    for (QDate day = shown.addDays(-1); isInRange(day); day = day.addDays(-1)) {
        if (hasNewsOn(day))
            return day;
    }
    return std::nullopt;
}

std::optional<QDate> Days::firstAfter(const QDate& shown) const {
    const QDate today = host_clock::today();
    for (QDate day = shown.addDays(1); day <= today; day = day.addDays(1)) {
        if (hasNewsOn(day))
            return day;
    }
    return std::nullopt;
}

std::optional<QDate> Days::dayOfCommand(int id) const {
    const QDate today = host_clock::today();
    if (id == ids::earlierDay)
        return lastBefore(pager.pickedDate());
    if (id == ids::laterDay)
        return firstAfter(pager.pickedDate()).value_or(today);
    return id == ids::presentDay ? std::optional(today) : std::nullopt;
}

void Days::loadTexts() {
    if (auto* picker = parts.controls.find<SDateTimeCtrl>(ids::datePicker))
        dressCalendar(*picker->calendar());
}

void Days::dateChanged(const QDate& date) {
    if (!calendarIsOpen)
        pick(date);
}

void Days::calendarClosed() {
    calendarIsOpen = false;
    if (const auto* picker = parts.controls.find<SDateTimeCtrl>(ids::datePicker))
        pick(picker->date());
}

bool Days::pick(const QDate& date) {
    if (parts.lists[ListIndex::All].grid() == nullptr)
        return false;
    switch (pager.pick(date, host_clock::today())) {
        case DateCheck::TooEarly:
            refuse(langText(parts.backEnd, keys::onlySelect) + QString::number(pager.rangeInDays()) +
                   langText(parts.backEnd, keys::inSomeDays));
            return false;
        case DateCheck::TooLate:
            refuse(langText(parts.backEnd, keys::afterDays));
            return false;
        case DateCheck::Same:
            return false;
        case DateCheck::Accepted:
            break;
    }
    if (parts.lists.rebuild(ListIndex::All, TableKind::ByDate, pickedKey()))
        return true;
    context.setStatusText({});
    return false;
}

void Days::goTo(const QDate& date) {
    if (auto* picker = parts.controls.find<SDateTimeCtrl>(ids::datePicker))
        picker->showDate(date);
    pick(date);
}

void Days::refuse(const QString& why) {
    parts.tip.showOver(parts.lists[ListIndex::All].grid(), why);
    if (auto* picker = parts.controls.find<SDateTimeCtrl>(ids::datePicker))
        picker->showDate(pager.pickedDate());
}

// --- News days ---

// The user's own choice of services counts, also while the warrant mode has set it aside.
void Days::follow(const CMarketStatus& status) {
    auto* picker = parts.controls.find<SDateTimeCtrl>(ids::datePicker);
    if (picker == nullptr)
        return;
    // A view of warrants alone has ticked nothing: it follows its own service.
    const bool onlyWarrants = parts.lists[ListIndex::All].grid() == nullptr;
    const int entry =
        onlyWarrants ? entryOfWarrants(status) : entryOfNewDay(parts.services.savedServices(), status);
    if (entry < 0)
        return;
    QDate day;
    try {
        day = dayOfNumber(status.date);
    } catch (const std::invalid_argument&) {
        return;
    }
    const bool keepsDay = !onlyWarrants && isKept(ListIndex::All);
    const bool isAnother = day != (keepsDay ? pager.currentNewsDay() : pager.pickedDate());
    parts.services.showDate(static_cast<std::size_t>(entry), status.date);
    if (!keepsDay)
        picker->showDate(day);
    pager.startNewsDay(day, keepsDay ? pager.pickedDate() : picker->date());
    if (onlyWarrants) {
        calls.readAgain(ListIndex::Warrant);
        return;
    }
    if (keepsDay) {
        readCurrentRelations();
    } else if (isKept(ListIndex::Relation)) {
        parts.lists.rebuildCurrent(ListIndex::All, parts.services.savedServices());
        parts.lists.noteMissed(ListIndex::Relation);
    } else {
        tellNewDay(status.service);
        readCurrentDates();
    }
    // Each service tells of the day; the warrants of it are read when the first does.
    if (isAnother && parts.settings.options[ViewOption::ReadMissedTables])
        calls.readNowOrWhenShown(ListIndex::Warrant);
}

bool Days::isKept(ListIndex list) const {
    return parts.settings.options[ViewOption::KeepReadDay] && context.shownList() == list &&
           calls.isRead(list);
}

// The entry of the warrant service for which a status begins a new news day; -1: it changes nothing.
int Days::entryOfWarrants(const CMarketStatus& status) const {
    const int index = parts.services.indexOfWarrants();
    const bool begins = index >= 0 && status.service == warrantService &&
                        parts.services.savedServices()[static_cast<std::size_t>(index)].date != status.date;
    return begins ? index : -1;
}

void Days::tellNewDay(unsigned char service) {
    CSuperSheetWnd* sheet = parts.lists[ListIndex::Relation].grid();
    if (context.shownList() != ListIndex::Relation || sheet == nullptr)
        sheet = parts.lists[ListIndex::All].grid();
    QString name;
    parts.backEnd.BKQNEWS_bGetShortNameByService(name, service);
    parts.tip.showOver(sheet, name + QLatin1Char(' ') + langText(parts.backEnd, keys::clearService));
}

bool Days::readCurrentDates() {
    if (parts.lists[ListIndex::All].grid() == nullptr)
        return false;
    parts.lists.rebuildCurrent(ListIndex::All, parts.services.savedServices());
    return readCurrentRelations();
}

bool Days::readCurrentRelations() {
    if (parts.lists[ListIndex::Relation].grid() == nullptr)
        return false;
    parts.lists.rebuildCurrent(ListIndex::Relation, parts.services.savedServices(), &calls.keySets());
    return true;
}

}  // namespace wirepane
