// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QByteArray>
#include <QIODevice>

#include <optional>

namespace wirepane {

// Why a source of more than so many bytes is refused; nothing for a smaller one.
std::optional<Error> faultOfSize(const QIODevice& source, qint64 limit);

// All bytes of a source of at most so many; a larger one is refused.
Result<QByteArray> wholeSource(QIODevice& source, qint64 limit);

}  // namespace wirepane
