// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace wirepane {

// One news service in the view's list.
struct ServiceEntry {
    unsigned char service = 0;
    bool selected = false;       // the user has ticked it
    std::int32_t date = 0;       // its news date, yyyymmdd
    bool searchPending = false;  // a search was sent to it and has not been answered

    bool operator==(const ServiceEntry&) const = default;
};

}  // namespace wirepane
