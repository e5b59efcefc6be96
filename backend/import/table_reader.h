// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <QStringList>
#include <QStringView>

namespace wirepane {

// What a table in comma-separated values holds; its header line says it.
enum class TableKind { Unknown, Symbols, Categories, Quotes };

TableKind tableKind(const QStringList& header);

// Reads a table of symbols, categories or quotes. A row that cannot be taken is one rejection; rows of empty
// fields and the footers of the known lists are left out.
void readTable(QStringView table, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
