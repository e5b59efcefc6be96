// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/json_reader.h"

#include "backend/import/import_errors.h"
#include "backend/import/json_list.h"
#include "backend/import/ninjs_record.h"
#include "backend/import/text_encoding.h"

#include <array>
#include <optional>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

Result<StoreItem> storeItem(QByteArrayView record, const ReadOptions& options) {
    Result<NewsItem> item = ninjsItem(record, options.service);
    if (!item)
        return item.error();
    StoreItem taken = std::move(item.value());
    return taken;
}

Result<StoreItem> tooLong(const ReadOptions& options) {
    return makeError<import_errors::recordTooLong>(options.limits.record);
}

Phrase placeOf(qsizetype number, const Result<StoreItem>& content) {
    return placeOfItem(number, content ? std::get<NewsItem>(content.value()).identity : QString());
}

// The next line, or nothing when it is longer than the limit; then it has been read past.
std::optional<QByteArray> nextLine(QIODevice& source, qint64 limit) {
    std::array<char, 16384> part;
    QByteArray line;
    bool tooLong = false;
    bool ended = false;
    while (!ended) {
        const qint64 length = source.readLine(part.data(), part.size());
        ended = length <= 0 || part.at(std::size_t(length - 1)) == '\n';
        tooLong = tooLong || line.size() + length > limit;
        if (length > 0 && !tooLong)
            line.append(part.data(), length);
    }
    return tooLong ? std::nullopt : std::optional<QByteArray>(line);
}

}  // namespace

void readJsonLines(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    for (qint64 number = 1; !source.atEnd(); ++number) {
        const std::optional<QByteArray> line = nextLine(source, options.limits.record);
        const Phrase place = makeError<import_errors::atLine>(number);
        if (!line) {
            const Error fault = makeError<import_errors::lineTooLong>(options.limits.record);
            if (!visit({fault, place, source.pos()}))
                return;
            continue;
        }
        QByteArrayView record(*line);
        if (number == 1)
            record = withoutByteOrderMark(record);
        record = record.trimmed();
        if (!record.isEmpty() && !visit({storeItem(record, options), place, source.pos()}))
            return;
    }
}

void readJsonList(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    JsonList list(source, options.limits.record);
    qsizetype number = 0;
    while (const auto record = list.next()) {
        const Result<StoreItem> content = list.wasTooLong() ? tooLong(options) : storeItem(*record, options);
        if (!visit({content, placeOf(++number, content), source.pos()}))
            return;
    }
    if (!list.isClosed())
        visit({makeError<import_errors::listWithoutEnd>(), makeError<import_errors::atItem>(number),
               source.pos()});
    else if (list.isFollowed())
        visit({makeError<import_errors::behindList>(), makeError<import_errors::atEnd>(), source.pos()});
}

void readJsonDocument(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    const QByteArray record = source.read(options.limits.record + 1);
    const Result<StoreItem> content = record.size() > options.limits.record
                                          ? tooLong(options)
                                          : storeItem(withoutByteOrderMark(record), options);
    visit({content, placeOf(1, content), source.pos()});
}

}  // namespace wirepane
