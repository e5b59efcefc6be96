// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace wirepane {

// Keywords in the order in which they were added, none empty, none twice. Compared exactly: case counts.
using KeywordList = std::vector<QString>;

// The index of the keyword, which is appended when it is new; -1 for an empty one, which is not.
int keepKeyword(KeywordList& list, const QString& keyword);
// Nothing happens when the list does not hold it.
void removeKeyword(KeywordList& list, const QString& keyword);
// Those that contain the text; all for an empty one.
KeywordList keywordsWith(const KeywordList& list, const QString& part);

// The keywords that a symbol candidate ("CODE NAME", perhaps with something in brackets before it) gives: its
// code, and its name without blanks.
KeywordList keywordsOfCandidate(const QString& candidate);

}  // namespace wirepane
