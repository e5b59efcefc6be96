// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_size.h"

#include "backend/import/import_errors.h"

namespace wirepane {

std::optional<Error> faultOfSize(const QIODevice& source, qint64 limit) {
    if (source.size() <= limit)
        return std::nullopt;
    return makeError<import_errors::fileTooLarge>(limit);
}

}  // namespace wirepane
