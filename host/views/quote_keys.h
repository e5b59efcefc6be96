// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

namespace wirepane {

// The language keys of quote lists.
namespace quote_keys {

inline constexpr QLatin1StringView code{"IDS_QUOTE-LIST_CODE"};
inline constexpr QLatin1StringView name{"IDS_QUOTE-LIST_NAME"};
inline constexpr QLatin1StringView last{"IDS_QUOTE-LIST_LAST"};
inline constexpr QLatin1StringView change{"IDS_QUOTE-LIST_CHANGE"};
inline constexpr QLatin1StringView percent{"IDS_QUOTE-LIST_PERCENT"};
inline constexpr QLatin1StringView volume{"IDS_QUOTE-LIST_VOLUME"};

}  // namespace quote_keys

}  // namespace wirepane
