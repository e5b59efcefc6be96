// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

class BKQuoteInterface;

namespace wirepane {

// What the tool tip of a row says: the whole title; in a second line the service, the topic, the time with
// its seconds, and how long ago that was at the moment `now` (nothing of a time to come). Empty parts are
// left out.
QString rowTip(BKQuoteInterface& backEnd, const QString& title, const QString& service, const QString& topic,
               std::int64_t time, std::int64_t now);

}  // namespace wirepane
