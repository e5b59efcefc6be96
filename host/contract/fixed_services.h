// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// The services that have a role of their own, by id; all others are ordinary news services. The markets of
// symbols carry the same numbers.
inline constexpr unsigned char stockExchangeService = 16;
inline constexpr unsigned char hongKongService = 22;
inline constexpr unsigned char delayedHongKongService = 23;  // the same market with delayed quotes
inline constexpr unsigned char warrantService = 52;
inline constexpr unsigned char emergingBoardService = 122;

}  // namespace wirepane
