// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace wirepane {

// Makes known to a connection how columns are read whose texts may be packed (packed_text.h): a blob is one
// that is, any other value is itself.
//   unpacked(value, row)        the text; a damaged one is an error that names the row, and damage of the
//   file unpacked_or_null(value)     as above, and null where it is damaged
void registerUnpacking(sqlite3* connection);

}  // namespace wirepane
