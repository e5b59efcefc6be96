// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_reader.h"

#include "backend/import/feed_reader.h"
#include "backend/import/json_reader.h"
#include "backend/import/mapped_table.h"
#include "backend/import/newsml_reader.h"
#include "backend/import/source_format.h"
#include "backend/import/table_reader.h"

#include <QBuffer>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

Result<QByteArray> wholeSource(QIODevice& source, qint64 limit) {
    if (source.size() > limit)
        return Error{
            u"The file is larger than %1 bytes; only JSON with one record per line may be."_s.arg(limit)};
    return source.readAll();
}

bool isJson(SourceFormat format) {
    return format == SourceFormat::JsonLines || format == SourceFormat::JsonList ||
           format == SourceFormat::JsonDocument;
}

Done readTableSource(const QByteArray& bytes, const ReadOptions& options, const ItemVisitor& visit) {
    const auto text = decodedText(bytes);
    if (!text)
        return Error{u"The file is neither UTF-8 nor code page 950."_s};
    readTable(*text, options, visit);
    return Nothing{};
}

Done readWhole(SourceFormat format, const QByteArray& bytes, const ReadOptions& options,
               const ItemVisitor& visit) {
    if (format == SourceFormat::Table)
        return readTableSource(bytes, options, visit);
    if (format == SourceFormat::JsonList)
        readJsonList(bytes, options, visit);
    else if (format == SourceFormat::JsonDocument)
        readJsonDocument(bytes, options, visit);
    else if (format == SourceFormat::Newsml)
        readNewsml(bytes, options, visit);
    else
        readFeed(bytes, options, visit);
    return Nothing{};
}

// JSON is UTF-8; where it comes as UTF-16 it is converted first.
Done readUtf16Json(const QByteArray& bytes, const ReadOptions& options, const ItemVisitor& visit) {
    const auto text = decodedText(bytes);
    if (!text)
        return Error{u"The file starts as UTF-16 but is not."_s};
    QByteArray converted = text->toUtf8();
    QBuffer buffer(&converted);
    buffer.open(QIODevice::ReadOnly);
    return readSource(buffer, options, visit);
}

}  // namespace

Done readSource(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    if (options.mapping) {
        const Result<QByteArray> table = wholeSource(source, options.limits.file);
        return table ? readMappedTable(table.value(), *options.mapping, options, visit)
                     : Error{table.error()};
    }
    const QByteArray head = source.peek(recognisedFrom);
    const Result<SourceFormat> format = recognisedFormat(head);
    if (!format)
        return Error{format.error()};
    const bool converted = isUtf16(head) && isJson(format.value());
    if (format.value() == SourceFormat::JsonLines && !converted) {
        readJsonLines(source, options, visit);
        return Nothing{};
    }
    const Result<QByteArray> bytes = wholeSource(source, options.limits.file);
    if (!bytes)
        return Error{bytes.error()};
    if (converted)
        return readUtf16Json(bytes.value(), options, visit);
    return readWhole(format.value(), bytes.value(), options, visit);
}

}  // namespace wirepane
