// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/uncut_width.h"

#include <QFontMetrics>

namespace wirepane {

int uncutWidth(const QFontMetrics& metrics, const QString& text) {
    return text.isEmpty() ? 0 : metrics.horizontalAdvance(text) + 1;
}

}  // namespace wirepane
