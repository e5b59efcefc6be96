// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/endurance/memory_in_use.h"

#include <cstddef>
#include <sqlite3.h>

#if defined(__SANITIZE_ADDRESS__)

extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // no header of GCC 12 has it

static std::int64_t allocated() {
    return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
}

#else

#include <malloc.h>

static std::int64_t allocated() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
}

#endif

MemoryInUse MemoryInUse::Now() {
    const std::int64_t ofDatabases = sqlite3_memory_used();
    return {ofDatabases, allocated() - ofDatabases};
}
