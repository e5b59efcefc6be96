// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_line.h"
#include "backend/import/json_reader.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <QBuffer>
#include <QByteArrayList>
#include <QJsonDocument>

#include <algorithm>

namespace wirepane {

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
        return line.size() >= options.limits.record || !line.trimmed().isEmpty();
    });
    promise(qsizetype(result.items.size()) + result.rejections == filled, "every line is accounted for");
}

std::vector<StoreItem> itemsOfLines(QByteArray source) {
    QBuffer buffer(&source);
    buffer.open(QIODevice::ReadOnly);
    return promiseReading(source.size(),
                          [&](const ItemVisitor& visit) {
                              buffer.seek(0);
                              readJsonLines(buffer, {}, visit);
                          })
        .items;
}

ReadingResult promiseList(QByteArray list, const ReadOptions& options) {
    return promiseReading(list.size(), [&](const ItemVisitor& visit) {
        QBuffer buffer(&list);
        buffer.open(QIODevice::ReadOnly);
        readJsonList(buffer, options, visit);
    });
}

// Records give the same items line by line and in a list; a byte order mark belongs to the lines alone.
void promiseSameInAList(const QByteArray& source) {
    QByteArrayList records = source.split('\n');
    records.removeIf([](const QByteArray& line) {
        return line.trimmed().startsWith("\xef\xbb\xbf") || !QJsonDocument::fromJson(line).isObject();
    });
    const std::vector<StoreItem> expected = itemsOfLines(records.join('\n'));
    const QByteArray list = '[' + records.join(',') + ']';
    const ReadingResult result = promiseList(list, {});
    promise(result.items.size() + std::size_t(result.rejections) == std::size_t(records.size()),
            "each entry of a list is accounted for");
    promise(std::equal(result.items.begin(), result.items.end(), expected.begin(), expected.end(),
                       [](const StoreItem& a, const StoreItem& b) {
                           return itemLine(std::get<NewsItem>(a), {}) == itemLine(std::get<NewsItem>(b), {});
                       }),
            "a list gives what its records give as lines");
}

}  // namespace

// ninjs in its three forms; the first byte chooses how long a record may be.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    ReadOptions options;
    options.limits.record = 64 + 16 * input.byte();
    const QByteArray source = input.bytes();
    tryLines(source, options);
    const ReadingResult document = promiseReading(source.size(), [&](const ItemVisitor& visit) {
        QBuffer buffer;
        buffer.setData(source);
        buffer.open(QIODevice::ReadOnly);
        readJsonDocument(buffer, options, visit);
    });
    promise(document.items.size() + std::size_t(document.rejections) == 1, "a document is one record");
    promiseSameInAList(source);
    if (source.trimmed().startsWith('['))
        promiseList(source, options);
    return 0;
}

}  // namespace wirepane
