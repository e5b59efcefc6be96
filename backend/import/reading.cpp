// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/reading.h"

#include "backend/import/import_errors.h"

#include <utility>

namespace wirepane {

Phrase placeOfItem(qint64 number, const QString& name) {
    return name.isEmpty() ? makeError<import_errors::atItem>(number)
                          : makeError<import_errors::atItemNamed>(number, name);
}

void SourceItem::finish() {
    if (rest)
        content = std::exchange(rest, nullptr)();
    sizeOfRest = 0;
}

}  // namespace wirepane
