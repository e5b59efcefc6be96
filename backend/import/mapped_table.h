// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/mapping.h"
#include "backend/import/reading.h"

#include <QIODevice>

namespace wirepane {

// Reads a table of news, comma-separated values or a JSON list of objects, by a mapping. A row that cannot be
// taken is one rejection. The source is random-access, open for reading, and stands at its start. Fails, with
// nothing handed over, when it is no table, lacks a column that the mapping needs or is too large.
Done readMappedTable(QIODevice& source, const Mapping& mapping, const ReadOptions& options,
                     const ItemVisitor& visit);

}  // namespace wirepane
