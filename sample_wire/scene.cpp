// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/scene.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

constexpr int risingPermille = 600;
constexpr int notableChange = 150;  // hundredths of a percent
constexpr int moverChange = 60;

}  // namespace

Scene::Scene(const World& theWorld, const SceneSetting& theSetting)
    : worldRef(theWorld), setting(theSetting) {
    if (isAboutWarrant(setting.topic)) {
        mainWarrant = &pick(fact("warrant"), worldRef.companies.warrants());
        mainCompany = mainWarrant->underlying;
    } else {
        const std::vector<Company>& all = worldRef.companies.companies(setting.market);
        std::size_t index =
            static_cast<std::size_t>(draw(fact("company"), 0, static_cast<int>(all.size()) - 1));
        for (std::size_t tries = 0; tries < all.size() && !suits(all[index]); ++tries)
            index = (index + 1) % all.size();
        mainCompany = &all[index];
    }
    risen = findDirection();
}

bool Scene::suits(const Company& candidate) const {
    if (needsMaker(setting.topic))
        return candidate.sector->makesGoods;
    return setting.topic != Topic::StockMove || share(candidate).change() >= notableChange;
}

bool Scene::findDirection() const {
    switch (setting.topic) {
        case Topic::Earnings:
        case Topic::ProfitWarning:
            return quarter().up();
        case Topic::MonthlyRevenue:
        case Topic::NoticeRevenue:
        case Topic::NoticeAttention:
            return month().up();
        case Topic::StockMove:
        case Topic::WarrantActive:
            return share(*mainCompany).up();
        case Topic::Commodity:
            return worldRef.markets.commodity(commodityIndex(), setting.at).up();
        case Topic::Macro: {
            const Reading figures = reading();
            return figures.value > figures.prior;
        }
        default:
            return draw(fact("direction"), 0, 999) < risingPermille;
    }
}

bool Scene::isMonthly() const {
    return setting.topic == Topic::MonthlyRevenue || setting.topic == Topic::NoticeRevenue ||
           setting.topic == Topic::NoticeAttention;
}

int Scene::drawOfDay(std::uint64_t name, int low, int high) const {
    return inRange(
        hashOf(worldRef.seed, name, setting.market, static_cast<std::uint64_t>(setting.at.day.tradingDay())),
        low, high);
}

const Company& Scene::peer() const {
    const std::vector<Company>& all = worldRef.companies.companies(mainCompany->market);
    const std::size_t start =
        static_cast<std::size_t>(draw(fact("peer"), 0, static_cast<int>(all.size()) - 1));
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Company& candidate = all[(start + i) % all.size()];
        if (candidate.sector == mainCompany->sector && &candidate != mainCompany)
            return candidate;
    }
    return *mainCompany;
}

const Company& Scene::mover(int index) const {
    const std::vector<Company>& all = worldRef.companies.companies(setting.market);
    const bool gaining = index < 2;
    // Each mover is looked for in a quarter of its own, so that no two of them are the same.
    const std::size_t quarterSize = all.size() / 4;
    const std::size_t start = quarterSize * static_cast<std::size_t>(index);
    const std::size_t offset =
        static_cast<std::size_t>(draw(fact("mover"), 0, static_cast<int>(quarterSize) - 1));
    for (std::size_t i = 0; i < quarterSize; ++i) {
        const Company& candidate = all[start + (offset + i) % quarterSize];
        const Quote quote = share(candidate);
        if (quote.up() == gaining && quote.change() >= moverChange)
            return candidate;
    }
    return all[start + offset];
}

std::int64_t Scene::deal() const {
    const std::int64_t part = draw(fact("deal"), 25, 240);
    const std::int64_t sum = std::max<std::int64_t>(mainCompany->annualRevenue * part / 1000, 12);
    return sum < 1000 ? sum : sum / 10 * 10;
}

int Scene::currencyIndex() const {
    return draw(fact("currency"), 0, static_cast<int>(worldRef.words.currencies.size()) - 1);
}

int Scene::commodityIndex() const {
    return draw(fact("commodity"), 0, static_cast<int>(worldRef.words.commodities.size()) - 1);
}

const Country& Scene::country() const {
    return pick(fact("country"), worldRef.words.countries);
}

const Indicator& Scene::indicator() const {
    return pick(fact("indicator"), worldRef.words.indicators);
}

Scene::Reading Scene::reading() const {
    const Indicator& which = indicator();
    const std::uint64_t series =
        hashOf(static_cast<std::uint64_t>(
                   draw(fact("country"), 0, static_cast<int>(worldRef.words.countries.size()) - 1)),
               static_cast<std::uint64_t>(&which - worldRef.words.indicators.data()));
    // The figures of a series stay near a level of its own.
    const int swing = (which.high - which.low) / 8;
    const int level = inRange(hashOf(series), which.low + swing, which.high - swing);
    const auto at = [&](int month) {
        return level + inRange(hashOf(series, static_cast<std::uint64_t>(month)), -swing, swing);
    };
    const int month = reportMonth().number;
    Reading result{at(month), at(month - 1), 0};
    if (result.value == result.prior)
        ++result.prior;
    const int surprise = inRange(hashOf(series, 5, static_cast<std::uint64_t>(month)), 1, 6);
    result.forecast = result.value > result.prior ? result.value - surprise : result.value + surprise;
    return result;
}

void Scene::mention(const Company& which) {
    const auto end = mentions.begin() + static_cast<std::ptrdiff_t>(mentionCount);
    if (mentionCount < mentions.size() && std::find(mentions.begin(), end, &which) == end)
        mentions[mentionCount++] = &which;
}

}  // namespace wirepane::sample
