// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/endurance/memory_in_use.h"

#include <cstddef>
#include <sqlite3.h>

#if defined(__SANITIZE_ADDRESS__)

extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // no header of GCC 12 has it

namespace wirepane {

static std::int64_t allocated() {
    return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
}

}  // namespace wirepane

#else

#include <malloc.h>

namespace wirepane {

static std::int64_t allocated() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
}

}  // namespace wirepane

#endif

namespace wirepane {

MemoryInUse MemoryInUse::now() {
    const std::int64_t ofDatabases = sqlite3_memory_used();
    return {ofDatabases, allocated() - ofDatabases};
}

}  // namespace wirepane
