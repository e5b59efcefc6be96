// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/packed_prices.h"

#include <array>
#include <cmath>

namespace wirepane {

namespace {

constexpr std::array<double, 7> scales{1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
constexpr std::int64_t minutesOfDay = secondsOfDay / secondsOfMinute;

std::size_t decimalsOf(std::span<const MinutePrice> prices) {
    std::size_t decimals = 0;
    for (const MinutePrice& price : prices) {
        while (decimals + 1 < scales.size() &&
               std::round(price.price * scales[decimals]) / scales[decimals] != price.price)
            ++decimals;
    }
    return decimals;
}

void append(QByteArray& bytes, std::uint64_t number) {
    for (; number >= 0x80; number >>= 7)
        bytes += static_cast<char>(number | 0x80);
    bytes += static_cast<char>(number);
}

// Small numbers, whatever their sign, become small ones without.
std::uint64_t folded(std::int64_t number) {
    return (static_cast<std::uint64_t>(number) << 1) ^ static_cast<std::uint64_t>(number >> 63);
}

std::int64_t unfolded(std::uint64_t number) {
    return static_cast<std::int64_t>(number >> 1) ^ -static_cast<std::int64_t>(number & 1);
}

class NumberReader {
public:
    explicit NumberReader(QByteArrayView given) : bytes(given) {}

    bool isAtEnd() const { return place == bytes.size(); }
    std::optional<std::uint64_t> next() {
        std::uint64_t number = 0;
        for (int shift = 0; !isAtEnd() && shift < 63; shift += 7) {
            const auto byte = static_cast<unsigned char>(bytes[place++]);
            number |= static_cast<std::uint64_t>(byte & 0x7f) << shift;
            if (byte < 0x80)
                return number;
        }
        return std::nullopt;
    }

private:
    QByteArrayView bytes;
    qsizetype place = 0;
};

}  // namespace

QByteArray packedPrices(std::span<const MinutePrice> prices) {
    if (prices.empty())
        return {};
    const std::size_t decimals = decimalsOf(prices);
    QByteArray packed(1, static_cast<char>(decimals));
    std::int64_t minute = priceDayOf(prices.front().minute) * secondsOfDay;
    std::int64_t units = 0;
    for (const MinutePrice& price : prices) {
        const std::int64_t unitsNow = std::llround(price.price * scales[decimals]);
        append(packed, static_cast<std::uint64_t>((price.minute - minute) / secondsOfMinute));
        append(packed, folded(unitsNow - units));
        minute = price.minute;
        units = unitsNow;
    }
    return packed;
}

std::optional<std::vector<MinutePrice>> unpackedPrices(QByteArrayView packed, std::int64_t day) {
    if (packed.isEmpty() || static_cast<unsigned char>(packed.front()) >= scales.size())
        return std::nullopt;
    const double scale = scales[static_cast<unsigned char>(packed.front())];
    std::vector<MinutePrice> prices;
    std::uint64_t minute = 0;
    std::uint64_t units = 0;  // without a sign, as what is damaged may run over
    for (NumberReader reader(packed.sliced(1)); !reader.isAtEnd();) {
        const auto later = reader.next();
        const auto above = reader.next();
        const bool isInOrder = later && *later < minutesOfDay && (prices.empty() || *later > 0);
        if (!isInOrder || !above || minute + *later >= minutesOfDay)
            return std::nullopt;
        minute += *later;
        units += static_cast<std::uint64_t>(unfolded(*above));
        prices.push_back({day * secondsOfDay + static_cast<std::int64_t>(minute) * secondsOfMinute,
                          static_cast<double>(static_cast<std::int64_t>(units)) / scale});
    }
    return prices;
}

}  // namespace wirepane
