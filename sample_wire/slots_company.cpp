// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/slots.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

const Word& productOf(const Scene& scene, int which) {
    // The two products of a scene differ: they come from different halves of the sector's list.
    const auto& products = scene.company().sector->products;
    const int half = scene.draw(fact("product half"), 0, 1) ^ which;
    const int index = half * 2 + scene.draw(fact("product") + which, 0, 1);
    return products[static_cast<std::size_t>(index)];
}

const std::vector<Word>& sitesOf(const Scene& scene) {
    return scene.hongKong() ? scene.world().words.hongKongSites : scene.world().words.taiwanSites;
}

int brokerOf(const Scene& scene) {
    if (scene.warrant())
        return scene.warrant()->issuer;
    return scene.draw(fact("broker"), 0, static_cast<int>(scene.world().words.brokers.size()) - 1);
}

std::uint64_t sectorNumber(const Scene& scene) {
    return static_cast<std::uint64_t>(scene.company().sector->name.english.size());
}

void writePart(Writer& w, std::uint64_t name, int low, int high) {
    const std::int64_t sum = std::max<std::int64_t>(
        static_cast<std::int64_t>(w.scene.company().annualRevenue) * w.scene.draw(name, low, high) / 1000, 2);
    w.amount(sum < 1000 ? sum : sum / 10 * 10);
}

void writeYears(Writer& w) {
    static constexpr QStringView words[] = {u"two", u"three", u"four", u"five", u"six", u"seven"};
    const int years = w.scene.draw(fact("years"), 2, 7);
    if (w.scene.english())
        w.text(words[years - 2]);
    else
        w.integer(years);
}

void writeFull(Writer& w) {
    w.company(w.scene.company());
    if (w.scene.hongKong())
        w.choose(u" Holdings Ltd", u"控股有限公司");
    else
        w.choose(u" Co Ltd", u"股份有限公司");
}

constexpr Slot table[] = {
    {"co", [](Writer& w) { w.company(w.scene.company()); }},
    {"cofull", writeFull},
    {"code", [](Writer& w) { w.text(w.scene.company().code); }},
    {"sector", [](Writer& w) { w.word(w.scene.company().sector->name); }},
    {"sectorcap", [](Writer& w) { w.capitalised(w.scene.company().sector->name.in(w.scene.language())); }},
    {"product", [](Writer& w) { w.word(productOf(w.scene, 0)); }},
    {"product2", [](Writer& w) { w.word(productOf(w.scene, 1)); }},
    {"site", [](Writer& w) { w.word(sitesOf(w.scene)[w.scene.company().seed % sitesOf(w.scene).size()]); }},
    {"peer", [](Writer& w) { w.company(w.scene.peer()); }},
    {"peercode", [](Writer& w) { w.text(w.scene.peer().code); }},
    {"peermove", [](Writer& w) { w.decimal(w.scene.share(w.scene.peer()).change() / 10, 1); }},
    {"foreign", [](Writer& w) { w.text(w.scene.pick(fact("foreign"), w.words().foreignCompanies)); }},
    {"broker", [](Writer& w) { w.word(w.words().brokers[brokerOf(w.scene)].name); }},
    {"analyst",
     [](Writer& w) {
         w.person(
             hashOf(fact("analyst"), static_cast<std::uint64_t>(brokerOf(w.scene)), sectorNumber(w.scene)));
     }},
    {"chief", [](Writer& w) { w.person(hashOf(w.scene.company().seed, 21)); }},
    {"finance", [](Writer& w) { w.person(hashOf(w.scene.company().seed, 22)); }},
    {"chair", [](Writer& w) { w.person(hashOf(w.scene.company().seed, 23)); }},
    {"newcomer", [](Writer& w) { w.person(hashOf(w.scene.settings().seed, 24)); }},
    {"leaver", [](Writer& w) { w.person(hashOf(w.scene.settings().seed, 25)); }},
    {"role", [](Writer& w) { w.word(w.scene.pick(fact("role"), w.words().roles)); }},
    {"incident", [](Writer& w) { w.word(w.scene.pick(fact("incident"), w.words().incidents).name); }},
    {"incidentcap",
     [](Writer& w) { w.capitalised(w.scene.pick(fact("incident"), w.words().incidents).name.english); }},
    {"incidentart",
     [](Writer& w) { w.text(w.scene.pick(fact("incident"), w.words().incidents).withArticle); }},
    {"incidentartcap",
     [](Writer& w) { w.capitalised(w.scene.pick(fact("incident"), w.words().incidents).withArticle); }},
    {"deal", [](Writer& w) { w.amount(w.scene.deal()); }},
    {"ordershare", [](Writer& w) { w.decimal(w.scene.deal() * 1000 / w.scene.company().annualRevenue, 1); }},
    {"capex", [](Writer& w) { writePart(w, fact("capex"), 40, 190); }},
    {"loss", [](Writer& w) { writePart(w, fact("loss"), 3, 25); }},
    {"annual", [](Writer& w) { writePart(w, fact("annual"), 1000, 1000); }},
    {"netmargin", [](Writer& w) { w.decimal(w.scene.company().netMargin, 1); }},
    {"staff", [](Writer& w) { w.integer(std::max(w.scene.company().annualRevenue / 9 / 10 * 10, 60)); }},
    {"workers", [](Writer& w) { w.integer(w.scene.draw(fact("workers"), 4, 60) * 10); }},
    {"stake", [](Writer& w) { w.decimal(w.scene.draw(fact("stake"), 51, 499), 1); }},
    {"stake2", [](Writer& w) { w.decimal(w.scene.draw(fact("small stake"), 2, 48), 1); }},
    {"saving", [](Writer& w) { w.integer(w.scene.draw(fact("saving"), 12, 45)); }},
    {"years", [](Writer& w) { writeYears(w); }},
    {"months", [](Writer& w) { w.integer(w.scene.draw(fact("months"), 6, 18)); }},
    {"days", [](Writer& w) { w.integer(w.scene.draw(fact("days"), 3, 12)); }},
    {"count", [](Writer& w) { w.integer(w.scene.draw(fact("count"), 4, 24)); }},
    {"share", [](Writer& w) { w.integer(w.scene.draw(fact("share"), 21, 68)); }},
    {"rnd", [](Writer& w) { w.decimal(w.scene.draw(fact("rnd"), 21, 98), 1); }},
};

}  // namespace

std::span<const Slot> companySlots() {
    return table;
}

}  // namespace wirepane::sample
