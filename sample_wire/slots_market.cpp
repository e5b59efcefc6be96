// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/slots.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

constexpr int oilCommodity = 0;
constexpr int goldCommodity = 1;
constexpr int taiwanCurrency = 0;
constexpr int yuanCurrency = 2;

Quote currencyOf(const Scene& scene) {
    return scene.world().markets.currency(scene.currencyIndex(), scene.at());
}

const Currency& currencyEntry(const Scene& scene) {
    return scene.world().words.currencies[scene.currencyIndex()];
}

void writeRate(Writer& w, int index, std::int64_t value) {
    static constexpr int scales[] = {10'000, 1'000, 100, 10, 1};
    const int decimals = w.words().currencies[index].decimals;
    w.decimal(value / scales[decimals], decimals);
}

void writeNow(Writer& w, int index) {
    writeRate(w, index, w.scene.world().markets.currency(index, w.scene.at()).now);
}

Quote commodityOf(const Scene& scene) {
    return scene.world().markets.commodity(scene.commodityIndex(), scene.at());
}

void writeCommodity(Writer& w, int index) {
    w.decimal(w.scene.world().markets.commodity(index, w.scene.at()).now, 2);
}

void writeMove(Writer& w, const Company& company) {
    w.decimal(w.scene.share(company).change(), 2);
}

// At the opening a third of the day's move has been made.
void writeOpening(Writer& w) {
    const LocalTime opening{w.scene.at().day, 9 * 60};
    w.decimal(w.scene.world().markets.shareIndex(w.scene.settings().market, opening).change(), 2);
}

std::int64_t turnoverOf(const Scene& scene) {
    return scene.drawOfDay(fact("turnover"), 18'000, 42'000) * 10;
}

bool fundsBuy(const Scene& scene) {
    return scene.drawOfDay(fact("funds buy"), 0, 99) < (scene.shareIndex().up() ? 80 : 25);
}

int advances(const Scene& scene) {
    return scene.drawOfDay(fact("advances"), 0, 70) + (scene.shareIndex().up() ? 190 : 80);
}

std::int64_t placingPrice(const Scene& scene) {
    return scene.share(scene.company()).previous * (1000 - scene.draw(fact("discount"), 40, 160)) / 1000;
}

