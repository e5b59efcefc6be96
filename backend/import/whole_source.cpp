// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/whole_source.h"

#include "backend/import/import_errors.h"

namespace wirepane {

Result<QByteArray> wholeSource(QIODevice& source, qint64 limit) {
    if (source.size() > limit)
        return makeError<import_errors::fileTooLarge>(limit);
    return source.readAll();
}

}  // namespace wirepane
