// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/ninjs_source.h"

#include "backend/import/import_errors.h"
#include "backend/import/json_reader.h"
#include "backend/import/json_shape.h"
#include "backend/import/ninjs_fields.h"
#include "backend/import/text_encoding.h"
#include "backend/import/whole_source.h"

#include <QBuffer>

#include <algorithm>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// JSON is UTF-8; where it comes as UTF-16 it is converted first.
Done readUtf16(const QByteArray& bytes, const ReadOptions& options, const ItemVisitor& visit) {
    const auto text = decodedText(bytes);
    if (!text)
        return makeError<import_errors::noUtf16>();
    QByteArray converted = text->toUtf8();
    QBuffer buffer(&converted);
    buffer.open(QIODevice::ReadOnly);
    return readNinjs(buffer, options, visit);
}

}  // namespace

bool isNinjs(const SourceHead& head) {
    if (jsonShape(head) == JsonShape::None)
        return false;
    const std::vector<QJsonObject> records = recordsInHead(head);
    return records.empty() || std::any_of(records.begin(), records.end(), hasNinjsField);
}

Done readNinjs(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    const QByteArray start = source.peek(recognisedFrom);
    const JsonShape shape = jsonShape(SourceHead(start));
    if (shape == JsonShape::Lines && !isUtf16(start)) {
        readJsonLines(source, options, visit);
        return Nothing{};
    }
    const Result<QByteArray> bytes = wholeSource(source, options.limits.file);
    if (!bytes)
        return bytes.error();
    if (isUtf16(start))
        return readUtf16(bytes.value(), options, visit);
    if (shape == JsonShape::List)
        readJsonList(bytes.value(), options, visit);
    else
        readJsonDocument(bytes.value(), options, visit);
    return Nothing{};
}

}  // namespace wirepane
