// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/wire_batch.h"

#include "wire/wire_errors.h"

namespace wirepane {

Done WireBatch::read(const ItemVisitor& visit) {
    for (const WireRow& row : rows) {
        if (!visit({contentOf(row), makeError<wire_errors::row>(row.sequence)}))
            break;
    }
    return Nothing{};
}

}  // namespace wirepane
