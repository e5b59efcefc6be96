// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

class QFontMetrics;
class QString;

namespace wirepane {

// The pixels that a text needs so that it is drawn, and not cut with "…": letters have fractions of pixels,
// and the advance of a text is rounded, down as well. 0 for an empty text.
WIREPANE_HOST_EXPORT int uncutWidth(const QFontMetrics& metrics, const QString& text);

}  // namespace wirepane
