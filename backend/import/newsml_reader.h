// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/import/source_head.h"

#include <QIODevice>

namespace wirepane {

// Whether a source is a NewsML-G2 message or item, and of no other vocabulary.
bool isNewsml(const SourceHead& head);

// Reads a NewsML-G2 message, or one item, in whatever encoding it declares. Each item is handed over in its
// order; one that is no news (a package, a concept, a plan) is a rejection that says so. Where the document
// stops being well-formed, is nested deeper than 256 elements or expands entities without bound, the rest is
// one rejection.
Done readNewsml(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
