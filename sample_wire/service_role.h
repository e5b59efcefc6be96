// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/company_register.h"
#include "sample_wire/topic.h"

#include <cstdint>
#include <span>

namespace wirepane::sample {

// A topic that a service reports on.
struct Beat {
    Topic topic;
    std::int32_t category;
    int weight = 0;
    int fromMinute = 0;  // of the day
    int toMinute = 24 * 60;
    bool tradingDaysOnly = false;
    int englishPermille = 0;  // of a Chinese service's headlines on it
};

// The weight of news at a minute of the day; between two points it changes evenly.
struct RhythmPoint {
    int minute = 0;
    int weight = 0;
};

// What a service is for in the sample wire.
struct ServiceRole {
    Language language = Language::English;
    unsigned char market = stockExchangeService;
    unsigned char otherMarket = 0;  // 0: none
    int otherMarketPermille = 0;    // part of the company news that is about the other market
    int share = 0;                  // of all headlines, beside the other services' shares
    int weekendPermille = 0;        // of a working day's headlines
    std::span<const Beat> beats;
    std::span<const RhythmPoint> rhythm;
};

// The role of a service. Services without a fixed role are ordinary wires: the odd ones English, the even
// ones Chinese.
const ServiceRole& roleOf(unsigned char service);
bool isOrdinaryWire(unsigned char service);

}  // namespace wirepane::sample
