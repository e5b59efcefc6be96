// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/feed_reader.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

namespace wirepane {

// RSS and Atom, in any encoding.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QByteArray source = FuzzInput(bytes, size).bytes();
    promiseFile(source, source.size(), {}, readFeed);
    return 0;
}

}  // namespace wirepane
