// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include <optional>

namespace wirepane {

enum class ColourScheme { Light, Dark };

// "light" and "dark".
QString schemeName(ColourScheme scheme);
std::optional<ColourScheme> schemeByName(const QString& name);

// The scheme's colour for a name that views ask for, such as "COLOR_LISTCTL_NORMALTEXT"; invalid for an
// unknown name.
QColor schemeColour(ColourScheme scheme, const QString& name);

// What the rest of the application's windows are drawn with.
QPalette schemePalette(ColourScheme scheme);

}  // namespace wirepane
