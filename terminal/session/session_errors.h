// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::session_errors {

// Why the terminal cannot do what it is told to.
inline constexpr ErrorCode folderNotMade{"ERROR_SESSION_FOLDER_NOT_MADE", u"The folder %1 cannot be made."};
inline constexpr ErrorCode settingsFolderNotMade{"ERROR_SESSION_SETTINGS_FOLDER_NOT_MADE",
                                                 u"The settings folder %1 cannot be made."};
inline constexpr ErrorCode moduleNotFound{"ERROR_SESSION_MODULE_NOT_FOUND",
                                          u"The news module %1 was found neither in %2 nor in %3."};
inline constexpr ErrorCode moduleNotLoaded{"ERROR_SESSION_MODULE_NOT_LOADED", u"%1"};
inline constexpr ErrorCode guideMissing{"ERROR_SESSION_GUIDE_MISSING", u"The guide %1 is missing."};
inline constexpr ErrorCode sampleNotTaken{"ERROR_SESSION_SAMPLE_NOT_TAKEN",
                                          u"The sample wire does not fit into this store: %1"};
inline constexpr ErrorCode categoriesNotChanged{"ERROR_SESSION_CATEGORIES_NOT_CHANGED",
                                                u"The categories of the store could not be changed: %1"};
inline constexpr ErrorCode sampleStopped{"ERROR_SESSION_SAMPLE_STOPPED",
                                         u"Stopped; nothing of the sample was kept."};
inline constexpr ErrorCode sampleNotStarted{"ERROR_SESSION_SAMPLE_NOT_STARTED",
                                            u"The sample wire %1 cannot be started: %2"};
inline constexpr ErrorCode sampleBrokeOff{"ERROR_SESSION_SAMPLE_BROKE_OFF", u"The sample wire broke off. %1"};
inline constexpr ErrorCode sampleBrokeOffSilently{"ERROR_SESSION_SAMPLE_BROKE_OFF_SILENTLY",
                                                  u"The sample wire broke off."};
inline constexpr ErrorCode unknownSource{"ERROR_SESSION_UNKNOWN_SOURCE",
                                         u"There is no kind of source called \"%1\"."};

}  // namespace wirepane::session_errors
