// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>

#include <string_view>

namespace wirepane {

// The path that SVG path data describes: moves, lines, curves, arcs of circles and closings, in
// absolute and relative coordinates. What cannot be read ends the path.
QPainterPath iconPath(std::string_view data);

}  // namespace wirepane
