// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace wirepane {

// The character that a named HTML entity stands for ("eacute", without "&" and ";"), or 0 for an unknown
// name.
char32_t htmlEntity(QStringView name);

}  // namespace wirepane
