// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"

#include <QStringList>

#include <optional>

namespace wirepane {

// Compares the search index with the news text, word by word, without writing anything. Result: the headlines
// (as "service/identity", at most `most`) of which the index does not hold exactly the text, and "entry N"
// for an entry without a headline; nothing when the index cannot be read, which the database then says.
std::optional<QStringList> searchIndexFaults(Database& database, int most);

}  // namespace wirepane
