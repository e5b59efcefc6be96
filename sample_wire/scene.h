// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/company_register.h"
#include "sample_wire/local_time.h"
#include "sample_wire/market_state.h"
#include "sample_wire/random.h"
#include "sample_wire/results.h"
#include "sample_wire/topic.h"

#include <array>
#include <cstdint>
#include <span>

namespace wirepane::sample {

// The number under which a fact is drawn; made from a name, so that facts with one name are one fact.
consteval std::uint64_t fact(const char* name) {
    std::uint64_t hash = 14695981039346656037ULL;
    for (; *name; ++name)
        hash = (hash ^ static_cast<unsigned char>(*name)) * 1099511628211ULL;
    return hash;
}

// What the sample wire knows about its world.
struct World {
    const WordTables& words;
    const CompanyRegister& companies;
    const MarketState& markets;
    std::uint64_t seed = 0;
};

// Who and what one event is about.
struct SceneSetting {
    Topic topic = Topic::Earnings;
    Language language = Language::English;
    unsigned char market = stockExchangeService;  // whose companies and index it is about
    LocalTime at;
    std::uint64_t seed = 0;
};

// The facts of one event. They are drawn when they are asked for, each from the event's seed and its own
// name: the same event always has the same facts, however often and in whatever order its headline and story
// are written.
class Scene {
public:
    Scene(const World& theWorld, const SceneSetting& theSetting);

    const World& world() const { return worldRef; }
    Topic topic() const { return setting.topic; }
    Language language() const { return setting.language; }
    bool english() const { return setting.language == Language::English; }
    bool hongKong() const { return setting.market == hongKongService; }
    LocalTime at() const { return setting.at; }
    const SceneSetting& settings() const { return setting; }
    const Company& company() const { return *mainCompany; }
    const Warrant* warrant() const { return mainWarrant; }
    bool fits(Mood mood) const { return mood == Mood::Any || (mood == Mood::Good) == risen; }
    bool up() const { return risen; }

    // A fact of this event, from low to high, both included.
    int draw(std::uint64_t name, int low, int high) const {
        return inRange(hashOf(setting.seed, name), low, high);
    }
    // A fact that all events of the day share.
    int drawOfDay(std::uint64_t name, int low, int high) const;
    template <class Entries>
    const auto& pick(std::uint64_t name, const Entries& entries) const {
        return entries[draw(name, 0, static_cast<int>(entries.size()) - 1)];
    }

    const Company& peer() const;
    // The companies that stand out today: 0 and 1 gain, 2 and 3 lose.
    const Company& mover(int index) const;
    std::int64_t deal() const;  // the sum at stake, in millions
    int currencyIndex() const;
    int commodityIndex() const;
    Quote share(const Company& which) const { return worldRef.markets.share(which, setting.at); }
    Quote shareIndex() const { return worldRef.markets.shareIndex(setting.market, setting.at); }

    Month reportMonth() const { return {Month::of(setting.at.day).number - 1}; }
    Quarter reportQuarter() const { return {Quarter::of(setting.at.day).number - 1}; }
    QuarterResults quarter() const { return quarterResults(*mainCompany, reportQuarter()); }
    MonthRevenue month() const { return monthRevenue(*mainCompany, reportMonth()); }
    bool isMonthly() const;  // the event is about a month's revenue

    // One figure of the economy; tenths.
    struct Reading {
        int value = 0;
        int prior = 0;
        int forecast = 0;
    };
    const Country& country() const;
    const Indicator& indicator() const;
    Reading reading() const;

    // What the texts written so far have named, the main one first.
    void mention(const Company& which);
    std::span<const Company* const> mentioned() const { return {mentions.data(), mentionCount}; }

private:
    bool suits(const Company& candidate) const;  // for the topic
    bool findDirection() const;

    const World& worldRef;
    SceneSetting setting;
    const Company* mainCompany = nullptr;
    const Warrant* mainWarrant = nullptr;
    bool risen = true;
    std::array<const Company*, 8> mentions{};
    std::size_t mentionCount = 0;
};

}  // namespace wirepane::sample
