// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/market_state.h"

#include "sample_wire/random.h"

#include <algorithm>
#include <cstdlib>

namespace wirepane::sample {

namespace {

constexpr std::uint64_t indexStream = 1;
constexpr std::uint64_t currencyStream = 100;
constexpr std::uint64_t commodityStream = 200;
constexpr std::uint64_t bondStream = 300;
constexpr std::uint64_t volumeStream = 400;
constexpr std::uint64_t warrantStream = 500;

constexpr int openMinute = 9 * 60;
constexpr int closeMinute = 13 * 60 + 30;
constexpr int hongKongCloseMinute = 16 * 60;
constexpr int lateMinute = 23 * 60;  // what is traded around the clock

// How much of the day's move has been made, in thousandths. A third of it is made at the opening.
int progress(LocalTime at, int close) {
    if (at.day.isWeekend() || at.minute >= close)
        return 1000;
    if (at.minute < openMinute)
        return 350;
    return 350 + 650 * (at.minute - openMinute) / (close - openMinute);
}

// The step of prices, in hundredths.
int priceStep(std::int64_t price, bool hongKong) {
    if (hongKong)
        return price < 1'000 ? 1 : price < 10'000 ? 5 : 10;
    return price < 1'000     ? 1
           : price < 5'000   ? 5
           : price < 10'000  ? 10
           : price < 50'000  ? 50
           : price < 100'000 ? 100
                             : 500;
}

}  // namespace

int Quote::change() const {
    return std::max<int>(
        1, static_cast<int>(std::llabs(now - previous) * 10'000 / std::max<std::int64_t>(previous, 1)));
}

int MarketState::wave(std::uint64_t stream, std::int64_t tradingDay, int swing) const {
    const auto lattice = [&](std::int64_t length, std::uint64_t layer) {
        const std::int64_t left = tradingDay / length;
        const auto at = [&](std::int64_t knot) {
            return inRange(hashOf(seed, stream, layer, static_cast<std::uint64_t>(knot)), -swing, swing);
        };
        const int within = static_cast<int>(tradingDay % length);
        const int size = static_cast<int>(length);
        return (at(left) * (size - within) + at(left + 1) * within) / size;
    };
    const std::uint64_t day = hashOf(seed, stream, 3, static_cast<std::uint64_t>(tradingDay));
    const int own = inRange(day, -swing, swing) / 3;
    return 100'000 + lattice(40, 1) * 2 + lattice(9, 2) + (day % 8 == 0 ? own * 2 : own);
}

Quote MarketState::quote(std::uint64_t stream, std::int64_t usual, int swing, LocalTime at, int close) const {
    const std::int64_t today = at.day.tradingDay();
    const std::int64_t before = usual * wave(stream, today - 1, swing) / 100'000;
    const std::int64_t after = usual * wave(stream, today, swing) / 100'000;
    return {before + (after - before) * progress(at, close) / 1000, before};
}

Quote MarketState::share(const Company& company, LocalTime at) const {
    const bool hongKongShare = company.market == hongKongService;
    const int step = priceStep(company.price, hongKongShare);
    const auto rounded = [step](std::int64_t price) {
        return std::max<std::int64_t>((price + step / 2) / step, 5) * step;
    };
    const int close = hongKongShare ? hongKongCloseMinute : closeMinute;
    const Quote exact = quote(company.seed, company.price, 6'000, at, close);
    Quote result{rounded(exact.now), rounded(exact.previous)};
    if (result.now == result.previous)
        result.now += exact.up() ? step : -step;
    return result;
}

std::int64_t MarketState::volume(const Company& company, LocalTime at) const {
    const int turnover = inRange(
        hashOf(seed, volumeStream, company.seed, static_cast<std::uint64_t>(at.day.tradingDay())), 1, 12);
    const int close = company.market == hongKongService ? hongKongCloseMinute : closeMinute;
    return std::int64_t{company.shares} * turnover * progress(at, close) / 1000;
}

// A warrant makes three times the way of its share.
Quote MarketState::warrant(const Warrant& warrant, LocalTime at) const {
    const std::int64_t usual = warrant.underlying->price;
    const std::int64_t issued =
        inRange(hashOf(seed, warrantStream, static_cast<std::uint64_t>(warrant.code.toInt())), 60, 240);
    const auto moved = [&](std::int64_t price) {
        return std::max<std::int64_t>(issued * (3 * price - 2 * usual) / usual, 1);
    };
    const Quote underlying = share(*warrant.underlying, at);
    return {moved(underlying.now), moved(underlying.previous)};
}

std::int64_t MarketState::volume(const Warrant& warrant, LocalTime at) const {
    const auto code = static_cast<std::uint64_t>(warrant.code.toInt());
    const int most =
        inRange(hashOf(seed, warrantStream, code, static_cast<std::uint64_t>(at.day.tradingDay())), 0, 4'000);
    return std::int64_t{most} * progress(at, closeMinute) / 1000;
}

Quote MarketState::shareIndex(unsigned char market, LocalTime at) const {
    if (market == hongKongService)
        return quote(indexStream + market, 2'140'000, 2'000, at, hongKongCloseMinute);
    return quote(indexStream, 2'265'000, 2'000, at, closeMinute);
}

Quote MarketState::currency(int index, LocalTime at) const {
    return quote(currencyStream + static_cast<std::uint64_t>(index), words.currencies[index].level, 500, at,
                 lateMinute);
}

Quote MarketState::commodity(int index, LocalTime at) const {
    return quote(commodityStream + static_cast<std::uint64_t>(index), words.commodities[index].level, 4'200,
                 at, lateMinute);
}

Quote MarketState::bondYield(LocalTime at) const {
    return quote(bondStream, 1'480, 2'400, at, lateMinute);
}

}  // namespace wirepane::sample
