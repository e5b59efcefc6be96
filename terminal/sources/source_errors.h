// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::source_errors {

// Why something cannot be done to the list of sources, or to what it is kept in.
inline constexpr ErrorCode opmlNotOpened{"ERROR_SOURCES_OPML_NOT_OPENED", u"%1 cannot be read: %2"};
inline constexpr ErrorCode opmlNotWritten{"ERROR_SOURCES_OPML_NOT_WRITTEN", u"%1 cannot be written: %2"};
inline constexpr ErrorCode opmlTooLarge{"ERROR_SOURCES_OPML_TOO_LARGE",
                                        u"A list of feeds may have %1 bytes; this one is larger."};
inline constexpr ErrorCode noOpml{"ERROR_SOURCES_NO_OPML", u"This is no list of feeds: its root is <%1>."};
inline constexpr ErrorCode opmlWithoutFeeds{"ERROR_SOURCES_OPML_WITHOUT_FEEDS",
                                            u"The list names no feed that could be read."};

// Of secrets; what they say never holds one.
inline constexpr ErrorCode secretMissing{"ERROR_SOURCES_SECRET_MISSING",
                                         u"The keychain has no secret called %1."};
inline constexpr ErrorCode keychainFailed{"ERROR_SOURCES_KEYCHAIN_FAILED", u"The keychain failed: %1"};
inline constexpr ErrorCode keychainSilent{"ERROR_SOURCES_KEYCHAIN_SILENT", u"The keychain does not answer."};
inline constexpr ErrorCode secretStays{
    "ERROR_SOURCES_SECRET_STAYS",
    u"The list is as you wish, but the former secret of %1 could not be removed: %2"};
inline constexpr ErrorCode secretFileMissing{"ERROR_SOURCES_SECRET_FILE_MISSING",
                                             u"There is no file %1 with the secret."};
inline constexpr ErrorCode secretFileNotRead{"ERROR_SOURCES_SECRET_FILE_NOT_READ",
                                             u"The file %1 with the secret cannot be read: %2."};
inline constexpr ErrorCode secretFileOpen{"ERROR_SOURCES_SECRET_FILE_OPEN",
                                          u"Others may read or write the file %1 with the secret; it is used "
                                          u"when it is the user's alone (mode 0600)."};
inline constexpr ErrorCode secretFileNotWritten{"ERROR_SOURCES_SECRET_FILE_NOT_WRITTEN",
                                                u"The file %1 for the secret cannot be written: %2."};
inline constexpr ErrorCode secretFileNotRemoved{"ERROR_SOURCES_SECRET_FILE_NOT_REMOVED",
                                                u"The file %1 with the secret cannot be removed: %2."};

}  // namespace wirepane::source_errors
