// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/translations/stored_names.h"

#include "terminal/translations/text_table.h"

using namespace Qt::StringLiterals;

namespace wirepane {

QString shownName(const QString& stored) {
    static const TextTable names(u":/names/stored_names.tsv"_s);
    return names.find(stored).value_or(stored);
}

}  // namespace wirepane
