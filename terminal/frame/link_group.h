// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

namespace wirepane::link_groups {

// The groups that the user is offered are 1 to `count`, shown as letters from A on; 0: not linked. A script
// may use any other number of a byte, too.
inline constexpr unsigned char count = 6;

// "A" to "F", another group's number, "–" for 0.
QString label(unsigned char group);
// The colour behind the label; invalid for 0. A white letter is readable on it.
QColor colour(unsigned char group);

}  // namespace wirepane::link_groups
