// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/colour_roles.h"

#include <QColor>
#include <QPalette>
#include <QString>

#include <optional>

namespace wirepane {

enum class ColourScheme { Light, Dark, HighContrast };

// "light", "dark" and "contrast".
QString schemeName(ColourScheme scheme);
std::optional<ColourScheme> schemeByName(const QString& name);

// What a scheme has for a role.
QColor schemeColour(ColourScheme scheme, ColourRole role);
// The scheme's colour for a name that views ask for: that of a role, or one such as "COLOR_QUOTE_RISE";
// invalid for an unknown name. Where green is up, "up" and "down" change places.
QColor schemeColour(ColourScheme scheme, const QString& name, bool greenIsUp = false);

// What the rest of the application's windows are drawn with. The roles that palettes lack: Mid is the line
// between areas, Dark the border of inputs, Light the ground under the pointer, Midlight that of what is
// pressed, Link the accent.
QPalette schemePalette(ColourScheme scheme);

}  // namespace wirepane
