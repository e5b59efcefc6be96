// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

namespace wirepane {

inline constexpr qint64 largestSecret = 65536;  // bytes

// The secret that a file holds, without the line break behind it. Fails where others than the user may read
// the file, and where it is no file.
Result<QString> readSecretFile(const QString& path);

// Writes or replaces a file that nobody but the user can read. Its folder is made, for the user alone.
Done writeSecretFile(const QString& path, const QString& secret);

}  // namespace wirepane
