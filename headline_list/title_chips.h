// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/sheet_cells.h"

class QString;

namespace wirepane {

// The chip of a title: for the words at its head by which services say that it is urgent, or mends another.
// None where nothing follows them.
SheetChip chipOfTitle(const QString& title);
// Whether the chip says that the title mends another.
bool saysCorrected(const SheetChip& chip);

}  // namespace wirepane
