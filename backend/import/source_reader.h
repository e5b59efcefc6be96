// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <QIODevice>

namespace wirepane {

// Reads news, symbols or categories from bytes in any of the known formats, which is recognised by content,
// and hands over what is in them. The source is random-access, open for reading, and stands at its start.
// Fails, with nothing handed over, when the source is of no known format, too large for its format, empty, or
// cannot be read. Any thread.
Done readSource(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);

}  // namespace wirepane
