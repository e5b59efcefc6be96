// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/price_history.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace wirepane {

// The prices of a day, in two or three bytes each: a byte with the number of decimals that all of them need,
// at most six, then for each price how many minutes it is behind the one before (the first: behind the
// beginning of the day) and how many units of the last decimal above it, as numbers of as many bytes as they
// need.

constexpr std::int64_t secondsOfMinute = 60;
constexpr std::int64_t secondsOfDay = 86'400;

// Days are those of UTC, counted from 1970, so that no change of the clocks tears one apart.
constexpr std::int64_t priceDayOf(std::int64_t moment) {
    return moment >= 0 ? moment / secondsOfDay : (moment + 1) / secondsOfDay - 1;
}

// All are of one day, each of a later minute than the one before.
QByteArray packedPrices(std::span<const MinutePrice> prices);
// Nothing: these bytes are no prices of a day.
std::optional<std::vector<MinutePrice>> unpackedPrices(QByteArrayView packed, std::int64_t day);

}  // namespace wirepane
