// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {
struct OpenView;

// How close the rows of a view stand: comfortable, or compact.
bool areRowsCompact(const OpenView& view);
// Kept in the view's settings, and shown at once.
void setRowsCompact(const OpenView& view, bool compact);

}  // namespace wirepane
