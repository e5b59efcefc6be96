// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/company_register.h"
#include "sample_wire/local_time.h"

#include <cstdint>

namespace wirepane::sample {

// Something that trades, at one moment. Prices are in the unit that the price was asked for in.
struct Quote {
    std::int64_t now = 0;
    std::int64_t previous = 0;  // the close of the trading day before

    bool up() const { return now >= previous; }
    // The size of the change against the previous close, in hundredths of a percent, at least 1.
    int change() const;
};

// Prices and index levels of the invented world. Each is a function of the seed and the moment alone, so that
// all headlines of a day agree with each other, whatever day the sample begins on.
class MarketState {
public:
    // The words must outlive it.
    MarketState(const WordTables& theWords, std::uint64_t worldSeed) : words(theWords), seed(worldSeed) {}

    Quote share(const Company& company, LocalTime at) const;  // hundredths, on the market's price steps
    std::int64_t volume(const Company& company, LocalTime at) const;  // of the day so far, in thousands
    Quote warrant(const Warrant& warrant, LocalTime at) const;        // hundredths
    std::int64_t volume(const Warrant& warrant, LocalTime at) const;
    Quote shareIndex(unsigned char market, LocalTime at) const;  // hundredths of a point
    Quote currency(int index, LocalTime at) const;               // ten-thousandths per US dollar
    Quote commodity(int index, LocalTime at) const;              // hundredths of a US dollar
    Quote bondYield(LocalTime at) const;                         // thousandths of a percent

private:
    // The level on a trading day, in parts of 100,000 of the usual one: a slow and a quick wave and the day's
    // own part, which is twice as large on one day in eight.
    int wave(std::uint64_t stream, std::int64_t tradingDay, int swing) const;
    Quote quote(std::uint64_t stream, std::int64_t usual, int swing, LocalTime at, int close) const;

    const WordTables& words;
    std::uint64_t seed;
};

}  // namespace wirepane::sample
