// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

// Whether some program has this file open for writing. False also where the system does not tell.
bool isOpenForWriting(const QString& path);

}  // namespace wirepane
