// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/slots.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

constexpr QStringView quarterNouns[] = {u"first", u"second", u"third", u"fourth"};
constexpr QStringView quarterDigits[] = {u"一", u"二", u"三", u"四"};

void writeQuarterNoun(Writer& w, Quarter quarter) {
    w.choose(u"the ", u"第");
    w.choose(quarterNouns[quarter.index()], quarterDigits[quarter.index()]);
    w.choose(u" quarter", u"季");
}

void writeQuarterAdjective(Writer& w) {
    const int index = w.scene.reportQuarter().index();
    if (!w.scene.english())
        return writeQuarterNoun(w, w.scene.reportQuarter());
    w.text(quarterNouns[index]);
    w.text(u"-quarter");
}

std::int64_t revenueOf(const Scene& scene) {
    return scene.isMonthly() ? scene.month().revenue : scene.quarter().revenue;
}

std::int64_t revenueBeforeOf(const Scene& scene) {
    return scene.isMonthly() ? scene.month().yearBefore : scene.quarter().revenueBefore;
}

void writeRevenueChange(Writer& w) {
    const bool reported = w.scene.isMonthly() || w.scene.topic() == Topic::Earnings;
    w.decimal(reported ? changeInTenths(revenueOf(w.scene), revenueBeforeOf(w.scene))
                       : w.scene.draw(fact("forecast change"), 24, 346),
              1);
}

std::int64_t perShare(const Scene& scene, std::int64_t millions) {
    return std::max<std::int64_t>(millions * 100 / scene.company().shares, 1);
}

void writeGuide(Writer& w, int low, int high) {
    const std::int64_t sum = w.scene.quarter().revenue * w.scene.draw(fact("guide") + low, low, high) / 1000;
    w.amount(sum < 1000 ? sum : sum / 100 * 100);
}

// The dividend follows from the year's earnings per share; hundredths, in steps of five.
std::int64_t dividendOf(const Scene& scene) {
    const Company& company = scene.company();
    const std::int64_t earnings =
        perShare(scene, static_cast<std::int64_t>(company.annualRevenue) * company.netMargin / 1000);
    return std::max<std::int64_t>(earnings * inRange(hashOf(company.seed, 41), 40, 75) / 100 / 5 * 5, 10);
}

void writeDividendBefore(Writer& w) {
    const std::int64_t now = dividendOf(w.scene);
    const std::int64_t step =
        std::max<std::int64_t>(now * w.scene.draw(fact("dividend step"), 6, 30) / 100 / 5, 1) * 5;
    w.price(w.scene.up() ? std::max<std::int64_t>(now - step, 5) : now + step);
}

void writePayout(Writer& w) {
    const Company& company = w.scene.company();
    const std::int64_t earnings =
        perShare(w.scene, static_cast<std::int64_t>(company.annualRevenue) * company.netMargin / 1000);
    w.integer(dividendOf(w.scene) * 100 / earnings);
}

std::int64_t targetOf(const Scene& scene) {
    const std::int64_t price = scene.share(scene.company()).previous;
    const int step = price < 5'000 ? 10 : 100;
    const int part = scene.up() ? scene.draw(fact("target"), 112, 145) : scene.draw(fact("target"), 78, 104);
    return std::max<std::int64_t>(price * part / 100 / step, 1) * step;
}

void writeTargetBefore(Writer& w) {
    const std::int64_t now = targetOf(w.scene);
    const int step = now < 5'000 ? 10 : 100;
    const std::int64_t difference =
        std::max<std::int64_t>(now * w.scene.draw(fact("target step"), 7, 22) / 100 / step, 1) * step;
    w.price(w.scene.up() ? std::max<std::int64_t>(now - difference, step) : now + difference);
}

// What all who follow the company expect on average.
void writeMeanTarget(Writer& w) {
    const int part = inRange(hashOf(w.scene.company().seed, 42), 94, 131);
    w.price(w.scene.share(w.scene.company()).previous * part / 1000 * 10);
}

