// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::diary_errors {

inline constexpr ErrorCode notOpened{"ERROR_DIARY_NOT_OPENED", u"The diary %1 cannot be opened: %2."};
inline constexpr ErrorCode notWritten{"ERROR_DIARY_NOT_WRITTEN", u"The diary %1 cannot be written: %2."};
inline constexpr ErrorCode notRead{"ERROR_DIARY_NOT_READ", u"The diary %1 cannot be read: %2."};
inline constexpr ErrorCode headNotKept{"ERROR_DIARY_HEAD_NOT_KEPT",
                                       u"The store cannot keep how far the diary %1 goes: %2."};

}  // namespace wirepane::diary_errors
