// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <QString>

namespace wirepane {

// What went wrong with a store file: it names the file, what that means, and the reason. `code` is SQLite's
// extended result code, `message` its own words, `systemError` the errno behind it (0: none).
Error databaseFailure(const QString& path, int code, const QString& message, int systemError);

// Why nothing can be taken in by a store whose file went while it was open, and by one that is only read.
Error takenAwayError(const QString& path);
Error onlyReadError(const QString& path);

}  // namespace wirepane
