// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <QByteArray>
#include <QIODevice>

namespace wirepane {

// ninjs records, UTF-8, handed over in their order. A broken record is one rejection; reading goes on behind
// it. The position of a source is how much of it has been read.

// One record per line, read line by line: a source of any length costs the memory of its longest line.
void readJsonLines(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

// A list of records, read one by one. A list that ends early is a rejection of what is cut off.
void readJsonList(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

// One record over several lines.
void readJsonDocument(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
