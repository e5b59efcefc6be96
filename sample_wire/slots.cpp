// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/slots.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

constexpr QStringView monthNames[] = {u"January",   u"February", u"March",    u"April",
                                      u"May",       u"June",     u"July",     u"August",
                                      u"September", u"October",  u"November", u"December"};

}  // namespace

void Writer::choose(bool first, QStringView english1, QStringView english2, QStringView chinese1,
                    QStringView chinese2) {
    if (scene.english())
        out += first ? english1 : english2;
    else
        out += first ? chinese1 : chinese2;
}

void Writer::integer(std::int64_t value) {
    char16_t digits[32];
    int at = 32;
    int written = 0;
    const bool negative = value < 0;
    std::uint64_t rest = negative ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    do {
        if (written > 0 && written % 3 == 0)
            digits[--at] = u',';
        digits[--at] = static_cast<char16_t>(u'0' + rest % 10);
        rest /= 10;
        ++written;
    } while (rest > 0);
    if (negative)
        digits[--at] = u'-';
    out += QStringView(digits + at, 32 - at);
}

void Writer::decimal(std::int64_t value, int decimals) {
    std::int64_t scale = 1;
    for (int i = 0; i < decimals; ++i)
        scale *= 10;
    integer(value / scale);
    if (decimals == 0)
        return;
    out += u'.';
    for (std::int64_t rest = value % scale; scale > 1; rest %= scale) {
        scale /= 10;
        out += QChar(static_cast<char16_t>(u'0' + rest / scale));
    }
}

void Writer::amount(std::int64_t millions) {
    if (scene.english()) {
        out += scene.hongKong() ? u"HK$" : u"NT$";
        if (millions >= 1000)
            decimal(millions / 10, 2);
        else
            integer(millions);
        out += millions >= 1000 ? QStringView(u" billion") : QStringView(u" million");
        return;
    }
    if (millions >= 1000)
        decimal(millions / 10, 1);
    else if (millions >= 100)
        decimal(millions, 2);
    else
        integer(millions * 100);
    out += millions >= 100 ? u'億' : u'萬';
    out += scene.hongKong() ? QStringView(u"港元") : QStringView(u"元");
}

void Writer::price(std::int64_t hundredths) {
    if (scene.english())
        out += scene.hongKong() ? u"HK$" : u"NT$";
    decimal(hundredths, 2);
    if (!scene.english())
        out += scene.hongKong() ? QStringView(u"港元") : QStringView(u"元");
}

void Writer::company(const Company& which) {
    scene.mention(which);
    out += which.name(scene.language());
}

void Writer::capitalised(QStringView words) {
    out += words.front().toUpper();
    out += words.mid(1);
}

void Writer::person(std::uint64_t seed) {
    const Word& family = words().surnames[hashOf(seed, 1) % words().surnames.size()];
    const Word& given = words().givenNames[hashOf(seed, 2) % words().givenNames.size()];
    word(family);
    if (scene.english())
        out += u' ';
    word(given);
}

void Writer::month(int month) {
    if (scene.english()) {
        out += monthNames[month - 1];
        return;
    }
    integer(month);
    out += u'月';
}

void Writer::date(Day day) {
    month(day.month());
    choose(u" ", {});
    integer(day.dayOfMonth());
    choose({}, u"日");
}

void Writer::civilDate(Day day) {
    integer(day.year() - civilYearZero);
    out += u'年';
    date(day);
}

SlotWriter findSlot(QStringView name) {
    for (const std::span<const Slot> table :
         {companySlots(), resultSlots(), marketSlots(), economySlots(), calendarSlots(), warrantSlots()}) {
        const auto found = std::find_if(table.begin(), table.end(), [name](const Slot& slot) {
            return name == QLatin1StringView(slot.name);
        });
        if (found != table.end())
            return found->write;
    }
    return nullptr;
}

}  // namespace wirepane::sample
