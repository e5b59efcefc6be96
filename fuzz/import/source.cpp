// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_reader.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <QBuffer>

using namespace wirepane;

// Any file: its format is recognised. The first byte chooses how large a file may be.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    ReadOptions options;
    options.limits.file = 32 * input.byte();
    QByteArray source = input.bytes();
    bool isRefused = false;
    // A source in UTF-16 is counted as what it becomes.
    const ReadingResult result = promiseReading(4 * source.size() + 4, [&](const ItemVisitor& visit) {
        QBuffer buffer(&source);
        buffer.open(QIODevice::ReadOnly);
        const Done done = readSource(buffer, options, visit);
        isRefused = !done;
        promise(done || !done.error().isEmpty(), "a refusal has a reason");
    });
    promise(!isRefused || (result.items.empty() && result.rejections == 0), "what is refused gives nothing");
    return 0;
}
