// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::source_errors {

// Why something cannot be done to the list of sources, or to what it is kept in.
inline constexpr ErrorCode opmlNotOpened{"ERROR_SOURCES_OPML_NOT_OPENED", u"%1 cannot be read: %2"};
inline constexpr ErrorCode opmlTooLarge{"ERROR_SOURCES_OPML_TOO_LARGE",
                                        u"A list of feeds may have %1 bytes; this one is larger."};
inline constexpr ErrorCode noOpml{"ERROR_SOURCES_NO_OPML", u"This is no list of feeds: its root is <%1>."};
inline constexpr ErrorCode opmlWithoutFeeds{"ERROR_SOURCES_OPML_WITHOUT_FEEDS",
                                            u"The list names no feed that could be read."};

}  // namespace wirepane::source_errors
