// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/import/source_head.h"

#include <QIODevice>

namespace wirepane {

// Whether a source is a table in comma-separated values whose header names the columns of symbols, categories
// or quotes.
bool isTable(const SourceHead& head);

// Reads such a table. A row that cannot be taken is one rejection; rows of empty fields and the footers of
// the known lists are left out.
Done readTable(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
