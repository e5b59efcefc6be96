// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_reader.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <algorithm>

namespace wirepane {

// Any file: its format is recognised, and each reader survives what it would not be given. The first byte
// chooses how large a file may be.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    ReadOptions options;
    options.limits.file = 32 * input.byte();
    const QByteArray source = input.bytes();
    // A source in UTF-16 is counted as what it becomes.
    const qint64 counted = 4 * source.size() + 4;
    promiseFile(source, counted, options, readSource);
    const SourceHead head(source);
    const auto formats = sourceFormats();
    promise(std::count_if(formats.begin(), formats.end(),
                          [&](const SourceFormat& format) { return format.recognise(head); }) <= 1,
            "a source is of one format");
    for (const SourceFormat& format : formats)
        promiseFile(source, counted, options, format.read);
    return 0;
}

}  // namespace wirepane
