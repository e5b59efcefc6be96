// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <cstdint>

// What the store takes at most. Lengths are in characters as QString counts them (UTF-16 code units).
namespace wirepane::limits {

inline constexpr qsizetype titleLength = 8192;
inline constexpr qsizetype storyLength = qsizetype{4} * 1024 * 1024;
inline constexpr int versions = 20;                          // of one piece of news, before the present one
inline constexpr qsizetype versionLength = 4 * storyLength;  // of their stories together
inline constexpr qsizetype withdrawalLength = 1024;          // a longer reason is cut
inline constexpr qsizetype identityLength = 2048;
inline constexpr qsizetype codeLength = 64;
inline constexpr qsizetype symbolNameLength = 256;
inline constexpr qsizetype categoryNameLength = 64;  // a longer name is cut
inline constexpr std::size_t relatedSymbols = 1000;

inline constexpr std::int64_t priceDays = 366;  // of the prices that were

inline constexpr double price = 1e12;  // and no change is larger

}  // namespace wirepane::limits
