// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace wirepane {

// A moment, in seconds since 1970, to the second in local time: with its day where that is not the present
// one, and with its year where it is of another.
QString shownTime(std::int64_t moment);

}  // namespace wirepane
