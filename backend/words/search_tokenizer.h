// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace wirepane {

// The name of the splitter of words in the definition of an index.
inline constexpr const char* searchTokenizer = "wirepane";

// Makes the splitter (WordReader) known to a connection. False when the library lacks full-text search.
bool registerSearchTokenizer(sqlite3* connection);

}  // namespace wirepane
