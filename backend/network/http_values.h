// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

namespace wirepane {

// What values in the head of an answer say. They come from outside: what is not well-formed says nothing.

// "Sun, 06 Nov 1994 08:49:37 GMT", or in one of its two old forms; seconds since 1970.
std::optional<std::int64_t> httpDate(QByteArrayView text);

// Seconds to wait from `now` on, by seconds or by a date; not below 0.
std::optional<std::int64_t> retryAfter(QByteArrayView text, std::int64_t now);

// For how many seconds the answer holds, as it says to whoever asks (not to shared caches); 0 where it wants
// to be asked again each time.
std::optional<std::int64_t> freshFor(QByteArrayView cacheControl);

// The charset that a content type names, in lower case; empty: none.
QByteArray charsetOf(QByteArrayView contentType);

}  // namespace wirepane
