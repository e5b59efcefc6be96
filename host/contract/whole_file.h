// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <optional>

namespace wirepane {

// Writes a file as a whole: a file of this name that exists is replaced when the new one is complete, and
// stays as it is otherwise. `mode` may add QIODevice::Text. The reason when it failed.
WIREPANE_CONTRACT_EXPORT std::optional<QString> writeWholeFile(const QString& file, const QByteArray& bytes,
                                                               QIODevice::OpenMode mode = QIODevice::NotOpen);

}  // namespace wirepane
