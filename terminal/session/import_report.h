// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::import_report {

// What an import has come to.
inline constexpr ErrorCode importTotals{"ERROR_COMMANDS_IMPORT_TOTALS",
                                        u"%1 taken in, %2 already there, %3 rejected"};
inline constexpr ErrorCode fileRejected{"ERROR_COMMANDS_FILE_REJECTED", u"%1: %2"};
inline constexpr ErrorCode itemRejected{"ERROR_COMMANDS_ITEM_REJECTED", u"%1: %2: %3"};
inline constexpr ErrorCode filesNotRead{"ERROR_COMMANDS_FILES_NOT_READ",
                                        u"%1 of %2 {file|files} could not be read."};
inline constexpr ErrorCode nothingRecent{
    "ERROR_COMMANDS_NOTHING_RECENT",
    u"None of this news lies within the last 255 days. To see it, start the terminal with --now %1, or read "
    u"as of that moment (Ctrl+G in the terminal)."};
inline constexpr ErrorCode importStopped{
    "ERROR_COMMANDS_IMPORT_STOPPED",
    u"Stopped. The files taken in so far are kept; the same command goes on with the rest."};

}  // namespace wirepane::import_report
