// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>

#include <array>
#include <cstddef>

namespace wirepane {

// The grounds that what was searched for stands on: one for each word, from the sixth on the first again.
using HitGrounds = std::array<QColor, 5>;

// In the installed host's colours of this moment. Interface thread.
WIREPANE_HOST_EXPORT HitGrounds hitGrounds();

inline const QColor& groundOf(const HitGrounds& grounds, int word) {
    return grounds[static_cast<std::size_t>(word) % grounds.size()];
}

}  // namespace wirepane