int lotsOf(const Scene& scene) {
    return scene.draw(fact("lots"), 812, 38'640);
}

// What the shares bought back cost: lots of a thousand at the price named.
void writeBuyback(Writer& w) {
    const std::int64_t thousands =
        static_cast<std::int64_t>(lotsOf(w.scene)) * w.scene.share(w.scene.company()).now / 100;
    const std::int64_t millions = std::max<std::int64_t>(thousands / 1000, 1);
    w.amount(millions < 1000 ? millions : millions / 10 * 10);
}

// The part that the placed shares make up of all shares after the placing.
void writePlacedShare(Writer& w) {
    const std::int64_t placed =
        w.scene.deal() * 100 * 1000 / std::max<std::int64_t>(placingPrice(w.scene), 1);
    const std::int64_t all = static_cast<std::int64_t>(w.scene.company().shares) * 1000 + placed;
    w.decimal(placed * 1000 / all, 1);
}

void writeDiscount(Writer& w) {
    const std::int64_t close = w.scene.share(w.scene.company()).previous;
    w.decimal((close - placingPrice(w.scene)) * 1000 / close, 1);
}

bool indexUp(const Scene& scene) {
    return scene.shareIndex().up();
}

constexpr Slot table[] = {
    {"price",
     [](Writer& w) {
         const Quote quote = w.scene.share(w.scene.company());
         const bool live = w.scene.topic() == Topic::StockMove || w.scene.topic() == Topic::Buyback;
         w.price(live ? quote.now : quote.previous);
     }},
    {"move", [](Writer& w) { writeMove(w, w.scene.company()); }},
    {"lots", [](Writer& w) { w.integer(lotsOf(w.scene)); }},
    {"cap",
     [](Writer& w) {
         const std::int64_t value = static_cast<std::int64_t>(w.scene.company().shares) *
                                    w.scene.share(w.scene.company()).previous / 100;
         w.amount(value < 1000 ? value : value / 10 * 10);
     }},
    {"close", [](Writer& w) { w.price(w.scene.share(w.scene.company()).previous); }},
    {"spent", writeBuyback},
    {"placed", writePlacedShare},
    {"placing", [](Writer& w) { w.price(placingPrice(w.scene)); }},
    {"discount", writeDiscount},

    {"level", [](Writer& w) { w.decimal(w.scene.shareIndex().now, 2); }},
    {"ipct", [](Writer& w) { w.decimal(w.scene.shareIndex().change(), 2); }},
    {"iopen", writeOpening},
    {"iup", [](Writer& w) { w.choose(indexUp(w.scene), u"up", u"down", u"漲", u"跌"); }},
    {"irises", [](Writer& w) { w.choose(indexUp(w.scene), u"rises", u"falls", u"上漲", u"下跌"); }},
    {"ihigher", [](Writer& w) { w.choose(indexUp(w.scene), u"higher", u"lower", u"走高", u"走低"); }},
    {"iopenhow", [](Writer& w) { w.choose(indexUp(w.scene), u"opens up", u"opens down", u"開高", u"開低"); }},
    {"hkiup", [](Writer& w) { w.choose(indexUp(w.scene), u"up", u"down", u"升", u"跌"); }},
    {"turnover", [](Writer& w) { w.amount(turnoverOf(w.scene)); }},
    {"halfturnover", [](Writer& w) { w.amount(turnoverOf(w.scene) * 56 / 1000 * 10); }},
    {"thinner",
     [](Writer& w) {
         w.choose(w.scene.drawOfDay(fact("thin"), 0, 1) == 0, u"thinner", u"larger", u"略減", u"略增");
     }},
    {"adv", [](Writer& w) { w.integer(advances(w.scene)); }},
    {"dec", [](Writer& w) { w.integer(342 - advances(w.scene)); }},

    {"up1", [](Writer& w) { w.company(w.scene.mover(0)); }},
    {"up1code", [](Writer& w) { w.text(w.scene.mover(0).code); }},
    {"up1move", [](Writer& w) { writeMove(w, w.scene.mover(0)); }},
    {"up2", [](Writer& w) { w.company(w.scene.mover(1)); }},
    {"up2code", [](Writer& w) { w.text(w.scene.mover(1).code); }},
    {"up2move", [](Writer& w) { writeMove(w, w.scene.mover(1)); }},
    {"down1", [](Writer& w) { w.company(w.scene.mover(2)); }},
    {"down1code", [](Writer& w) { w.text(w.scene.mover(2).code); }},
    {"down1move", [](Writer& w) { writeMove(w, w.scene.mover(2)); }},
    {"down2", [](Writer& w) { w.company(w.scene.mover(3)); }},
    {"down2code", [](Writer& w) { w.text(w.scene.mover(3).code); }},
    {"down2move", [](Writer& w) { writeMove(w, w.scene.mover(3)); }},

    {"flow", [](Writer& w) { w.amount(w.scene.drawOfDay(fact("flow"), 120, 2'900) * 10); }},
    {"fbought", [](Writer& w) { w.choose(fundsBuy(w.scene), u"bought", u"sold", u"買超", u"賣超"); }},
    {"fbuyers", [](Writer& w) { w.choose(fundsBuy(w.scene), u"buyers", u"sellers", u"買超", u"賣超"); }},
    {"hkbought", [](Writer& w) { w.choose(fundsBuy(w.scene), u"bought", u"sold", u"淨買入", u"淨賣出"); }},

    {"yld", [](Writer& w) { w.decimal(w.scene.world().markets.bondYield(w.scene.at()).now, 3); }},
    {"yup",
     [](Writer& w) {
         w.choose(w.scene.world().markets.bondYield(w.scene.at()).up(), u"up", u"down", u"上揚", u"下滑");
     }},
    {"ybp",
     [](Writer& w) {
         const Quote yield = w.scene.world().markets.bondYield(w.scene.at());
         w.decimal(yield.up() ? yield.now - yield.previous : yield.previous - yield.now, 1);
     }},
    {"cover", [](Writer& w) { w.decimal(w.scene.drawOfDay(fact("cover"), 142, 266), 2); }},
    {"cover10", [](Writer& w) { w.integer(w.scene.draw(fact("oversubscribed"), 6, 94)); }},

    {"fx", [](Writer& w) { writeRate(w, w.scene.currencyIndex(), currencyOf(w.scene).now); }},
    {"fxprev", [](Writer& w) { writeRate(w, w.scene.currencyIndex(), currencyOf(w.scene).previous); }},
    {"fxpct", [](Writer& w) { w.decimal(currencyOf(w.scene).change(), 2); }},
    {"fxup", [](Writer& w) { w.choose(currencyOf(w.scene).up(), u"up", u"down", u"升", u"跌"); }},
    {"fxfirms",
     [](Writer& w) { w.choose(currencyOf(w.scene).up(), u"firms", u"weakens", u"走強", u"走弱"); }},
    {"fxfirmed",
     [](Writer& w) { w.choose(currencyOf(w.scene).up(), u"firmed", u"weakened", u"走強", u"走弱"); }},
    {"fxother",
     [](Writer& w) { w.choose(currencyOf(w.scene).up(), u"weakens", u"firms", u"走貶", u"走升"); }},
    {"curname", [](Writer& w) { w.word(currencyEntry(w.scene).name); }},
    {"cur", [](Writer& w) { w.text(currencyEntry(w.scene).name.english.mid(4)); }},
    {"curcap", [](Writer& w) { w.capitalised(currencyEntry(w.scene).name.english.mid(4)); }},
    {"curunit", [](Writer& w) { w.text(currencyEntry(w.scene).unit); }},
    {"twd", [](Writer& w) { writeNow(w, taiwanCurrency); }},
    {"cny", [](Writer& w) { writeNow(w, yuanCurrency); }},

    {"cmd", [](Writer& w) { w.word(w.words().commodities[w.scene.commodityIndex()].name); }},
    {"cmdcap",
     [](Writer& w) { w.capitalised(w.words().commodities[w.scene.commodityIndex()].name.english); }},
    {"cprice", [](Writer& w) { w.decimal(commodityOf(w.scene).now, 2); }},
    {"cpct", [](Writer& w) { w.decimal(commodityOf(w.scene).change(), 2); }},
    {"cunit", [](Writer& w) { w.word(w.words().commodities[w.scene.commodityIndex()].unit); }},
    {"oil", [](Writer& w) { writeCommodity(w, oilCommodity); }},
    {"gold", [](Writer& w) { writeCommodity(w, goldCommodity); }},
};

}  // namespace

std::span<const Slot> marketSlots() {
    return table;
}

}  // namespace wirepane::sample
