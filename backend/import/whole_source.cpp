// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/whole_source.h"

#include "backend/import/import_errors.h"

namespace wirepane {

std::optional<Error> faultOfSize(const QIODevice& source, qint64 limit) {
    if (source.size() <= limit)
        return std::nullopt;
    return makeError<import_errors::fileTooLarge>(limit);
}

Result<QByteArray> wholeSource(QIODevice& source, qint64 limit) {
    if (const auto fault = faultOfSize(source, limit))
        return *fault;
    return source.readAll();
}

}  // namespace wirepane
