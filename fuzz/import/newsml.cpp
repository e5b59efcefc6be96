// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/newsml_reader.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

namespace wirepane {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QByteArray source = FuzzInput(bytes, size).bytes();
    const ReadingResult result = promiseFile(source, source.size(), {}, readNewsml);
    promise(!result.items.empty() || result.rejections > 0, "a message without news is rejected");
    return 0;
}

}  // namespace wirepane
