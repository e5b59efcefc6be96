// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace wirepane {

// The name of the splitter of words in the definition of an index. Behind it may stand the fingerprint of the
// rules by which it splits and folds (CharacterFolding); without it the rules are those that the table
// `search_rules` names, or the present ones, where it names none that is known.
inline constexpr const char* searchTokenizer = "wirepane";

// Makes the splitter (WordReader) known to a connection. False when the library lacks full-text search.
bool registerSearchTokenizer(sqlite3* connection);

}  // namespace wirepane
