// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/fixed_services.h"

#include <cstdint>

namespace wirepane {

// The service whose news are warrant news: it has a list of its own.

// One news service in the view's list.
struct ServiceEntry {
    unsigned char service = 0;
    bool selected = false;       // the user has ticked it
    std::int32_t date = 0;       // its news date, yyyymmdd
    bool searchPending = false;  // a search was sent to it and has not been answered

    bool operator==(const ServiceEntry&) const = default;
};

}  // namespace wirepane
