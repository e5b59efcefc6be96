// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

namespace wirepane::tour_errors {

// Why the tour ends early.
inline constexpr ErrorCode notPrinted{"ERROR_TOUR_NOT_PRINTED",
                                      u"The news was not printed and saved into %1."};
inline constexpr ErrorCode stopped{"ERROR_TOUR_STOPPED", u"Stopped."};
inline constexpr ErrorCode pictureNotWritten{"ERROR_TOUR_PICTURE_NOT_WRITTEN",
                                             u"The picture %1 cannot be written."};
inline constexpr ErrorCode refused{"ERROR_TOUR_REFUSED", u"%1"};

}  // namespace wirepane::tour_errors
