// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::database_errors {

// Why a store file cannot be used; %1 names it.
inline constexpr ErrorCode noFileNamed{"ERROR_DATABASE_NO_FILE_NAMED",
                                       u"No file is named for the news store."};
inline constexpr ErrorCode memoryIsNoFile{"ERROR_DATABASE_MEMORY_IS_NO_FILE",
                                          u"The news store is a file; \":memory:\" names none."};
inline constexpr ErrorCode singleByte{"ERROR_DATABASE_SINGLE_BYTE",
                                      u"%1 is not a news store (it holds a single byte)."};
inline constexpr ErrorCode noMemory{"ERROR_DATABASE_NO_MEMORY",
                                    u"%1 cannot be opened: there is no memory left."};
inline constexpr ErrorCode logNeeded{"ERROR_DATABASE_LOG_NEEDED",
                                     u"%1 cannot be read without its log %2, for which its folder must be "
                                     u"writable; copy both to one that is."};
inline constexpr ErrorCode noDatabase{"ERROR_DATABASE_NO_DATABASE",
                                      u"%1 is not a news store, or is damaged at its start (%2)."};
inline constexpr ErrorCode damaged{"ERROR_DATABASE_DAMAGED", u"%1 is damaged (%2)."};
inline constexpr ErrorCode inUse{"ERROR_DATABASE_IN_USE", u"%1 is being used by another program (%2)."};
inline constexpr ErrorCode notWritten{"ERROR_DATABASE_NOT_WRITTEN", u"%1 cannot be written to (%2)."};
inline constexpr ErrorCode notOpened{"ERROR_DATABASE_NOT_OPENED", u"%1 cannot be opened (%2)."};
inline constexpr ErrorCode diskFull{"ERROR_DATABASE_DISK_FULL", u"%1 cannot grow: the disk is full (%2)."};
inline constexpr ErrorCode notReadOrWritten{"ERROR_DATABASE_NOT_READ_OR_WRITTEN",
                                            u"%1 cannot be read or written (%2)."};
inline constexpr ErrorCode notUsed{"ERROR_DATABASE_NOT_USED", u"%1 cannot be used (%2)."};
inline constexpr ErrorCode takenAway{"ERROR_DATABASE_TAKEN_AWAY",
                                     u"%1 was moved or deleted while it was open: no news is taken in until "
                                     u"it is back or the program is started again."};
inline constexpr ErrorCode onlyRead{"ERROR_DATABASE_ONLY_READ", u"%1 can only be read: no news is taken in."};
inline constexpr ErrorCode backupExists{"ERROR_DATABASE_BACKUP_EXISTS",
                                        u"%1 is there already; name another file for the backup."};
inline constexpr ErrorCode notOnDisk{"ERROR_DATABASE_NOT_ON_DISK", u"%1 cannot be brought to its disk."};

}  // namespace wirepane::database_errors
