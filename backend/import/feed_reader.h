// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <QByteArray>

namespace wirepane {

// Whether an XML document's root element is that of a feed.
bool isFeedRoot(QStringView name);

// Reads an RSS (0.9x, 1.0, 2.0) or Atom (0.3, 1.0) feed in whatever encoding it declares. Where the document
// stops being well-formed, is nested deeper than 256 elements or expands entities without bound, the rest is
// one rejection; the entries before it have been handed over.
void readFeed(const QByteArray& source, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
