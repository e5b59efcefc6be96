// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/mapping.h"

#include <QStringList>

namespace wirepane {

// The names of the mappings that the program brings (docs/mappings).
QStringList builtInMappings();

// The built-in mapping of this name, else that of the file with this path.
Result<Mapping> mappingNamed(const QString& nameOrPath);

}  // namespace wirepane
