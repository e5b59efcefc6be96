// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace wirepane {

// The settings that an ini file of the older form holds, as objects of values by group; its values are JSON
// texts. Nothing when the file is damaged or cannot be read. It stays as it is.
std::optional<QJsonObject> readIniSettings(const QString& path);

}  // namespace wirepane
