// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/scene.h"

#include <QLatin1StringView>
#include <QString>

#include <cstdint>
#include <span>

namespace wirepane::sample {

// Writes facts of a scene at the end of a text, in the scene's language.
class Writer {
public:
    Writer(Scene& theScene, QString& text) : scene(theScene), out(text) {}

    void text(QStringView words) { out += words; }
    void word(const Word& entry) { out += entry.in(scene.language()); }
    void choose(bool first, QStringView english1, QStringView english2, QStringView chinese1,
                QStringView chinese2);
    void choose(QStringView english, QStringView chinese) { out += scene.english() ? english : chinese; }
    // Digits in groups of three.
    void integer(std::int64_t value);
    // A number that is given in units of 10 to the power of -decimals.
    void decimal(std::int64_t value, int decimals);
    // Money of the scene's market, given in millions: "NT$3.42 billion", "34.2億元".
    void amount(std::int64_t millions);
    // A price of the scene's market, given in hundredths: "NT$45.30", "45.30元".
    void price(std::int64_t hundredths);
    void company(const Company& which);  // its name; it counts as mentioned
    void capitalised(QStringView words);
    void person(std::uint64_t seed);
    void month(int month);    // "March", "3月"
    void date(Day day);       // "March 4", "3月4日"
    void civilDate(Day day);  // "114年3月4日"

    // The year before year 1 of the civil calendar.
    static constexpr int civilYearZero = 1911;

    const WordTables& words() const { return scene.world().words; }

    Scene& scene;

private:
    QString& out;
};

using SlotWriter = void (*)(Writer&);

struct Slot {
    const char* name;
    SlotWriter write;
};

std::span<const Slot> companySlots();
std::span<const Slot> resultSlots();
std::span<const Slot> marketSlots();
std::span<const Slot> economySlots();
std::span<const Slot> calendarSlots();
std::span<const Slot> warrantSlots();

// Null when there is none of that name.
SlotWriter findSlot(QStringView name);

}  // namespace wirepane::sample
