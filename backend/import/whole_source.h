// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QByteArray>
#include <QIODevice>

namespace wirepane {

// All bytes of a source of at most so many; a larger one is refused.
Result<QByteArray> wholeSource(QIODevice& source, qint64 limit);

}  // namespace wirepane
