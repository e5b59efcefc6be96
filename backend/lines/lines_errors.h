// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::lines_errors {

// Why a local socket cannot be opened.
inline constexpr ErrorCode folderNotMade{"ERROR_LINES_FOLDER_NOT_MADE",
                                         u"The folder %1 for local sockets cannot be made: %2."};
inline constexpr ErrorCode folderNotOwn{"ERROR_LINES_FOLDER_NOT_OWN",
                                        u"The folder %1 for local sockets is not this user's alone."};
inline constexpr ErrorCode socketNotOpened{"ERROR_LINES_SOCKET_NOT_OPENED",
                                           u"The local socket %1 cannot be opened: %2."};
inline constexpr ErrorCode pathTooLong{"ERROR_LINES_PATH_TOO_LONG", u"the path is longer than %1 bytes"};
inline constexpr ErrorCode folderHeld{"ERROR_LINES_FOLDER_HELD",
                                      u"its folder is not there, or another program holds it"};
inline constexpr ErrorCode systemSays{"ERROR_LINES_SYSTEM_SAYS", u"%1"};
inline constexpr ErrorCode noSocket{"ERROR_LINES_NO_SOCKET",
                                    u"there is something of this name that is no socket"};
inline constexpr ErrorCode socketOfOther{"ERROR_LINES_SOCKET_OF_OTHER", u"it belongs to another user"};
inline constexpr ErrorCode socketInUse{"ERROR_LINES_SOCKET_IN_USE", u"it is in use by another program"};

}  // namespace wirepane::lines_errors