constexpr Slot table[] = {
    {"quarter", writeQuarterAdjective},
    {"quartercap",
     [](Writer& w) {
         w.capitalised(quarterNouns[w.scene.reportQuarter().index()]);
         w.text(u"-quarter");
     }},
    {"quarternoun", [](Writer& w) { writeQuarterNoun(w, w.scene.reportQuarter()); }},
    {"lastquarter", [](Writer& w) { writeQuarterNoun(w, w.scene.reportQuarter()); }},
    {"thisquarter", [](Writer& w) { writeQuarterNoun(w, {w.scene.reportQuarter().number + 1}); }},
    {"nextquarter", [](Writer& w) { writeQuarterNoun(w, {w.scene.reportQuarter().number + 2}); }},
    {"profit", [](Writer& w) { w.amount(w.scene.quarter().profit); }},
    {"pchg",
     [](Writer& w) {
         const QuarterResults results = w.scene.quarter();
         w.decimal(changeInTenths(results.profit, results.profitBefore), 1);
     }},
    {"rev", [](Writer& w) { w.amount(revenueOf(w.scene)); }},
    {"revprev", [](Writer& w) { w.amount(revenueBeforeOf(w.scene)); }},
    {"chg", writeRevenueChange},
    {"eps", [](Writer& w) { w.price(perShare(w.scene, w.scene.quarter().profit)); }},
    {"epsprev", [](Writer& w) { w.price(perShare(w.scene, w.scene.quarter().profitBefore)); }},
    {"margin", [](Writer& w) { w.decimal(w.scene.quarter().margin, 1); }},
    {"marginprev", [](Writer& w) { w.decimal(w.scene.quarter().marginBefore, 1); }},
    {"guidelow", [](Writer& w) { writeGuide(w, 960, 1000); }},
    {"guidehigh", [](Writer& w) { writeGuide(w, 1030, 1110); }},
    {"mom",
     [](Writer& w) { w.decimal(changeInTenths(w.scene.month().revenue, w.scene.month().monthBefore), 1); }},
    {"monup",
     [](Writer& w) {
         w.choose(w.scene.month().revenue >= w.scene.month().monthBefore, u"up", u"down", u"增", u"減");
     }},
    {"ytd", [](Writer& w) { w.amount(w.scene.month().yearToDate); }},
    {"ytdchg",
     [](Writer& w) {
         w.decimal(changeInTenths(w.scene.month().yearToDate, w.scene.month().yearToDateBefore), 1);
     }},
    {"ytdup",
     [](Writer& w) {
         w.choose(w.scene.month().yearToDate >= w.scene.month().yearToDateBefore, u"up", u"down", u"增",
                  u"減");
     }},
    {"ytdrose",
     [](Writer& w) {
         w.choose(w.scene.month().yearToDate >= w.scene.month().yearToDateBefore, u"rose", u"fell", u"成長",
                  u"衰退");
     }},
    {"cash", [](Writer& w) { w.price(dividendOf(w.scene)); }},
    {"cashprev", writeDividendBefore},
    {"payout", writePayout},
    {"yield",
     [](Writer& w) { w.decimal(dividendOf(w.scene) * 1000 / w.scene.share(w.scene.company()).previous, 1); }},
    {"target", [](Writer& w) { w.price(targetOf(w.scene)); }},
    {"targetold", writeTargetBefore},
    {"meantarget", writeMeanTarget},
    {"multiple", [](Writer& w) { w.integer(w.scene.draw(fact("multiple"), 12, 28)); }},
    {"raised", [](Writer& w) { w.choose(w.scene.up(), u"raised", u"cut", u"調升", u"調降"); }},
    {"up", [](Writer& w) { w.choose(w.scene.up(), u"up", u"down", u"增", u"減"); }},
    {"rose", [](Writer& w) { w.choose(w.scene.up(), u"rose", u"fell", u"成長", u"衰退"); }},
    {"rises", [](Writer& w) { w.choose(w.scene.up(), u"rises", u"falls", u"上升", u"下降"); }},
    {"rise", [](Writer& w) { w.choose(w.scene.up(), u"rise", u"fall", u"上漲", u"下跌"); }},
    {"higher", [](Writer& w) { w.choose(w.scene.up(), u"higher", u"lower", u"較高", u"較低"); }},
    {"more", [](Writer& w) { w.choose(w.scene.up(), u"more", u"fewer", u"增", u"減"); }},
    {"more2", [](Writer& w) { w.choose(w.scene.up(), u"improve", u"weaken", u"回升", u"下滑"); }},
    {"shortens", [](Writer& w) { w.choose(w.scene.up(), u"grows", u"shortens", u"加劇", u"緩解"); }},
    {"hkup", [](Writer& w) { w.choose(w.scene.up(), u"up", u"down", u"升", u"跌"); }},
    {"hkbeat", [](Writer& w) { w.choose(w.scene.up(), u"above", u"below", u"勝", u"遜"); }},
    {"alert", [](Writer& w) { w.choose(w.scene.up(), u"alert", u"warning", u"喜", u"警"); }},
};

}  // namespace

std::span<const Slot> resultSlots() {
    return table;
}

}  // namespace wirepane::sample
