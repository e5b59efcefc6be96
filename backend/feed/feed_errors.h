// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::feed_errors {

// Of the lines of a feed.
inline constexpr ErrorCode unknownLine{
    "ERROR_FEED_UNKNOWN_LINE", u"The line holds no record of a known kind, and no greeting with a source."};
inline constexpr ErrorCode greetingNotFirst{"ERROR_FEED_GREETING_NOT_FIRST",
                                            u"A greeting can only be the first line."};
inline constexpr ErrorCode lineOver{"ERROR_FEED_LINE_OVER", u"The line is longer than %1 MiB."};
inline constexpr ErrorCode atPosition{"ERROR_FEED_AT_POSITION", u"%1"};

// Of spool folders and their files.
inline constexpr ErrorCode spoolFolderNotMade{
    "ERROR_FEED_SPOOL_FOLDER_NOT_MADE",
    u"The spool folder %1 cannot be used: the folder %2 in it cannot be made."};
inline constexpr ErrorCode spoolFolderLinked{"ERROR_FEED_SPOOL_FOLDER_LINKED",
                                             u"The spool folder %1 cannot be used: %2 in it is a link."};
inline constexpr ErrorCode spoolLink{"ERROR_FEED_SPOOL_LINK", u"This is a link; only files are taken."};
inline constexpr ErrorCode spoolFileTooLarge{"ERROR_FEED_SPOOL_FILE_TOO_LARGE",
                                             u"The file is larger than %1 bytes."};
inline constexpr ErrorCode spoolNotMoved{
    "ERROR_FEED_SPOOL_NOT_MOVED",
    u"%1 cannot be moved to the folder %2. It is left as it is and not taken again."};
inline constexpr ErrorCode rejectedAt{"ERROR_FEED_REJECTED_AT", u"%1: %2"};
inline constexpr ErrorCode moreRejected{"ERROR_FEED_MORE_REJECTED", u"and more: %1 items were rejected."};

// Of a program that feeds; %2 is why, in its own words or the system's.
inline constexpr ErrorCode programEnded{"ERROR_FEED_PROGRAM_ENDED", u"%1 has ended: %2"};

}  // namespace wirepane::feed_errors
