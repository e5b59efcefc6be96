// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/json_reader.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <QBuffer>

#include <algorithm>

using namespace wirepane;

namespace {

// Each line that is not blank is an item or a rejection.
void tryLines(QByteArray source, const ReadOptions& options) {
    const ReadingResult result = promiseReading(source.size(), [&](const ItemVisitor& visit) {
        QBuffer buffer(&source);
        buffer.open(QIODevice::ReadOnly);
        readJsonLines(buffer, options, visit);
    });
    if (source.startsWith("\xef\xbb\xbf"))
        source.remove(0, 3);
    const auto all = source.split('\n');
    const auto filled = std::count_if(all.begin(), all.end(), [&](const QByteArray& line) {
        return line.size() >= options.limits.line || !line.trimmed().isEmpty();
    });
    promise(qsizetype(result.items.size()) + result.rejections == filled, "every line is accounted for");
}

}  // namespace

// ninjs in its three forms; the first byte chooses how long a line may be.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    ReadOptions options;
    options.limits.line = 64 + 16 * input.byte();
    const QByteArray source = input.bytes();
    tryLines(source, options);
    const ReadingResult document = promiseReading(
        source.size(), [&](const ItemVisitor& visit) { readJsonDocument(source, options, visit); });
    promise(document.items.size() + std::size_t(document.rejections) == 1, "a document is one record");
    if (source.trimmed().startsWith('['))
        promiseReading(source.size(),
                       [&](const ItemVisitor& visit) { readJsonList(source, options, visit); });
    return 0;
}
