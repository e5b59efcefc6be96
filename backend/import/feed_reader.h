// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/import/source_head.h"

#include <QIODevice>

namespace wirepane {

// Whether a source is RSS, or Atom. An <RDF> is RSS when it starts with a part of a feed, a <feed> is Atom
// when it is of no other vocabulary.
bool isRss(const SourceHead& head);
bool isAtom(const SourceHead& head);

// Reads an RSS (0.9x, 1.0, 2.0) or Atom (0.3, 1.0) feed in whatever encoding it declares. Where the document
// stops being well-formed, is nested deeper than 256 elements or expands entities without bound, the rest is
// one rejection; the entries before it have been handed over.
Done readFeed(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
