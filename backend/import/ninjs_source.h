// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/import/source_head.h"

#include <QIODevice>

namespace wirepane {

// Whether a source is ninjs: of the records that stand whole in its head one has a field of ninjs. JSON that
// is too broken or too long for that counts as well; the reader says what is wrong with it, and where.
bool isNinjs(const SourceHead& head);

// Reads ninjs, UTF-8 or UTF-16 with a byte order mark, in whichever form its records stand (json_reader.h).
Done readNinjs(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
