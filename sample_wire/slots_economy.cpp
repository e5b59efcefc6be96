// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/slots.h"

namespace wirepane::sample {

namespace {

void writeReading(Writer& w, int tenths) {
    w.decimal(tenths, w.scene.indicator().decimals);
    if (w.scene.indicator().percent)
        w.text(u"%");
}

const CentralBank& bankOf(const Scene& scene) {
    return scene.pick(fact("central bank"), scene.world().words.centralBanks);
}

const Word& cityOf(const Scene& scene) {
    const WordTables& words = scene.world().words;
    return scene.pick(fact("city"), scene.hongKong() ? words.hongKongCities : words.taiwanCities);
}

constexpr Slot table[] = {
    {"country", [](Writer& w) { w.word(w.scene.country().name); }},
    {"thecountry",
     [](Writer& w) { w.choose(w.scene.country().withArticle, w.scene.country().name.chinese); }},
    {"indicator", [](Writer& w) { w.word(w.scene.indicator().name); }},
    {"value", [](Writer& w) { writeReading(w, w.scene.reading().value); }},
    {"prior", [](Writer& w) { writeReading(w, w.scene.reading().prior); }},
    {"forecast", [](Writer& w) { writeReading(w, w.scene.reading().forecast); }},
    {"beats", [](Writer& w) { w.choose(w.scene.up(), u"beats", u"misses", u"優於", u"不如"); }},
    {"centralbank", [](Writer& w) { w.word(bankOf(w.scene).name); }},
    {"centralbankcap", [](Writer& w) { w.capitalised(bankOf(w.scene).name.in(w.scene.language())); }},
    {"rate", [](Writer& w) { w.text(bankOf(w.scene).rate); }},
    {"majority", [](Writer& w) { w.integer(w.scene.draw(fact("majority"), 58, 94)); }},
    {"rulearea", [](Writer& w) { w.word(w.scene.pick(fact("rule area"), w.words().ruleAreas)); }},
    {"breach", [](Writer& w) { w.word(w.scene.pick(fact("breach"), w.words().breaches)); }},
    {"fine", [](Writer& w) { w.amount(w.scene.draw(fact("fine"), 1, 12)); }},
    {"cost", [](Writer& w) { w.amount(w.scene.draw(fact("cost"), 2, 9)); }},
    {"city", [](Writer& w) { w.word(cityOf(w.scene)); }},
    {"abroad", [](Writer& w) { w.word(w.scene.pick(fact("abroad"), w.words().citiesAbroad)); }},
    {"jobless",
     [](Writer& w) {
         w.decimal(inRange(hashOf(static_cast<std::uint64_t>(w.scene.reportMonth().number),
                                  w.scene.country().name.english.size()),
                           31, 52),
                   1);
     }},
};

}  // namespace

std::span<const Slot> economySlots() {
    return table;
}

}  // namespace wirepane::sample
