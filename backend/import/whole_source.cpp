// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/whole_source.h"

namespace wirepane {

using namespace Qt::StringLiterals;

Result<QByteArray> wholeSource(QIODevice& source, qint64 limit) {
    if (source.size() > limit)
        return Error{
            u"The file is larger than %1 bytes; only JSON with one record per line may be."_s.arg(limit)};
    return source.readAll();
}

}  // namespace wirepane
