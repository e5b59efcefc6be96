// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/slots.h"

namespace wirepane::sample {

namespace {

constexpr QStringView weekdays[] = {u"Monday", u"Tuesday",  u"Wednesday", u"Thursday",
                                    u"Friday", u"Saturday", u"Sunday"};
constexpr QStringView chineseWeekdays[] = {u"週一", u"週二", u"週三", u"週四", u"週五", u"週六", u"週日"};
constexpr int paymentDelay = 28;

// A working day some days ahead.
Day ahead(const Scene& scene, int days) {
    Day day{scene.at().day.number + days};
    while (day.isWeekend())
        ++day.number;
    return day;
}

Day exDate(const Scene& scene) {
    return ahead(scene, scene.draw(fact("ex date"), 14, 40));
}
Day payDate(const Scene& scene) {
    return ahead(scene, static_cast<int>(exDate(scene).number - scene.at().day.number) + paymentDelay);
}
Day meeting(const Scene& scene) {
    return ahead(scene, scene.draw(fact("meeting"), 12, 55));
}
Day effective(const Scene& scene) {
    return ahead(scene, scene.draw(fact("effective"), 3, 30));
}

void writeClock(Writer& w) {
    const int minute = w.scene.at().minute;
    w.integer(minute / 60);
    w.text(minute % 60 < 10 ? u":0" : u":");
    w.integer(minute % 60);
}

constexpr Slot table[] = {
    {"today", [](Writer& w) { w.date(w.scene.at().day); }},
    {"todaydate",
     [](Writer& w) {
         w.integer(w.scene.at().day.dayOfMonth());
         w.text(u"日");
     }},
    {"weekday",
     [](Writer& w) {
         const int day = w.scene.at().day.weekday();
         w.choose(weekdays[day], chineseWeekdays[day]);
     }},
    {"clock", writeClock},
    {"month", [](Writer& w) { w.month(w.scene.reportMonth().month()); }},
    {"month2", [](Writer& w) { w.month(w.scene.at().day.month()); }},
    {"nextmonth", [](Writer& w) { w.month(w.scene.at().day.month()); }},
    {"monthcount", [](Writer& w) { w.integer(w.scene.reportMonth().month()); }},
    {"yearspast",
     [](Writer& w) {
         w.text(QString::number(w.scene.at().day.year() - w.scene.draw(fact("years past"), 4, 11)));
     }},
    {"exdate", [](Writer& w) { w.date(exDate(w.scene)); }},
    {"paydate", [](Writer& w) { w.date(payDate(w.scene)); }},
    {"meeting", [](Writer& w) { w.date(meeting(w.scene)); }},
    {"effective", [](Writer& w) { w.date(effective(w.scene)); }},
    {"rocdate", [](Writer& w) { w.civilDate(w.scene.at().day); }},
    {"rocnextdate", [](Writer& w) { w.civilDate(ahead(w.scene, 1)); }},
    {"rocexdate", [](Writer& w) { w.civilDate(exDate(w.scene)); }},
    {"rocpaydate", [](Writer& w) { w.civilDate(payDate(w.scene)); }},
    {"rocmeeting", [](Writer& w) { w.civilDate(meeting(w.scene)); }},
    {"roceffective", [](Writer& w) { w.civilDate(effective(w.scene)); }},
    {"rocmonth",
     [](Writer& w) {
         w.integer(w.scene.reportMonth().year() - Writer::civilYearZero);
         w.text(u"年");
         w.integer(w.scene.reportMonth().month());
         w.text(u"月");
     }},
};

}  // namespace

std::span<const Slot> calendarSlots() {
    return table;
}

}  // namespace wirepane::sample
