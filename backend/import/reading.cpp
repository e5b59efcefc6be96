// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/reading.h"

#include "backend/import/import_errors.h"

namespace wirepane {

Phrase placeOfItem(qint64 number, const QString& name) {
    return name.isEmpty() ? makeError<import_errors::atItem>(number)
                          : makeError<import_errors::atItemNamed>(number, name);
}

}  // namespace wirepane
