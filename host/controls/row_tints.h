// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>

namespace wirepane {

// What is laid over the ground of a row that stands out: a colour that one can read through, in the colours
// of the application at this moment. `tint` as HeadlineLook numbers them; invalid for any other number.
// Interface thread.
WIREPANE_HOST_EXPORT QColor rowTint(int tint);
// The same, opaque: as a sample of it.
WIREPANE_HOST_EXPORT QColor sampleOfTint(int tint);

}  // namespace wirepane
