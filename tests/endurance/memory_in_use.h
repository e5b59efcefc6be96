// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace wirepane {

// The bytes that this process has allocated and not given back, whatever the allocator keeps in reserve.
struct MemoryInUse {
    std::int64_t ofDatabases = 0;  // their page caches grow with use up to a bound of their own
    std::int64_t other = 0;

    static MemoryInUse now();
};

}  // namespace wirepane
