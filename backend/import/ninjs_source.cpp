// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/ninjs_source.h"

#include "backend/import/decoded_source.h"
#include "backend/import/import_errors.h"
#include "backend/import/json_reader.h"
#include "backend/import/json_shape.h"
#include "backend/import/ninjs_fields.h"
#include "backend/import/source_size.h"
#include "backend/import/text_encoding.h"

#include <algorithm>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

Done readShape(JsonShape shape, QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    if (shape == JsonShape::Lines)
        readJsonLines(source, options, visit);
    else if (shape == JsonShape::List)
        readJsonList(source, options, visit);
    else
        readJsonDocument(source, options, visit);
    return Nothing{};
}

// JSON is UTF-8; where it comes as UTF-16 it is converted.
Done readUtf16(JsonShape shape, QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    auto decoder = textDecoder(source);
    if (!decoder)
        return makeError<import_errors::noUtf16>();
    DecodedSource converted(source, textPieces(source, std::move(*decoder)));
    return readShape(shape, converted, options, visit);
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
    const auto fault = faultOfSize(source, options.limits.file);
    if (fault && (shape != JsonShape::Lines || isUtf16(start)))
        return *fault;
    return isUtf16(start) ? readUtf16(shape, source, options, visit)
                          : readShape(shape, source, options, visit);
}

}  // namespace wirepane
