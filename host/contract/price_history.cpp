// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/price_history.h"

namespace wirepane {

PriceHistory::~PriceHistory() = default;

}  // namespace wirepane
