// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::sound_errors {

// Why a file is not played.
inline constexpr ErrorCode notRead{"ERROR_SOUND_NOT_READ", u"%1 cannot be read: %2"};
inline constexpr ErrorCode noWave{"ERROR_SOUND_NO_WAVE",
                                  u"%1 is no WAV file of plain samples (PCM of 8 or 16 bits)."};
inline constexpr ErrorCode tooLong{"ERROR_SOUND_TOO_LONG", u"%1 is too long: a sound may last %2 seconds."};

}  // namespace wirepane::sound_errors
