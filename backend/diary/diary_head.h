// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"

#include <QByteArray>

#include <cstdint>

namespace wirepane {
class Database;

// Where a diary ends: how many entries it has, and the seal of the last.
struct DiaryHead {
    std::int64_t count = 0;
    QByteArray seal;  // 64 hexadecimal digits; those of nothing where there is no entry

    bool operator==(const DiaryHead&) const = default;
};

// The head of a diary without entries.
DiaryHead noEntries();

// The head as the store keeps it, apart from the diary, so that a tail that was cut off is missed.
class KeptHead {
public:
    explicit KeptHead(Database& store);

    // As without entries where the store knows none. `failed`: the store cannot be read.
    DiaryHead head(bool& failed);
    bool keep(const DiaryHead& head);

private:
    Statement read;
    Statement write;
};

}  // namespace wirepane
