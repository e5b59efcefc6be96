// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::frame_errors {

// Why a view cannot be opened.
inline constexpr ErrorCode unknownView{"ERROR_FRAME_UNKNOWN_VIEW",
                                       u"The news module cannot make a view of the class %1."};

}  // namespace wirepane::frame_errors
