// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <QIODevice>

#include <optional>

namespace wirepane {

// Why a source of more than so many bytes is refused; nothing for a smaller one.
std::optional<Error> faultOfSize(const QIODevice& source, qint64 limit);

}  // namespace wirepane
