// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QStringList>
#include <QStringView>

#include <optional>

namespace wirepane {

// What a query says of a symbol: "700", "22:0700", "00700.HK", or a name.
struct QuerySymbol {
    std::optional<unsigned char> market;  // none: any
    // How its code may be written, in capitals: as typed, without the ending behind a point, without zeros in
    // front, and filled up with them to four, five and six digits.
    QStringList codes;
    bool isNumber = false;  // but for its ending, of digits alone: a name is none
};

// None: the market is beyond 255, or nothing is there.
WIREPANE_CONTRACT_EXPORT std::optional<QuerySymbol> readQuerySymbol(QStringView text);

}  // namespace wirepane
