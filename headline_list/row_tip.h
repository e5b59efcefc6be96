// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

class BKQuoteInterface;

namespace wirepane {
struct NewsState;
struct Withdrawal;

// What the tool tip of a row says: the whole title; in a second line the service, the topic, the time with
// its seconds, and how long ago that was at the moment `now` (nothing of a time to come). Empty parts are
// left out.
QString rowTip(BKQuoteInterface& backEnd, const QString& title, const QString& service, const QString& topic,
               std::int64_t time, std::int64_t now);

// What a tool tip says of news that was corrected or withdrawn, a line each, each after a line break; empty:
// it was not.
QString recordTip(BKQuoteInterface& backEnd, const NewsState& state);

// When news was withdrawn, and why.
QString withdrawalText(BKQuoteInterface& backEnd, const Withdrawal& withdrawal);

}  // namespace wirepane
