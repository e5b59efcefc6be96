// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::settings_errors {

// Why what the terminal keeps is not written.
inline constexpr ErrorCode fileNotRead{"ERROR_SETTINGS_FILE_NOT_READ",
                                       u"The settings are not saved: the file %1 could not be read."};
inline constexpr ErrorCode folderNotMade{"ERROR_SETTINGS_FOLDER_NOT_MADE",
                                         u"The settings are not saved: the folder %1 cannot be made."};
inline constexpr ErrorCode fileNotWritten{"ERROR_SETTINGS_FILE_NOT_WRITTEN",
                                          u"The settings are not saved: the file %1 cannot be written."};
inline constexpr ErrorCode moduleFileNotWritten{"ERROR_SETTINGS_MODULE_FILE_NOT_WRITTEN",
                                                u"The file %1 cannot be written: %2."};

}  // namespace wirepane::settings_errors
