// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/key_set_rehearsal.h"

#include <algorithm>

namespace wirepane {

KeySetRehearsal::~KeySetRehearsal() = default;

int Rehearsal::hoursOver(int budget) const {
    return static_cast<int>(
        std::count_if(hours.begin(), hours.end(), [&](const Hour& hour) { return hour.hits > budget; }));
}

}  // namespace wirepane
