// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {

// Bounds of the length of a story in characters, the marks between its paragraphs included.
struct StoryLength {
    int least = 0;
    int most = 0;  // at least least + 1000: the last paragraph must find room
};

struct SampleOptions {
    std::uint64_t seed = 1;
    std::int64_t now = 0;  // the present moment, seconds since 1970, UTC
    int days = 7;          // calendar days (UTC+8) up to and with the one of the present moment; 1 to 10,000
    int headlinesPerDay = 1500;  // on a working day, over all services; weekends have fewer; 1 to 1,000,000

    // The services that send; 16, 22, 52 and 122 have roles of their own, all others are ordinary wires: the
    // odd ones in English, the even ones in Chinese.
    std::vector<unsigned char> services = {1, 2, 16, 22, 122, 52};

    bool stories = true;  // false: headlines only, for large stores quickly
    std::optional<StoryLength>
        storyLength;              // every headline has a story of that length; absent: as a desk writes
    int correctionPermille = 20;  // part of the items that are later versions of earlier ones
};

// An invented news wire: companies, people and events that never were, in English and Traditional Chinese.
//
// The same options give the same items, byte for byte, on every platform. A later present moment with
// otherwise equal options gives the same news up to the earlier one (with the same identities), and goes on
// from there.
class SampleWire {
public:
    // Takes one item; false: no more are wanted.
    using Taker = std::function<bool(StoreItem&&)>;

    explicit SampleWire(SampleOptions options);
    ~SampleWire();

    // Hands over the categories of the services, then the symbols of the markets 16, 22, 122 and 52 (whatever
    // the services) and their quotes of the present moment, then the news from the oldest to the newest, none
    // later than the present moment. True: all were taken. May be called again, and starts from the beginning
    // then.
    bool run(const Taker& take) const;

private:
    class Desk;
    std::unique_ptr<const Desk> desk;
};

}  // namespace wirepane
