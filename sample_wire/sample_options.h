// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// Bounds of the length of a story in characters, the marks between its paragraphs included.
struct StoryLength {
    int least = 0;
    int most = 0;  // at least least + 1000: the last paragraph must find room
};

struct SampleOptions {
    static constexpr int mostDays = 10'000;
    static constexpr int mostHeadlinesPerDay = 1'000'000;

    std::uint64_t seed = 1;
    std::int64_t now = 0;  // the present moment, seconds since 1970, UTC
    int days = 7;     // calendar days (UTC+8) up to and with the one of the present moment; 1 to mostDays
    int leftOut = 0;  // of these days: the newest, which are not sent; then it is the news alone that is
    int headlinesPerDay =
        1500;  // on a working day, over all services; weekends have fewer; 1 to mostHeadlinesPerDay

    // The services that send; 16, 22, 52 and 122 have roles of their own, all others are ordinary wires: the
    // odd ones in English, the even ones in Chinese.
    std::vector<unsigned char> services = {1, 2, 16, 22, 122, 52};

    // The story of a flash comes up to some minutes after its headline; else it never comes.
    bool lateStories = false;
    bool stories = true;  // false: headlines only, for large stores quickly
    std::optional<StoryLength>
        storyLength;              // every headline has a story of that length; absent: as a desk writes
    int correctionPermille = 20;  // part of the items that are later versions of earlier ones
};

// What the wire calls itself as a source; its position is the moment up to which it has sent.
inline QString sourceName(const SampleOptions& options) {
    return QStringLiteral("sample-wire-%1").arg(options.seed);
}

}  // namespace wirepane
