// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/mapping.h"
#include "backend/import/reading.h"

#include <QByteArray>

namespace wirepane {

// Reads a table of news, comma-separated values or a JSON list of objects, by a mapping. A row that cannot be
// taken is one rejection. Fails, with nothing handed over, when the source is no table or lacks a column that
// the mapping needs.
Done readMappedTable(const QByteArray& source, const Mapping& mapping, const ReadOptions& options,
                     const ItemVisitor& visit);

}  // namespace wirepane
