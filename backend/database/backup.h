// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

#include <cstdint>
#include <functional>

namespace wirepane {
class Database;

// Copies a database to a new file, as it is at this moment, whoever writes to it meanwhile. The file appears
// under its name when it is whole and on the disk, its owner's alone; a name that is taken is an error, and
// stays as it is. `progress` hears of bytes. Works on the calling thread.
Done backUp(Database& source, const QString& target,
            const std::function<void(std::int64_t done, std::int64_t total)>& progress = {});

}  // namespace wirepane
