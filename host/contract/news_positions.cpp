// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_positions.h"

namespace wirepane {

NewsPositions::~NewsPositions() = default;

}  // namespace wirepane
