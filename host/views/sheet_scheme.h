// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>
#include <QFont>
#include <QString>

class CSuperSheetWnd;

namespace wirepane {

// A colour of the host by its name, or `fallback` where its scheme lacks it.
WIREPANE_HOST_EXPORT QColor hostColour(const QString& name, const QColor& fallback);

// The colour of a price that has risen (direction 1) or fallen (-1) on this ground; 0: invalid.
WIREPANE_HOST_EXPORT QColor movementColour(int direction, const QColor& ground);

// Gives a sheet the host's colours of this moment, where the host has none those of its palette, and the
// font.
WIREPANE_HOST_EXPORT void applyHostScheme(CSuperSheetWnd& sheet, const QFont& font);

}  // namespace wirepane
